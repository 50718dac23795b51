// The program's font is in the font table, and its file beside the program,
// exactly between installation and removal. (Wine keeps a font added by one
// process out of the others' font lists, so this is seen from inside.)
#include <gtest/gtest.h>

#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "support/TestSupport.h"
#include "ui/modFuentes.h"

namespace {

using testing_support::PathExists;

bool FaceInFontList() {
  LOGFONTA wanted{};
  wanted.lfCharSet = DEFAULT_CHARSET;
  lstrcpynA(wanted.lfFaceName, ui::kProgramFontFace, LF_FACESIZE);
  bool found = false;
  HDC screen = ::GetDC(nullptr);
  ::EnumFontFamiliesExA(
      screen, &wanted,
      [](const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM data) -> int {
        *reinterpret_cast<bool*>(data) = true;
        return 0;
      },
      reinterpret_cast<LPARAM>(&found), 0);
  ::ReleaseDC(nullptr, screen);
  return found;
}

class ProgramFontTest : public ::testing::Test {
 protected:
  void SetUp() override { frame::programFolder = folder_.Path() + "\\"; }
  void TearDown() override {
    form_.Unload();
    frame::ReleaseLibraries();
  }
  bool Install(const std::string& library) {
    frame::PictureLibrary().DllName(library);
    form_.Load();
    return ui::InstallProgramFont(form_);
  }
  std::string FontFile() const { return folder_ / ui::kProgramFontFile; }

  testing_support::ScratchFolder folder_;
  toolkit::Form form_{"frmFontHost", 1500, 1500};
};

TEST_F(ProgramFontTest, IsInTheFontListAndBesideTheProgramUntilRemoved) {
  ASSERT_FALSE(FaceInFontList());
  EXPECT_TRUE(Install(testing_support::DistFolder() + "Resource.DLL"));
  EXPECT_TRUE(FaceInFontList());
  EXPECT_TRUE(PathExists(FontFile()));

  ui::RemoveProgramFont();
  EXPECT_FALSE(FaceInFontList());
  EXPECT_FALSE(PathExists(FontFile()));
  ui::RemoveProgramFont();  // a second removal finds nothing and does no harm
}

}  // namespace
