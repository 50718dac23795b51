; Morvane's installer. It installs for the current user only, into a folder of
; the user's own: Morvane writes its recent list and its font file beside
; itself, and in a folder the user cannot write to it would end without a word.
;
; Made by packaging/make-packages.sh, which defines VERSION (1.0),
; FILE_VERSION (1.0.0.0), SHIPPED (the include naming the files to install),
; ICON and OUTFILE.

Unicode true
; Morvane is a 64-bit program, and a 64-bit installer runs under a 64-bit-only
; Wine as well.
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include "${SHIPPED}"

!define PRODUCT "Morvane"
!define PUBLISHER "Morvane Software"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"
; Explorer's context menu of file-system folders.
!define VERB_KEY "Software\Classes\Directory\shell\${PRODUCT}"
; Every window of the program has this class.
!define WINDOW_CLASS "MorvaneForm"

Name "${PRODUCT}"
OutFile "${OUTFILE}"
InstallDir "$LOCALAPPDATA\Programs\${PRODUCT}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${PRODUCT} ${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_COMPONENTSPAGE_NODESC
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Spanish"

LangString SectionProgram ${LANG_ENGLISH} "${PRODUCT} and a Start-menu entry"
LangString SectionProgram ${LANG_SPANISH} "${PRODUCT} y una entrada en el menú Inicio"
LangString SectionVerb ${LANG_ENGLISH} "Folder context-menu entry"
LangString SectionVerb ${LANG_SPANISH} "Entrada en el menú contextual de las carpetas"
LangString VerbText ${LANG_ENGLISH} "Folder icon and info tip..."
LangString VerbText ${LANG_SPANISH} "Icono y descripción de la carpeta..."
LangString StillRunning ${LANG_ENGLISH} "${PRODUCT} is running. Close it, then choose Retry."
LangString StillRunning ${LANG_SPANISH} "${PRODUCT} se está ejecutando. Ciérrelo y elija Reintentar."

VIProductVersion "${FILE_VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "${PRODUCT}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "CompanyName" "${PUBLISHER}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" "© 2026 ${PUBLISHER}"

; A running copy holds its program file and font file open.
!macro WaitUntilClosed
  retry:
    FindWindow $0 "${WINDOW_CLASS}"
    StrCmp $0 0 closed
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(StillRunning)" /SD IDCANCEL IDRETRY retry
    Abort
  closed:
!macroend

Function WaitUntilClosed
  !insertmacro WaitUntilClosed
FunctionEnd

Function un.WaitUntilClosed
  !insertmacro WaitUntilClosed
FunctionEnd

Section "!$(SectionProgram)" SectionProgram
  SectionIn RO
  Call WaitUntilClosed
  SetOutPath "$INSTDIR"
  !insertmacro InstallShippedFiles
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortCut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\Morvane.exe"

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "URLInfoAbout" "http://www.morvane.example"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Morvane.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

Section "$(SectionVerb)" SectionVerb
  WriteRegStr HKCU "${VERB_KEY}" "" "$(VerbText)"
  WriteRegStr HKCU "${VERB_KEY}" "Icon" "$INSTDIR\Morvane.exe"
  ; Morvane takes everything after its name and one blank as the folder,
  ; quotes included, so the folder's placeholder stays bare.
  WriteRegStr HKCU "${VERB_KEY}\command" "" '"$INSTDIR\Morvane.exe" %1'
SectionEnd

; Installing again without the context-menu entry takes away an earlier one.
Section "-Forget the context-menu entry"
  ${IfNot} ${SectionIsSelected} ${SectionVerb}
    DeleteRegKey HKCU "${VERB_KEY}"
  ${EndIf}
SectionEnd

Section "Uninstall"
  Call un.WaitUntilClosed
  !insertmacro RemoveShippedFiles
  ; What Morvane writes beside itself: its recent list, and its font file
  ; when a run did not end in order.
  Delete "$INSTDIR\ARA.INI"
  Delete "$INSTDIR\Morvane.ttf"
  Delete "$INSTDIR\Uninstall.exe"
  ; Only when empty: the user may have put files of their own there.
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${PRODUCT}.lnk"
  DeleteRegKey HKCU "${VERB_KEY}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
