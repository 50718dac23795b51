// The drawing routines and the skinned buttons' frames, checked pixel by
// pixel on 32-bit images (picture surfaces' persistent images, DIB sections,
// a form's screen).
#include <gtest/gtest.h>

#include "support/TestSupport.h"
#include "toolkit/Form.h"
#include "toolkit/MessageLoop.h"
#include "ui/Drawing.h"
#include "ui/SkinnedButton.h"

namespace {

using testing_support::DibSurface;
using toolkit::Screen::PixelsToTwipsX;
using toolkit::Screen::PixelsToTwipsY;

constexpr COLORREF kBack = RGB(200, 180, 100);
constexpr COLORREF kGrey = ui::kShadowColour;
constexpr COLORREF kWhite = ui::kHighlightColour;

// A form measured in pixels with one 10 x 6 face and one 60 x 24 surface.
class Canvas : public toolkit::Form {
 public:
  Canvas() : Form("frmCanvas", 8000, 7000) {}
  toolkit::PictureBox* face = nullptr;
  toolkit::PictureBox* wide = nullptr;

 protected:
  void CreateElements() override {
    face = &AddPictureBox(
        "picFace", {PixelsToTwipsX(40), PixelsToTwipsY(40), PixelsToTwipsX(10), PixelsToTwipsY(6)},
        20);
    wide = &AddPictureBox(
        "picWide",
        {PixelsToTwipsX(100), PixelsToTwipsY(40), PixelsToTwipsX(60), PixelsToTwipsY(24)}, 21);
    for (auto* box : {face, wide}) {
      box->SetBackColor(kBack);
      box->SetAutoRedraw(true);
    }
  }
  void OnLoad() override { SetScaleMode(toolkit::ScaleMode::kPixels); }
};

class DrawingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    canvas_.Show();
    canvas_.Move(0, 0);
    toolkit::DoEvents();
    ::UpdateWindow(canvas_.Hwnd());
  }
  // The face row by row: '.' back colour, 'g' grey, 'w' white.
  std::string FaceRows() const {
    int width = 0;
    const auto pixels =
        testing_support::ReadPixels(static_cast<HBITMAP>(canvas_.face->Image().Handle()), width);
    std::string rows;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      rows += pixels[i] == kBack ? '.' : pixels[i] == kGrey ? 'g' : pixels[i] == kWhite ? 'w' : '?';
      if ((i + 1) % width == 0) rows += '\n';
    }
    return rows;
  }
  COLORREF FormPixel(int x, int y) const { return ::GetPixel(canvas_.hDC(), x, y); }
  Canvas canvas_;
};

TEST_F(DrawingTest, RaisedAndSunkenFramesOnTheControlItself) {
  ui::DrawBevel(*canvas_.face, 1, 0, ui::Bevel::kRaised, true);
  EXPECT_EQ(FaceRows(), "wwwwwwwwww\nw........g\nw........g\nw........g\nw........g\nwggggggggg\n");
  canvas_.face->Cls();
  ui::DrawBevel(*canvas_.face, 1, 0, ui::Bevel::kSunken, true);
  EXPECT_EQ(FaceRows(), "gggggggggw\ng........w\ng........w\ng........w\ng........w\nwwwwwwwwww\n");
  canvas_.face->SetDpi(2 * USER_DEFAULT_SCREEN_DPI);  // two rings, the second inside
  canvas_.face->Cls();
  ui::DrawBevel(*canvas_.face, 1, 0, ui::Bevel::kRaised, true);
  EXPECT_EQ(FaceRows(), "wwwwwwwwww\nwwwwwwwwwg\nww......gg\nww......gg\nwwgggggggg\nwggggggggg\n");
}

TEST_F(DrawingTest, EtchedLinesDrawInTwipsAndConvertTheCallersPixels) {
  canvas_.face->SetVisible(false);
  float x1 = 0, y1 = 42, x2 = 300, y2 = 42;
  ui::DrawEtchedLine(canvas_, x1, y1, x2, y2);
  EXPECT_EQ(y1, static_cast<float>(PixelsToTwipsY(42))) << "the caller's variables hold twips";
  EXPECT_EQ(canvas_.Scale(), toolkit::ScaleMode::kPixels) << "the unit is given back";
  EXPECT_EQ(FormPixel(10, 42), kGrey);
  EXPECT_EQ(FormPixel(11, 43), kWhite);
  EXPECT_NE(FormPixel(300, 42), kGrey) << "the end point stays undrawn";
}

