// The system's common dialogs behind properties and methods: open and save
// file, colour, font, printer and the help viewer. Set properties, call one
// of the six dialog methods, read the results back from the properties.
//
// A dialog method stops at its first failure and returns quietly; the
// properties then hold what had been set up to that point. The one error
// that leaves the class is CommonDialogError with kErrCancel, thrown by
// ShowFont and ShowPrinter when their dialog gives nothing back while
// CancelError is set.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace platform {

inline constexpr long kErrCancel = 2001;

class CommonDialogError : public std::runtime_error {
 public:
  explicit CommonDialogError(long number);
  long Number() const noexcept { return number_; }

 private:
  long number_;
};

// What the last file dialog was handed, for tests and diagnostics.
struct FileDialogRequest {
  std::wstring filter;       // the list as passed, both closing NULs included
  std::wstring fileBuffer;   // the file-name buffer before the call, NUL included
  std::wstring titleBuffer;  // the file-title buffer before the call
  DWORD maxFile = 0;         // buffer sizes the dialog was told, in characters
  DWORD maxFileTitle = 0;
};

class CommonDialog {
 public:
  // Values of `action` after the colour, font, printer and help methods.
  static constexpr std::int16_t kActionColor = 3;
  static constexpr std::int16_t kActionFont = 4;
  static constexpr std::int16_t kActionPrinter = 5;
  static constexpr std::int16_t kActionHelp = 6;
  // File-name buffer size when MaxFileSize is below 1.
  static constexpr std::int32_t kDefaultMaxFileSize = 255;

  // The members follow the order of the class's interface slots; the get and
  // set of one property are adjacent. Everything starts as 0, false or empty.
  const std::string& Filter() const { return filter_; }
  void ShowColor();
  void ShowFont();
  void ShowHelp();
  void ShowOpen();
  void ShowPrinter();
  void ShowSave();
  const std::string& FileName() const { return filename_; }
  void FileName(std::string value) { filename_ = std::move(value); }
  void Filter(std::string value) { filter_ = std::move(value); }
  std::int16_t Action() const { return action_; }
  std::int16_t FilterIndex() const { return filterIndex_; }
  void FilterIndex(std::int16_t value) { filterIndex_ = value; }
  bool CancelError() const { return cancelError_; }
  void CancelError(bool value) { cancelError_ = value; }
  std::int32_t Color() const { return color_; }
  void Color(std::int32_t value) { color_ = value; }
  std::int32_t Copies() const { return copies_; }
  void Copies(std::int32_t value) { copies_ = value; }
  const std::string& DefaultExt() const { return defaultExt_; }
  void DefaultExt(std::string value) { defaultExt_ = std::move(value); }
  const std::string& DialogTitle() const { return dialogTitle_; }
  void DialogTitle(std::string value) { dialogTitle_ = std::move(value); }
  std::int32_t Flags() const { return flags_; }
  void Flags(std::int32_t value) { flags_ = value; }
  bool FontBold() const { return fontBold_; }
  void FontBold(bool value) { fontBold_ = value; }
  bool FontItalic() const { return fontItalic_; }
  void FontItalic(bool value) { fontItalic_ = value; }
  const std::string& FontName() const { return fontName_; }
  void FontName(std::string value) { fontName_ = std::move(value); }
  std::int32_t FontSize() const { return fontSize_; }
  void FontSize(std::int32_t value) { fontSize_ = value; }
  bool FontStrikethru() const { return fontStrikethru_; }
  void FontStrikethru(bool value) { fontStrikethru_ = value; }
  bool FontUnderline() const { return fontUnderline_; }
  void FontUnderline(bool value) { fontUnderline_ = value; }
  std::int32_t FromPage() const { return fromPage_; }
  void FromPage(std::int32_t value) { fromPage_ = value; }
  // A window handle (the owner of the file and colour dialogs and of the
  // help viewer) in its 32-bit form; the print dialog takes it as its device
  // context. USER and GDI handles keep to 32 bits on 64-bit Windows.
  std::int32_t OwnerHandle() const { return owner_; }
  void OwnerHandle(std::int32_t value) { owner_ = value; }
  std::int32_t HelpCommand() const { return helpCommand_; }
  void HelpCommand(std::int32_t value) { helpCommand_ = value; }
  const std::string& HelpContext() const { return helpContext_; }
  void HelpContext(std::string value) { helpContext_ = std::move(value); }
  const std::string& HelpFile() const { return helpFile_; }
  void HelpFile(std::string value) { helpFile_ = std::move(value); }
  const std::string& HelpKey() const { return helpKey_; }
  void HelpKey(std::string value) { helpKey_ = std::move(value); }
  const std::string& InitDir() const { return initDir_; }
  void InitDir(std::string value) { initDir_ = std::move(value); }
  std::int32_t Max() const { return max_; }
  void Max(std::int32_t value) { max_ = value; }
  std::int32_t MaxFileSize() const { return maxFileSize_; }
  void MaxFileSize(std::int32_t value) { maxFileSize_ = value; }
  std::int32_t Min() const { return min_; }
  void Min(std::int32_t value) { min_ = value; }
  // Kept for the caller and handed back as the same reference.
  const std::shared_ptr<void>& Object() const { return object_; }
  void Object(std::shared_ptr<void> value) { object_ = std::move(value); }
  const std::string& FileTitle() const { return fileTitle_; }
  void FileTitle(std::string value) { fileTitle_ = std::move(value); }
  std::int32_t APIReturn() const { return apiReturn_; }
  std::int32_t ExtendedError() const { return extendedError_; }
  bool Cancelled() const { return cancelled_; }
  void Cancelled(bool value) { cancelled_ = value; }

  const FileDialogRequest& LastFileDialog() const { return lastFileDialog_; }

 private:
  enum class FileDialogKind { kOpen = 1, kSave = 2 };
  void ShowFileDialog(FileDialogKind kind);
  void RunColorDialog();
  void RunFontDialog();
  void RunPrintDialog();

  std::string filter_;
  std::string filename_;
  std::int16_t action_ = 0;
  std::int16_t filterIndex_ = 0;
  bool cancelError_ = false;
  std::int32_t color_ = 0;
  std::int32_t copies_ = 0;
  std::string defaultExt_;
  std::string dialogTitle_;
  std::int32_t flags_ = 0;
  bool fontBold_ = false;
  bool fontItalic_ = false;
  std::string fontName_;
  std::int32_t fontSize_ = 0;
  bool fontStrikethru_ = false;
  bool fontUnderline_ = false;
  std::int32_t fromPage_ = 0;
  std::int32_t owner_ = 0;
  std::int32_t helpCommand_ = 0;
  std::string helpContext_;
  std::string helpFile_;
  std::string helpKey_;
  std::string initDir_;
  std::int32_t max_ = 0;
  std::int32_t maxFileSize_ = 0;
  std::int32_t min_ = 0;
  std::shared_ptr<void> object_;
  std::string fileTitle_;
  std::int32_t apiReturn_ = 0;
  std::int32_t extendedError_ = 0;
  bool cancelled_ = false;
  // The last page of the print dialog, not reachable from outside.
  std::int32_t toPage_ = 0;
  FileDialogRequest lastFileDialog_;
};

}  // namespace platform
