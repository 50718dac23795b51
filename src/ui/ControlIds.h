// Control identifiers and window texts of every element that is a window,
// stable across versions, so that tests and assistive tools can find them.
// The window texts are the names these windows have always carried.
#pragma once

namespace ui::ids {

// The main window.
inline constexpr int currentIcon = 1101;
inline constexpr int newIcon = 1102;
inline constexpr int defaultFolderIcon = 1103;
inline constexpr int infoTip = 1104;
inline constexpr int recentFiles = 1105;
inline constexpr int iconList = 1106;
inline constexpr int browseButton = 1107;
inline constexpr int applyButton = 1108;
inline constexpr int statusStrip = 1109;
inline constexpr int exitButton = 1110;
inline constexpr int mainSkin = 1111;
inline constexpr int scratch = 1112;

// The about window.
inline constexpr int aboutText = 1201;
inline constexpr int updatesButton = 1202;
inline constexpr int webPageButton = 1203;
inline constexpr int helpButton = 1204;
inline constexpr int okButton = 1205;
inline constexpr int settingsButton = 1206;
inline constexpr int aboutSkin = 1207;
inline constexpr int logo = 1208;

}  // namespace ui::ids

// Window texts of the three windows and their elements.
namespace ui::names {

inline constexpr char kMainWindow[] = "frmPrincipal";
inline constexpr char kAboutWindow[] = "frmSplash";
inline constexpr char kShadowWindow[] = "frmShadow";

inline constexpr char kDragStrip[] = "lblSensible";
inline constexpr char kCurrentIconLabel[] = "lblIconoActual";
inline constexpr char kCurrentIcon[] = "picIconoActual";
inline constexpr char kNewIconLabel[] = "lblNuevoIcono";
inline constexpr char kNewIcon[] = "picNuevoIcono";
inline constexpr char kDefaultIconLabel[] = "lblIconoDefaultFolder";
inline constexpr char kDefaultIcon[] = "picIconoDefaultFolder";
inline constexpr char kInfoTipLabel[] = "lblInfoCarpeta";
inline constexpr char kInfoTip[] = "txtInfoCarpeta";
inline constexpr char kRecentLabel[] = "lblARA";
inline constexpr char kRecentFiles[] = "cboARA";
inline constexpr char kTopLine[] = "Line1";
inline constexpr char kHelpLink[] = "lblHelp";
inline constexpr char kIconList[] = "lvwIconos";
inline constexpr char kIconImages[] = "img32";
inline constexpr char kBrowseButton[] = "picBuscarArchivo";
inline constexpr char kApplyButton[] = "picAplicar";
inline constexpr char kStatusStrip[] = "picStatus";
inline constexpr char kExitButton[] = "picSalir";
inline constexpr char kMainSkin[] = "picBack";
inline constexpr char kScratch[] = "picTMP";

inline constexpr char kAboutText[] = "txtInfo";
inline constexpr char kUpdatesButton[] = "picActualizar";
inline constexpr char kWebPageButton[] = "picWebPage";
inline constexpr char kHelpButton[] = "picAyuda";
inline constexpr char kOkButton[] = "picAceptar";
inline constexpr char kSettingsButton[] = "picConfig";
inline constexpr char kAboutSkin[] = "picBack";
inline constexpr char kLogo[] = "picImagen";
inline constexpr char kSplashText[] = "lblInfo";

}  // namespace ui::names