TEST_F(DrawingTest, CaptionsAreOneCentredLineBelowTheTopMarginInTheFacesWeight) {
  canvas_.wide->SetFontSize(10);
  auto inkOf = [this](bool bold) {
    canvas_.wide->SetFontBold(bold);
    canvas_.wide->Cls();
    ui::DrawCaption(*canvas_.wide, "A caption far too wide for this little face");
    int width = 0;
    const auto pixels =
        testing_support::ReadPixels(static_cast<HBITMAP>(canvas_.wide->Image().Handle()), width);
    int inked = 0, aboveMargin = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      inked += pixels[i] != kBack;
      aboveMargin += pixels[i] != kBack && static_cast<int>(i) / width < 4;
    }
    EXPECT_EQ(aboveMargin, 0);
    EXPECT_NE(pixels[10 * width], kBack) << "centred, so cut at the left edge too";
    return inked;
  };
  // Wine's own Tahoma Bold draws 10 points with the regular strokes.
  EXPECT_GT(inkOf(true) * 3, inkOf(false) * 4) << "bold strokes are heavier";
}

TEST_F(DrawingTest, TilesCoverTheClientAreaEdgeToEdge) {
  constexpr int kTile = 100;
  // Every pixel of the texture tells where in the tile it is.
  DibSurface texture(kTile, kTile, 0);
  for (int y = 0; y < kTile; ++y) {
    for (int x = 0; x < kTile; ++x) ::SetPixel(texture.Dc(), x, y, RGB(x, y, 7));
  }
  // A bitmap can be selected into one context only.
  platform::ScopedBitmap tile(
      static_cast<HBITMAP>(::CopyImage(texture.Bitmap(), IMAGE_BITMAP, 0, 0, 0)));
  canvas_.face->SetVisible(false);
  canvas_.wide->SetVisible(false);
  for (SIZE client : {SIZE{433, 428}, SIZE{400, 428}}) {
    canvas_.Resize(PixelsToTwipsX(client.cx), PixelsToTwipsY(client.cy));
    ui::TileBitmap(canvas_.Hwnd(), tile.get());
    EXPECT_EQ(FormPixel(150, 260), RGB(50, 60, 7));
    EXPECT_EQ(FormPixel(client.cx - 1, client.cy - 1),
              RGB((client.cx - 1) % kTile, (client.cy - 1) % kTile, 7))
        << client.cx << " x " << client.cy;
  }
}

// A yellow 16 x 8 source with a blue block, copied onto green with yellow
// transparent: both routines give the system's own transparent copy.
TEST(TransparentBlit, BothRoutinesAgreeWithTheSystem) {
  constexpr COLORREF kYellow = RGB(255, 255, 0), kBlue = RGB(0, 0, 255), kGreen = RGB(0, 128, 0);
  DibSurface source(16, 8, kYellow);
  RECT block{3, 2, 9, 6};
  ::SetDCBrushColor(source.Dc(), kBlue);
  ::FillRect(source.Dc(), &block, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
  DibSurface system(16, 8, kGreen), own(16, 8, kGreen), masked(16, 8, kGreen);
  ::GdiTransparentBlt(system.Dc(), 2, 1, 12, 6, source.Dc(), 1, 1, 12, 6, kYellow);
  ui::TransparentBlit(own.Dc(), 2, 1, 12, 6, source.Dc(), 1, 1, kYellow);
  ui::TransparentBlitMasked(masked.Dc(), 2, 1, 12, 6, source.Dc(), 1, 1, kYellow);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 16; ++x) {
      EXPECT_EQ(own.Pixel(x, y), system.Pixel(x, y)) << x << "," << y;
      EXPECT_EQ(masked.Pixel(x, y), system.Pixel(x, y)) << x << "," << y;
    }
  }
  EXPECT_EQ(masked.Pixel(2, 1), kGreen);
  EXPECT_EQ(masked.Pixel(4, 2), kBlue);
}

constexpr COLORREF kSkin = RGB(210, 190, 150);

class ButtonForm : public toolkit::Form {
 public:
  ButtonForm() : Form("frmButtons", 6000, 3000) {}
  toolkit::PictureBox* back = nullptr;
  toolkit::PictureBox* face = nullptr;

 protected:
  void CreateElements() override {
    back = &AddPictureBox("picBack", {0, 0, PixelsToTwipsX(200), PixelsToTwipsY(40)}, 30);
    face = &AddPictureBox(
        "picAplicar",
        {PixelsToTwipsX(20), PixelsToTwipsY(60), PixelsToTwipsX(80), PixelsToTwipsY(25)}, 31);
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
    const auto pixels =
        testing_support::ReadPixels(static_cast<HBITMAP>(form_.face->Image().Handle()), width);
    std::string seen;
    for (POINT p : {POINT{0, 0}, POINT{79, 0}, POINT{0, 24}, POINT{79, 24}, POINT{40, 0},
                    POINT{40, 24}, POINT{40, 12}}) {
      const COLORREF c = pixels[p.y * width + p.x];
      seen += c == ui::kHighlightColour ? 'w'
              : c == ui::kShadowColour  ? 'g'
              : c == kSkin              ? '.'
                                        : '?';
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

}  // namespace
