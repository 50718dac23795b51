// The file dialog shown for real and answered from a second thread, as a
// user would; the other dialogs only as far as the class's own rules go.
#include "icons/clsCommonDialog.h"

#include <gtest/gtest.h>

#include <commdlg.h>
#include <dlgs.h>

#include "icons/CommonDialogText.h"
#include "support/DialogAnswerer.h"
#include "support/TestSupport.h"

namespace {

using namespace std::string_literals;
using icons::clsCommonDialog;
using testing_support::DialogAnswerer;
using testing_support::PressButton;

constexpr char kChosenName[] = "Folder Art.ico";

class FileDialog : public ::testing::Test {
 protected:
  FileDialog() {
    testing_support::WriteWholeFile(chosen_, "icon");
    dialog_.DialogTitle("Choose an icon file");
    dialog_.Filter("Icon files|*.ico|All files|*.*");
    dialog_.FilterIndex(2);
    // As the browse button sets them.
    dialog_.Flags(OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY);
    dialog_.InitDir(folder_.Path());
  }
  // Opens the dialog and types the chosen file's path into its name box.
  void ChooseTheFile() {
    DialogAnswerer user([this](HWND dialog) {
      ::SetDlgItemTextA(dialog, cmb13, chosen_.c_str());
      PressButton(dialog, IDOK);
    });
    dialog_.ShowOpen();
    ASSERT_EQ(user.Seen().size(), 1u);
    EXPECT_EQ(user.Seen()[0].title, "Choose an icon file");
  }
  testing_support::ScratchFolder folder_;
  const std::string chosen_ = folder_ / kChosenName;
  clsCommonDialog dialog_;
};

TEST_F(FileDialog, AChosenPathComesBackWithoutTheBufferBlanks) {
  ChooseTheFile();
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
  ChooseTheFile();
  const icons::FileDialogRequest& request = dialog_.LastFileDialog();
  EXPECT_EQ(request.maxFile, 100u);
  EXPECT_EQ(request.maxFileTitle, 100u);
  EXPECT_EQ(request.fileBuffer, "old.ico" + std::string(92, ' ') + '\0');
  EXPECT_EQ(dialog_.filename(), chosen_);
}

TEST_F(FileDialog, CancellingKeepsTheNamesAndRaisesNothingUntilTheNextChoice) {
  dialog_.filename("C:\\earlier\\choice.ico");
  dialog_.FileTitle("choice.ico");
  dialog_.CancelError(true);
  {
    DialogAnswerer user(IDCANCEL);
    EXPECT_NO_THROW(dialog_.ShowOpen());
    EXPECT_EQ(user.Seen().size(), 1u);
  }
  EXPECT_TRUE(dialog_.Cancelled());
  EXPECT_EQ(dialog_.APIReturn(), 0);
  EXPECT_EQ(dialog_.filename(), "C:\\earlier\\choice.ico");
  EXPECT_EQ(dialog_.FileTitle(), "choice.ico");
  ChooseTheFile();
  EXPECT_FALSE(dialog_.Cancelled());
}

// Cancelled colour dialogs mark Cancelled under CancelError; cancelled font
// and printer dialogs raise 2001 instead and leave the mark alone. Without
// a printer, Wine says so in a message box and the dialog gives nothing back.
TEST(OtherDialogs, CancellingFollowsCancelError) {
  const struct {
    void (clsCommonDialog::*show)();
    bool marks, raises;
  } kinds[] = {{&clsCommonDialog::ShowColor, true, false},
               {&clsCommonDialog::ShowFont, false, true},
               {&clsCommonDialog::ShowPrinter, false, true}};
  for (const auto& kind : kinds) {
    for (bool cancelError : {false, true}) {
      clsCommonDialog dialog;
      dialog.Color(0x336699);
      dialog.CancelError(cancelError);
      dialog.Cancelled(!cancelError);
      DialogAnswerer user(IDCANCEL);
      long raised = 0;
      try {
        (dialog.*kind.show)();
      } catch (const icons::CommonDialogError& error) {
        raised = error.Number();
      }
      const int row = static_cast<int>(&kind - kinds);
      EXPECT_EQ(raised, cancelError && kind.raises ? icons::kErrCancel : 0) << row;
      EXPECT_EQ(dialog.Cancelled(), kind.marks ? cancelError : !cancelError) << row;
      EXPECT_EQ(dialog.Color(), 0x336699) << row;
      EXPECT_FALSE(user.Seen().empty()) << row;
    }
  }
}

TEST(OtherDialogs, APrinterPageBeyondSixteenBitsShowsNoDialog) {
  clsCommonDialog dialog;
  dialog.CancelError(true);
  dialog.FromPage(40000);
  DialogAnswerer user(IDCANCEL);
  EXPECT_NO_THROW(dialog.ShowPrinter());
  EXPECT_TRUE(user.Seen().empty());
  EXPECT_EQ(dialog.FromPage(), 40000);
}

// Wine's font dialog offers whole sizes only, so the rounding of a size in
// tenths is checked on its own.
TEST(OtherDialogs, HalfPointSizesRoundToTheEvenNumber) {
  EXPECT_EQ(icons::TenthsToPoints(105), 10);
  EXPECT_EQ(icons::TenthsToPoints(115), 12);
  EXPECT_EQ(icons::TenthsToPoints(106), 11);
  EXPECT_EQ(icons::TenthsToPoints(-105), -10);
}

}  // namespace
