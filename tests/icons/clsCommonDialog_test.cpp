// The common dialogs shown for real and driven from a second thread, as a
// user would: typing into them, choosing, confirming and cancelling.
#include "icons/clsCommonDialog.h"

#include <gtest/gtest.h>

#include <colordlg.h>
#include <commdlg.h>
#include <dlgs.h>

#include "icons/CommonDialogText.h"
#include "support/DialogWatcher.h"
#include "support/TestSupport.h"

namespace {

using namespace std::string_literals;
using icons::clsCommonDialog;
using icons::CommonDialogError;
using testing_support::ControlText;
using testing_support::DialogWatcher;
using testing_support::PressDialogButton;

// Controls of the dialogs. The explorer-style file dialog keeps its file
// name box (cmb13) as an extended combo box whose text can be set directly.
constexpr int kFileNameBox = cmb13;
constexpr int kFileTypeList = cmb1;
constexpr int kLookInList = cmb2;
constexpr int kFontFaceList = cmb1;
constexpr int kFontSizeList = cmb3;
constexpr int kStrikeoutBox = chx1;
constexpr int kUnderlineBox = chx2;

// As the browse button sets them.
constexpr std::int32_t kBrowseFlags =
    OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
constexpr char kChosenName[] = "Folder Art.ico";

void TypeAndConfirm(HWND dialog, const std::string& path) {
  ::SetDlgItemTextA(dialog, kFileNameBox, path.c_str());
  PressDialogButton(dialog, IDOK);
}

class FileDialog : public ::testing::Test {
 protected:
  FileDialog() {
    testing_support::WriteWholeFile(chosen_, "icon");
    dialog_.DialogTitle("Choose an icon file");
    dialog_.Filter("Icon files|*.ico|All files|*.*");
    dialog_.FilterIndex(2);
    dialog_.Flags(kBrowseFlags);
    dialog_.InitDir(folder_.Path());
  }
  testing_support::ScratchFolder folder_;
  const std::string chosen_ = folder_ / kChosenName;
  clsCommonDialog dialog_;
};

TEST_F(FileDialog, ATypedPathComesBackWithItsTitleAndWithoutTheBlanks) {
  std::string typeList, lookIn;
  {
    DialogWatcher watcher([&](HWND dialog) {
      typeList = ControlText(dialog, kFileTypeList);
      lookIn = ControlText(dialog, kLookInList);
      TypeAndConfirm(dialog, chosen_);
    });
    dialog_.ShowOpen();
    ASSERT_TRUE(watcher.Seen());
    EXPECT_EQ(watcher.Caption(), "Choose an icon file");
  }
  EXPECT_EQ(typeList, "All files");
  EXPECT_EQ(lookIn, folder_.Path().substr(folder_.Path().rfind('\\') + 1));

  EXPECT_FALSE(dialog_.Cancelled());
  EXPECT_EQ(dialog_.APIReturn(), 1);
  EXPECT_EQ(dialog_.filename(), chosen_);
  EXPECT_EQ(dialog_.FileTitle(), kChosenName);
  EXPECT_EQ(dialog_.FilterIndex(), 2);

  const icons::FileDialogRequest& request = dialog_.LastFileDialog();
  EXPECT_EQ(request.maxFile, 255u);
  EXPECT_EQ(request.maxFileTitle, 255u);
  EXPECT_EQ(request.fileBuffer, std::string(254, ' ') + '\0');
  EXPECT_EQ(request.titleBuffer, std::string(254, ' ') + '\0');
  EXPECT_EQ(request.filter, "Icon files\0*.ico\0All files\0*.*\0\0"s);
}

TEST_F(FileDialog, MaxFileSizeSetsBothBuffers) {
  dialog_.MaxFileSize(100);
  dialog_.filename("old.ico");
  {
    DialogWatcher watcher([&](HWND dialog) { TypeAndConfirm(dialog, chosen_); });
    dialog_.ShowOpen();
    ASSERT_TRUE(watcher.Seen());
  }
  const icons::FileDialogRequest& request = dialog_.LastFileDialog();
  EXPECT_EQ(request.maxFile, 100u);
  EXPECT_EQ(request.maxFileTitle, 100u);
  EXPECT_EQ(request.fileBuffer, "old.ico" + std::string(92, ' ') + '\0');
  EXPECT_EQ(request.titleBuffer, std::string(99, ' ') + '\0');
  EXPECT_EQ(dialog_.filename(), chosen_);
  EXPECT_EQ(dialog_.FileTitle(), kChosenName);
}

TEST_F(FileDialog, CancellingKeepsTheNamesAndRaisesNothing) {
  dialog_.filename("C:\\earlier\\choice.ico");
  dialog_.FileTitle("choice.ico");
  dialog_.CancelError(true);
  {
    DialogWatcher watcher([](HWND dialog) { PressDialogButton(dialog, IDCANCEL); });
    EXPECT_NO_THROW(dialog_.ShowOpen());
    ASSERT_TRUE(watcher.Seen());
  }
  EXPECT_TRUE(dialog_.Cancelled());
  EXPECT_EQ(dialog_.APIReturn(), 0);
  EXPECT_EQ(dialog_.ExtendedError(), 0);
  EXPECT_EQ(dialog_.filename(), "C:\\earlier\\choice.ico");
  EXPECT_EQ(dialog_.FileTitle(), "choice.ico");

  // The next confirmed dialog clears the mark.
  {
    DialogWatcher watcher([&](HWND dialog) { TypeAndConfirm(dialog, chosen_); });
    dialog_.ShowOpen();
  }
  EXPECT_FALSE(dialog_.Cancelled());
}

TEST_F(FileDialog, SaveAddsTheDefaultExtension) {
  dialog_.Flags(OFN_EXPLORER | OFN_HIDEREADONLY);
  dialog_.DefaultExt("ico");
  {
    DialogWatcher watcher([&](HWND dialog) { TypeAndConfirm(dialog, folder_ / "new art"); });
    dialog_.ShowSave();
    ASSERT_TRUE(watcher.Seen());
  }
  EXPECT_EQ(dialog_.filename(), folder_ / "new art.ico");
  EXPECT_EQ(dialog_.FileTitle(), "new art.ico");
}

TEST(ColorDialog, TheMixedColourComesBack) {
  clsCommonDialog dialog;
  dialog.Flags(CC_RGBINIT | CC_FULLOPEN);
  dialog.Color(0x336699);
  {
    DialogWatcher watcher([](HWND dialog) {
      ::SetDlgItemInt(dialog, COLOR_RED, 0x12, FALSE);
      ::SetDlgItemInt(dialog, COLOR_GREEN, 0x34, FALSE);
      ::SetDlgItemInt(dialog, COLOR_BLUE, 0x56, FALSE);
      PressDialogButton(dialog, IDOK);
    });
    dialog.ShowColor();
    ASSERT_TRUE(watcher.Seen());
  }
  EXPECT_EQ(dialog.action(), clsCommonDialog::kActionColor);
  EXPECT_EQ(dialog.APIReturn(), 1);
  EXPECT_EQ(dialog.Color(), 0x563412);
  EXPECT_FALSE(dialog.Cancelled());
}

TEST(ColorDialog, CancellingMarksCancelledOnlyWithCancelError) {
  clsCommonDialog dialog;
  dialog.Color(0x336699);
  for (bool cancelError : {false, true}) {
    dialog.CancelError(cancelError);
    dialog.Cancelled(!cancelError);
    DialogWatcher watcher([](HWND dialog) { PressDialogButton(dialog, IDCANCEL); });
    EXPECT_NO_THROW(dialog.ShowColor());
    EXPECT_EQ(dialog.Cancelled(), cancelError);
    EXPECT_EQ(dialog.Color(), 0x336699);
  }
}

TEST(FontDialog, TheChosenFaceSizeAndEffectsComeBack) {
  clsCommonDialog dialog;
  dialog.FontBold(true);
  std::string face;
  {
    DialogWatcher watcher([&](HWND dialog) {
      face = ControlText(dialog, kFontFaceList);
      HWND sizes = ::GetDlgItem(dialog, kFontSizeList);
      ::SendMessageA(sizes, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                     reinterpret_cast<LPARAM>("12"));
      ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(kFontSizeList, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(sizes));
      ::SendDlgItemMessageA(dialog, kUnderlineBox, BM_CLICK, 0, 0);
      ::SendDlgItemMessageA(dialog, kStrikeoutBox, BM_CLICK, 0, 0);
      PressDialogButton(dialog, IDOK);
    });
    dialog.ShowFont();
    ASSERT_TRUE(watcher.Seen());
  }
  EXPECT_EQ(dialog.action(), clsCommonDialog::kActionFont);
  EXPECT_EQ(dialog.APIReturn(), 1);
  EXPECT_FALSE(face.empty());
  EXPECT_EQ(dialog.FontName(), face);
  EXPECT_EQ(dialog.FontSize(), 12);
  EXPECT_TRUE(dialog.FontUnderline());
  EXPECT_TRUE(dialog.FontStrikethru());
  EXPECT_FALSE(dialog.FontBold()) << "the dialog's regular style replaces it";
  EXPECT_FALSE(dialog.FontItalic());
}

TEST(FontDialog, CancellingRaises2001OnlyWithCancelErrorAndLeavesCancelled) {
  clsCommonDialog dialog;
  dialog.Cancelled(true);
  {
    DialogWatcher watcher([](HWND dialog) { PressDialogButton(dialog, IDCANCEL); });
    EXPECT_NO_THROW(dialog.ShowFont());
  }
  EXPECT_TRUE(dialog.Cancelled());

  dialog.CancelError(true);
  dialog.Cancelled(false);
  DialogWatcher watcher([](HWND dialog) { PressDialogButton(dialog, IDCANCEL); });
  try {
    dialog.ShowFont();
    ADD_FAILURE() << "no error raised";
  } catch (const CommonDialogError& error) {
    EXPECT_EQ(error.Number(), icons::kErrCancel);
  }
  EXPECT_FALSE(dialog.Cancelled());
  EXPECT_EQ(dialog.action(), clsCommonDialog::kActionFont);
}

// Without a printer, Wine tells so in a message box and the dialog gives
// nothing back; with one, the dialog is cancelled. Either way it is 0.
TEST(PrinterDialog, NothingChosenRaises2001WithCancelError) {
  clsCommonDialog dialog;
  dialog.CancelError(true);
  dialog.FromPage(1);
  dialog.Max(9);
  dialog.Copies(1);
  DialogWatcher watcher([](HWND dialog) { PressDialogButton(dialog, IDCANCEL); });
  EXPECT_THROW(dialog.ShowPrinter(), CommonDialogError);
  EXPECT_TRUE(watcher.Seen());
  EXPECT_EQ(dialog.action(), clsCommonDialog::kActionPrinter);
}

TEST(PrinterDialog, APageBeyondSixteenBitsShowsNoDialog) {
  clsCommonDialog dialog;
  dialog.CancelError(true);
  dialog.FromPage(40000);
  DialogWatcher watcher([](HWND dialog) { PressDialogButton(dialog, IDCANCEL); });
  EXPECT_NO_THROW(dialog.ShowPrinter());
  EXPECT_FALSE(watcher.Seen());
  EXPECT_EQ(dialog.action(), clsCommonDialog::kActionPrinter);
  EXPECT_EQ(dialog.APIReturn(), 0);
  EXPECT_EQ(dialog.FromPage(), 40000);
}

// Wine's font dialog offers whole sizes only, so the rounding of a size in
// tenths is checked on its own.
TEST(FontDialog, HalfPointSizesRoundToTheEvenNumber) {
  EXPECT_EQ(icons::TenthsToPoints(105), 10);
  EXPECT_EQ(icons::TenthsToPoints(115), 12);
  EXPECT_EQ(icons::TenthsToPoints(106), 11);
  EXPECT_EQ(icons::TenthsToPoints(-105), -10);
}

}  // namespace
