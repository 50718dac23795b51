// The skinned buttons' frames and the program's own font, seen from inside
// the process where the end-to-end tests cannot look.
#include <gtest/gtest.h>

#include "support/TestSupport.h"
#include "toolkit/Form.h"
#include "ui/Drawing.h"
#include "ui/ProgramFont.h"
#include "ui/SkinnedButton.h"

namespace {

using toolkit::Screen::PixelsToTwipsX;
using toolkit::Screen::PixelsToTwipsY;

constexpr COLORREF kSkin = RGB(210, 190, 150);

class ButtonForm : public toolkit::Form {
 public:
  ButtonForm() : Form("frmButtons", 6000, 3000) {}
  toolkit::PictureBox* back = nullptr;
  toolkit::PictureBox* face = nullptr;

 protected:
  void CreateElements() override {
    back = &AddPictureBox("picBack", {0, 0, PixelsToTwipsX(200), PixelsToTwipsY(40)}, 30);
    face = &AddPictureBox("picAplicar", {PixelsToTwipsX(20), PixelsToTwipsY(60),
                                         PixelsToTwipsX(80), PixelsToTwipsY(25)}, 31);
    back->SetAutoRedraw(true);
    back->SetBackColor(kSkin);
    face->SetAutoRedraw(true);
  }
  void OnLoad() override { SetScaleMode(toolkit::ScaleMode::kPixels); }
};

class SkinnedButtonTest : public ::testing::Test {
 protected:
  void SetUp() override { form_.Load(); }
  void Send(UINT message, WPARAM keys = 0) {
    ::SendMessageA(form_.face->Hwnd(), message, keys, MAKELPARAM(10, 10));
  }
  // Corners and edge middles of the face: 'w' white, 'g' grey, '.' skin.
  std::string Frame() const {
    int width = 0;
    const auto pixels = testing_support::ReadPixels(
        static_cast<HBITMAP>(form_.face->Image().Handle()), width);
    std::string seen;
    for (POINT p : {POINT{0, 0}, POINT{79, 0}, POINT{0, 24}, POINT{79, 24}, POINT{40, 0},
                    POINT{40, 24}, POINT{40, 12}}) {
      const COLORREF c = pixels[p.y * width + p.x];
      seen += c == ui::kHighlightColour ? 'w' : c == ui::kShadowColour ? 'g' : c == kSkin ? '.' : '?';
    }
    return seen;
  }
  ButtonForm form_;
  std::vector<std::string> log_;
};

TEST_F(SkinnedButtonTest, MainWindowButtonRisesSinksAndStaysSunkUntilItsFaceIsReset) {
  ui::SkinnedButton button(*form_.face, {false, [this] { log_.push_back("press"); },
                                         [this] { log_.push_back("click"); }});
  button.ResetFace(*form_.back);
  EXPECT_EQ(Frame(), ".......");
  Send(WM_MOUSEMOVE);
  EXPECT_EQ(Frame(), "wwwgwg.") << "raised: white top and left";
  Send(WM_LBUTTONDOWN, MK_LBUTTON);
  Send(WM_LBUTTONUP);
  EXPECT_EQ(Frame(), "gwwwgw.") << "sunken, and it stays so after the release";
  EXPECT_EQ(log_, (std::vector<std::string>{"press", "click"}));
  Send(WM_MOUSEMOVE);
  EXPECT_EQ(Frame(), "gwwwgw.") << "the hover flag is still set: no new frame";
  button.ClearHover();
  button.ResetFace(*form_.back);
  Send(WM_MOUSEMOVE);
  EXPECT_EQ(Frame(), "wwwgwg.");
}

// Wine keeps a font added by one process out of the others' font lists, so
// only this process can see it come and go. Asking for the face before it
// is installed would make Wine remember its substitute, so the font list is
// consulted instead.
TEST(ProgramFont, IsInTheFontListAndBesideTheProgramUntilRemoved) {
  auto faceListed = [] {
    LOGFONTA wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(wanted.lfFaceName, ui::kProgramFontFace, LF_FACESIZE);
    bool found = false;
    platform::WindowDC screen(nullptr);
    ::EnumFontFamiliesExA(
        screen.get(), &wanted,
        [](const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM data) -> int {
          return *reinterpret_cast<bool*>(data) = true, 0;
        },
        reinterpret_cast<LPARAM>(&found), 0);
    return found;
  };
  toolkit::Form form("frmFontHost", 1500, 1500);
  form.Load();
  platform::ResourceLibrary pictures;
  pictures.Open(testing_support::DistFolder() + "Resource.DLL");
  testing_support::ScratchFolder folder;
  const std::string program = folder.Path() + "\\";
  const std::string fontFile = folder / ui::kProgramFontFile;
  ASSERT_FALSE(faceListed());
  EXPECT_TRUE(ui::InstallProgramFont(form, program, pictures));
  EXPECT_TRUE(faceListed());
  EXPECT_EQ(form.FontName(), ui::kProgramFontFace);
  EXPECT_NE(::GetFileAttributesA(fontFile.c_str()), INVALID_FILE_ATTRIBUTES);
  ui::RemoveProgramFont(program);
  EXPECT_FALSE(faceListed());
  EXPECT_EQ(::GetFileAttributesA(fontFile.c_str()), INVALID_FILE_ATTRIBUTES);
  ui::RemoveProgramFont(program);  // a second removal finds nothing and does no harm
  form.Unload();
}

}  // namespace
