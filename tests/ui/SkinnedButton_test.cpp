#include "ui/SkinnedButton.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Pixels.h"
#include "toolkit/Form.h"
#include "toolkit/MessageLoop.h"
#include "toolkit/Screen.h"

namespace {

using testing_support::PicturePixel;
using toolkit::TwipsRect;

constexpr COLORREF kSkin = RGB(210, 190, 150);
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class ButtonForm : public toolkit::Form {
 public:
  ButtonForm() : Form("frmButtons", 6000, 3000) {}
  toolkit::PictureBox* back = nullptr;
  toolkit::PictureBox* face = nullptr;

 protected:
  void CreateElements() override {
    int tx = toolkit::Screen::TwipsPerPixelX(), ty = toolkit::Screen::TwipsPerPixelY();
    back = &AddPictureBox("picBack", TwipsRect{0, 0, 200 * tx, 40 * ty}, 30);
    face = &AddPictureBox("picAplicar", TwipsRect{20 * tx, 60 * ty, 80 * tx, 25 * ty}, 31);
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
  // 'w' white, 'g' grey, '.' skin: the corners and edge middles of the face.
  std::string Frame() const {
    toolkit::Picture image = form_.face->Image();
    std::string seen;
    for (POINT p : {POINT{0, 0}, POINT{79, 0}, POINT{0, 24}, POINT{79, 24}, POINT{40, 0},
                    POINT{40, 24}, POINT{40, 12}}) {
      COLORREF c = PicturePixel(image, p.x, p.y);
      seen += c == kWhite ? 'w' : c == kGrey ? 'g' : c == kSkin ? '.' : '?';
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
  EXPECT_TRUE(button.HoverShown());
  EXPECT_EQ(Frame(), "wwwgwg.") << "raised: white top and left";

  Send(WM_LBUTTONDOWN, MK_LBUTTON);
  Send(WM_LBUTTONUP);
  EXPECT_EQ(Frame(), "gwwwgw.") << "sunken, and it stays so after the release";
  EXPECT_EQ(log_, (std::vector<std::string>{"press", "click"}));

  Send(WM_MOUSEMOVE);
  EXPECT_EQ(Frame(), "gwwwgw.") << "the flag is still set: no new frame";

  button.ClearHover();
  button.ResetFace(*form_.back);
  EXPECT_EQ(Frame(), ".......");
  Send(WM_MOUSEMOVE);
  EXPECT_EQ(Frame(), "wwwgwg.");
}

TEST_F(SkinnedButtonTest, AboutWindowButtonRisesOnReleaseAndActsOnAnyPress) {
  ui::SkinnedButton button(*form_.face, {true, [this] { log_.push_back("web page"); }, nullptr});
  button.ResetFace(*form_.back);
  Send(WM_RBUTTONDOWN, MK_RBUTTON);
  EXPECT_EQ(Frame(), "gwwwgw.");
  Send(WM_RBUTTONUP);
  EXPECT_EQ(Frame(), "wwwgwg.");
  EXPECT_EQ(log_, (std::vector<std::string>{"web page"}));
}

TEST_F(SkinnedButtonTest, AFrameShowsOnScreenWithoutAnExplicitRefresh) {
  ui::SkinnedButton button(*form_.face, {});
  form_.Show();
  button.ResetFace(*form_.back);
  toolkit::DoEvents();
  Send(WM_MOUSEMOVE);
  toolkit::DoEvents();
  HDC dc = ::GetDC(form_.face->Hwnd());
  EXPECT_EQ(::GetPixel(dc, 0, 0), kWhite);
  EXPECT_EQ(::GetPixel(dc, 79, 24), kGrey);
  ::ReleaseDC(form_.face->Hwnd(), dc);
}

}  // namespace
