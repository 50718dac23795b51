#include "platform/CommonDialog.h"

#include <commdlg.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/CommonDialogText.h"
#include "platform/SystemPath.h"
#include "platform/Utf8.h"

namespace platform {
namespace {

constexpr BOOL kConfirmed = 1;  // the dialogs' answer when the user chose

constexpr UINT kMovableZeroed = GMEM_MOVEABLE | GMEM_ZEROINIT;
constexpr int kCustomColourCount = 16;
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr SIZE_T kCustomColoursBytes = kCustomColourCount * sizeof(COLORREF);
// The font block has always been one byte longer than the record it holds.
constexpr SIZE_T kFontBlockBytes = sizeof(LOGFONTW) + 1;
// The Flags property does not reach the font dialog.
constexpr DWORD kFontDialogFlags = CF_SCREENFONTS | CF_EFFECTS;
constexpr LONG kBoldWeight = FW_BOLD;
constexpr BYTE kEffectOn = 1;
constexpr std::int64_t kTenthsPerPoint = 10;
constexpr DWORD kPrinterContextFlags = PD_RETURNDC | PD_RETURNIC;

// Global memory, locked for as long as the object lives.
class LockedGlobalBlock {
 public:
  LockedGlobalBlock(UINT flags, SIZE_T bytes)
      : handle_(::GlobalAlloc(flags, bytes)), data_(handle_ ? ::GlobalLock(handle_) : nullptr) {}
  ~LockedGlobalBlock() {
    if (data_) ::GlobalUnlock(handle_);
    if (handle_) ::GlobalFree(handle_);
  }
  LockedGlobalBlock(const LockedGlobalBlock&) = delete;
  LockedGlobalBlock& operator=(const LockedGlobalBlock&) = delete;

  void* data() const { return data_; }
  explicit operator bool() const { return data_ != nullptr; }

 private:
  HGLOBAL handle_;
  void* data_;
};

// The 32-bit handle form back to a handle: USER and GDI handles are
// sign-extended on 64-bit Windows.
template <typename Handle>
Handle HandleFrom(std::int32_t value) {
  return reinterpret_cast<Handle>(static_cast<LONG_PTR>(value));
}

// An empty text reaches the platform as no text, so that the dialog uses
// its default (title, folder, extension).
const wchar_t* TextOrNone(const std::wstring& text) {
  return text.empty() ? nullptr : text.c_str();
}

bool FitsInt16(std::int32_t value) {
  return value >= std::numeric_limits<std::int16_t>::min() &&
         value <= std::numeric_limits<std::int16_t>::max();
}

// The print dialog's page and copy fields are 16-bit values with a sign.
std::int32_t FromPrintField(WORD field) {
  return static_cast<std::int16_t>(field);
}

// A dialog method ends quietly at its first failure (such as a buffer that
// cannot be had); only the cancel error the caller asked for goes through.
template <typename Body>
void StopAtFirstFailure(Body body) {
  try {
    body();
  } catch (const CommonDialogError&) {
    throw;
  } catch (const std::exception&) {
  }
}

}  // namespace

CommonDialogError::CommonDialogError(long number)
    : std::runtime_error("common dialog error " + std::to_string(number)), number_(number) {}

void CommonDialog::ShowOpen() {
  ShowFileDialog(FileDialogKind::kOpen);
}

void CommonDialog::ShowSave() {
  ShowFileDialog(FileDialogKind::kSave);
}

void CommonDialog::ShowFileDialog(FileDialogKind kind) {
  apiReturn_ = 0;
  extendedError_ = 0;
  StopAtFirstFailure([&] {
    const auto size =
        static_cast<std::size_t>(maxFileSize_ >= 1 ? maxFileSize_ : kDefaultMaxFileSize);
    std::wstring fileBuffer = FileNameBuffer(Wide(filename_), size);
    std::wstring titleBuffer = FileNameBuffer(Wide(fileTitle_), size);
    const std::wstring filter = ConvertFilter(Wide(filter_));
    // The dialogs keep folders in MAX_PATH buffers of their own.
    const std::wstring initDir = initDir_.empty() ? std::wstring() : ShellPath(initDir_);
    const std::wstring title = Wide(dialogTitle_);
    const std::wstring defaultExt = Wide(defaultExt_);

    OPENFILENAMEW record{};
    // The original layout, without the fields later systems appended.
    record.lStructSize = OPENFILENAME_SIZE_VERSION_400W;
    record.hwndOwner = HandleFrom<HWND>(owner_);
    record.lpstrFilter = filter.c_str();
    record.nFilterIndex = static_cast<DWORD>(filterIndex_);
    record.lpstrFile = fileBuffer.data();
    record.nMaxFile = static_cast<DWORD>(size);
    record.lpstrFileTitle = titleBuffer.data();
    record.nMaxFileTitle = static_cast<DWORD>(size);
    record.lpstrInitialDir = TextOrNone(initDir);
    record.lpstrTitle = TextOrNone(title);
    record.Flags = static_cast<DWORD>(flags_);
    record.lpstrDefExt = TextOrNone(defaultExt);
    lastFileDialog_ = {filter + L'\0', fileBuffer, titleBuffer, record.nMaxFile,
                       record.nMaxFileTitle};

    BOOL result = 0;
    switch (kind) {
      case FileDialogKind::kOpen: result = ::GetOpenFileNameW(&record); break;
      case FileDialogKind::kSave: result = ::GetSaveFileNameW(&record); break;
      default: return;
    }
    apiReturn_ = result;
    cancelled_ = false;
    if (result == 0) {
      cancelled_ = true;  // never an error, whatever CancelError says
    } else if (result == kConfirmed) {
      filename_ = Utf8(CutAtNul(fileBuffer));
      fileTitle_ = Utf8(CutAtNul(titleBuffer));
    } else {
      extendedError_ = static_cast<std::int32_t>(::CommDlgExtendedError());
    }
  });
}

void CommonDialog::ShowColor() {
  action_ = kActionColor;
  apiReturn_ = 0;
  extendedError_ = 0;
  StopAtFirstFailure([&] { RunColorDialog(); });
}

void CommonDialog::RunColorDialog() {
  LockedGlobalBlock customColours(kMovableZeroed, kCustomColoursBytes);
  if (!customColours) return;
  auto* custom = static_cast<COLORREF*>(customColours.data());
  std::fill_n(custom, kCustomColourCount, kWhite);

  CHOOSECOLORW record{};
  record.lStructSize = sizeof record;
  record.hwndOwner = HandleFrom<HWND>(owner_);
  record.rgbResult = static_cast<COLORREF>(color_);
  record.lpCustColors = custom;
  record.Flags = static_cast<DWORD>(flags_);
  cancelled_ = false;
  const BOOL result = ::ChooseColorW(&record);
  apiReturn_ = result;
  if (result == 0) {
    if (cancelError_) cancelled_ = true;
  } else if (result == kConfirmed) {
    color_ = static_cast<std::int32_t>(record.rgbResult);
  } else {
    extendedError_ = static_cast<std::int32_t>(::CommDlgExtendedError());
  }
}

void CommonDialog::ShowFont() {
  action_ = kActionFont;
  apiReturn_ = 0;
  extendedError_ = 0;
  StopAtFirstFailure([&] { RunFontDialog(); });
}

void CommonDialog::RunFontDialog() {
  LOGFONTW font{};
  if (fontBold_) font.lfWeight = kBoldWeight;
  if (fontItalic_) font.lfItalic = kEffectOn;
  if (fontUnderline_) font.lfUnderline = kEffectOn;
  if (fontStrikethru_) font.lfStrikeOut = kEffectOn;
  LockedGlobalBlock block(kMovableZeroed, kFontBlockBytes);
  if (!block) return;
  std::memcpy(block.data(), &font, sizeof font);

  const std::int64_t tenths = fontSize_ * kTenthsPerPoint;
  if (tenths < std::numeric_limits<INT>::min() || tenths > std::numeric_limits<INT>::max()) {
    return;
  }
  CHOOSEFONTW record{};
  record.lStructSize = sizeof record;
  record.lpLogFont = static_cast<LOGFONTW*>(block.data());
  record.iPointSize = static_cast<INT>(tenths);
  record.Flags = kFontDialogFlags;
  record.rgbColors = static_cast<COLORREF>(color_);
  const BOOL result = ::ChooseFontW(&record);
  apiReturn_ = result;
  if (result == 0) {
    if (cancelError_) throw CommonDialogError(kErrCancel);
  } else if (result == kConfirmed) {
    std::memcpy(&font, block.data(), sizeof font);
    color_ = static_cast<std::int32_t>(record.rgbColors);
    fontBold_ = font.lfWeight >= kBoldWeight;
    fontItalic_ = font.lfItalic == kEffectOn;
    fontUnderline_ = font.lfUnderline == kEffectOn;
    fontStrikethru_ = font.lfStrikeOut == kEffectOn;
    fontName_ = FaceNameToText(font.lfFaceName, LF_FACESIZE);
    fontSize_ = TenthsToPoints(record.iPointSize);
  } else {
    extendedError_ = static_cast<std::int32_t>(::CommDlgExtendedError());
  }
}

void CommonDialog::ShowPrinter() {
  action_ = kActionPrinter;
  apiReturn_ = 0;
  extendedError_ = 0;
  StopAtFirstFailure([&] { RunPrintDialog(); });
}

void CommonDialog::RunPrintDialog() {
  for (std::int32_t value : {fromPage_, toPage_, min_, max_, copies_}) {
    if (!FitsInt16(value)) return;
  }
  PRINTDLGW record{};
  record.lStructSize = sizeof record;
  record.hDC = HandleFrom<HDC>(owner_);
  record.Flags = static_cast<DWORD>(flags_);
  record.nFromPage = static_cast<WORD>(fromPage_);
  record.nToPage = static_cast<WORD>(toPage_);
  record.nMinPage = static_cast<WORD>(min_);
  record.nMaxPage = static_cast<WORD>(max_);
  record.nCopies = static_cast<WORD>(copies_);
  const BOOL result = ::PrintDlgW(&record);
  apiReturn_ = result;
  // The dialog allocates the printer's settings and, when asked, a context;
  // the class hands out neither, so they go back at once.
  if (record.hDevMode) ::GlobalFree(record.hDevMode);
  if (record.hDevNames) ::GlobalFree(record.hDevNames);
  if (result == kConfirmed && (record.Flags & kPrinterContextFlags) && record.hDC &&
      record.hDC != HandleFrom<HDC>(owner_)) {
    ::DeleteDC(record.hDC);
  }
  if (result == 0) {
    if (cancelError_) throw CommonDialogError(kErrCancel);
  } else if (result == kConfirmed) {
    fromPage_ = FromPrintField(record.nFromPage);
    toPage_ = FromPrintField(record.nToPage);
    min_ = FromPrintField(record.nMinPage);
    max_ = FromPrintField(record.nMaxPage);
    copies_ = FromPrintField(record.nCopies);
  } else {
    extendedError_ = static_cast<std::int32_t>(::CommDlgExtendedError());
  }
}

void CommonDialog::ShowHelp() {
  action_ = kActionHelp;
  apiReturn_ = 0;
  extendedError_ = 0;
  const std::wstring helpFile = Wide(helpFile_);
  apiReturn_ = ::WinHelpW(HandleFrom<HWND>(owner_), TextOrNone(helpFile),
                          static_cast<UINT>(helpCommand_), 0);
  extendedError_ = static_cast<std::int32_t>(::CommDlgExtendedError());
}

}  // namespace platform
