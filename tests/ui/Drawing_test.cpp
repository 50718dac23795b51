// The drawing routines, checked pixel by pixel on picture surfaces (their
// persistent 32-bit images) and on a form's screen.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Pixels.h"
#include "toolkit/Form.h"
#include "toolkit/MessageLoop.h"
#include "toolkit/Screen.h"
#include "ui/modCustomBlt.h"
#include "ui/modDrawBorder.h"
#include "ui/modDrawText.h"
#include "ui/modLine3D.h"
#include "ui/modTileBMP.h"

namespace {

using testing_support::PicturePixel;
using toolkit::Form;
using toolkit::TwipsRect;

constexpr COLORREF kBack = RGB(200, 180, 100);
constexpr COLORREF kGrey = ui::kShadowColour;
constexpr COLORREF kWhite = ui::kHighlightColour;

// A form in pixels with one 10 x 6 face and one larger picture.
class Canvas : public Form {
 public:
  Canvas() : Form("frmCanvas", 8000, 7000) {}
  toolkit::PictureBox* face = nullptr;
  toolkit::PictureBox* wide = nullptr;

 protected:
  void CreateElements() override {
    int tx = toolkit::Screen::TwipsPerPixelX(), ty = toolkit::Screen::TwipsPerPixelY();
    face = &AddPictureBox("picFace", TwipsRect{40 * tx, 40 * ty, 10 * tx, 6 * ty}, 20);
    wide = &AddPictureBox("picWide", TwipsRect{100 * tx, 40 * ty, 60 * tx, 24 * ty}, 21);
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
  // What the face shows, row by row: '.' back colour, 'g' grey, 'w' white.
  std::string FaceRows() const {
    toolkit::Picture image = canvas_.face->Image();
    std::string rows;
    for (int y = 0; y < 6; ++y) {
      for (int x = 0; x < 10; ++x) {
        COLORREF c = PicturePixel(image, x, y);
        rows += c == kBack ? '.' : c == kGrey ? 'g' : c == kWhite ? 'w' : '?';
      }
      rows += '\n';
    }
    return rows;
  }
  COLORREF FormPixel(int x, int y) const { return ::GetPixel(canvas_.hDC(), x, y); }
  Canvas canvas_;
};

TEST_F(DrawingTest, RaisedAndSunkenFramesOnTheControlItself) {
  ui::DrawBorder(*canvas_.face, 1, 0, 0, true);
  EXPECT_EQ(FaceRows(),
            "wwwwwwwwww\n"
            "w........g\n"
            "w........g\n"
            "w........g\n"
            "w........g\n"
            "wggggggggg\n");
  canvas_.face->Cls();
  ui::DrawBorder(*canvas_.face, 1, 0, 1, true);
  EXPECT_EQ(FaceRows(),
            "gggggggggw\n"
            "g........w\n"
            "g........w\n"
            "g........w\n"
            "g........w\n"
            "wwwwwwwwww\n");
}

TEST_F(DrawingTest, ThicknessAndDistanceAroundTheControlOnItsParent) {
  ui::DrawBorder(*canvas_.face, 0, 0, 0, false);
  EXPECT_NE(FormPixel(39, 39), kWhite) << "thickness 0 draws nothing";
  ui::DrawBorder(*canvas_.face, 2, 1, 0, false);
  // Distance 0 would put the top-left corner at (39, 39).
  EXPECT_EQ(FormPixel(38, 38), kWhite);
  EXPECT_EQ(FormPixel(37, 37), kWhite);
  EXPECT_EQ(FormPixel(51, 47), kGrey) << "right edge of the inner ring";
  EXPECT_EQ(FormPixel(52, 48), kGrey) << "bottom-right of the outer ring";
}

TEST_F(DrawingTest, AnUnsupportedUnitDrawsNothing) {
  canvas_.SetScaleMode(toolkit::ScaleMode::kInches);
  canvas_.face->Cls();
  ui::DrawBorder(*canvas_.face, 1, 0, 0, true);
  EXPECT_EQ(FaceRows().find_first_not_of(".\n"), std::string::npos);
}

TEST_F(DrawingTest, CaptionsAreOneCentredLineBelowTheTopMargin) {
  ui::DrawCaption(*canvas_.wide, "A caption far too wide for this little face");
  toolkit::Picture image = canvas_.wide->Image();
  int inked = 0, aboveMargin = 0;
  for (int y = 0; y < 24; ++y) {
    for (int x = 0; x < 60; ++x) {
      if (PicturePixel(image, x, y) == kBack) continue;
      ++inked;
      aboveMargin += y < 4;
    }
  }
  EXPECT_GT(inked, 20);
  EXPECT_EQ(aboveMargin, 0);
  EXPECT_NE(PicturePixel(image, 0, 10), PicturePixel(image, 0, 0)) << "cut at the left edge too";
}

TEST_F(DrawingTest, TilesCoverTheClientAreaEdgeToEdge) {
  // A texture whose every pixel tells where in the tile it is.
  constexpr int kTile = 100;
  HDC screen = ::GetDC(nullptr);
  HBITMAP texture = ::CreateCompatibleBitmap(screen, kTile, kTile);
  HDC memory = ::CreateCompatibleDC(screen);
  HGDIOBJ old = ::SelectObject(memory, texture);
  for (int y = 0; y < kTile; ++y) {
    for (int x = 0; x < kTile; ++x) ::SetPixel(memory, x, y, RGB(x, y, 7));
  }
  ::SelectObject(memory, old);
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  canvas_.face->SetVisible(false);
  canvas_.wide->SetVisible(false);

  // 433 x 428: five columns and five rows, the last ones cut by the edges;
  // 400 wide: the fifth column lies wholly outside.
  for (SIZE client : {SIZE{433, 428}, SIZE{400, 428}}) {
    const int tx = toolkit::Screen::TwipsPerPixelX(), ty = toolkit::Screen::TwipsPerPixelY();
    canvas_.Resize(client.cx * tx, client.cy * ty);
    ui::TileBitmap(canvas_.Hwnd(), texture);
    EXPECT_EQ(FormPixel(0, 0), RGB(0, 0, 7));
    EXPECT_EQ(FormPixel(150, 260), RGB(50, 60, 7));
    EXPECT_EQ(FormPixel(client.cx - 1, client.cy - 1),
              RGB((client.cx - 1) % kTile, (client.cy - 1) % kTile, 7))
        << client.cx << " x " << client.cy;
  }
  EXPECT_NE(::GetObjectType(texture), 0u) << "the bitmap stays its owner's";
  ::DeleteObject(texture);
}

// Source: a 16 x 8 bitmap, yellow with a blue block; destination: green.
struct BltScene {
  BltScene() {
    ::SelectObject(src, srcPicture.Handle());
    ::SelectObject(dst, dstPicture.Handle());
    RECT block{3, 2, 9, 6};
    ::SetDCBrushColor(src, kBlue);
    ::FillRect(src, &block, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
  }
  ~BltScene() {
    ::DeleteDC(src);  // before the pictures release their bitmaps
    ::DeleteDC(dst);
  }
  std::vector<COLORREF> Pixels() const {
    std::vector<COLORREF> all;
    for (int y = 0; y < 8; ++y) {
      for (int x = 0; x < 16; ++x) all.push_back(::GetPixel(dst, x, y));
    }
    return all;
  }
  static constexpr COLORREF kYellow = RGB(255, 255, 0), kBlue = RGB(0, 0, 255);
  toolkit::Picture srcPicture = testing_support::SolidPicture(16, 8, kYellow);
  toolkit::Picture dstPicture = testing_support::SolidPicture(16, 8, RGB(0, 128, 0));
  HDC src = ::CreateCompatibleDC(nullptr), dst = ::CreateCompatibleDC(nullptr);
};

TEST(CustomBlt, TheMaskMethodGivesThePlatformsTransparentCopy) {
  BltScene masked, platform;
  ui::CustomBltMasked(masked.dst, 2, 1, 12, 6, masked.src, 1, 1, BltScene::kYellow);
  ::GdiTransparentBlt(platform.dst, 2, 1, 12, 6, platform.src, 1, 1, 12, 6, BltScene::kYellow);
  EXPECT_EQ(masked.Pixels(), platform.Pixels());
  EXPECT_EQ(::GetPixel(masked.dst, 2, 1), RGB(0, 128, 0));
  EXPECT_EQ(::GetPixel(masked.dst, 4, 2), BltScene::kBlue);
}

TEST(CustomBlt, AllTransparentChangesNothingAndNoneTransparentIsAPlainCopy) {
  BltScene scene;
  const auto before = scene.Pixels();
  ui::CustomBlt(scene.dst, 9, 0, 7, 8, scene.src, 9, 0, BltScene::kYellow);
  EXPECT_EQ(scene.Pixels(), before);
  ui::CustomBlt(scene.dst, 0, 0, 16, 8, scene.src, 0, 0, RGB(1, 2, 3));
  EXPECT_EQ(::GetPixel(scene.dst, 0, 0), BltScene::kYellow);
  EXPECT_EQ(::GetPixel(scene.dst, 5, 5), BltScene::kBlue);
}

TEST_F(DrawingTest, EtchedLinesDrawInTwipsAndConvertTheCallersPixels) {
  canvas_.face->SetVisible(false);
  canvas_.wide->SetVisible(false);
  float x1 = 0, y1 = 42, x2 = 300, y2 = 42;
  canvas_.SetDrawWidth(3);
  ui::Line3D(canvas_, x1, y1, x2, y2);
  const int ty = toolkit::Screen::TwipsPerPixelY();
  EXPECT_EQ(y1, 42.0f * ty) << "the caller's variables now hold twips";
  EXPECT_EQ(canvas_.Scale(), toolkit::ScaleMode::kPixels);
  EXPECT_EQ(canvas_.DrawWidth(), 3);
  EXPECT_EQ(FormPixel(10, 42), kGrey);
  EXPECT_EQ(FormPixel(11, 43), kWhite);
  EXPECT_NE(FormPixel(300, 42), kGrey) << "the end point stays undrawn";

  canvas_.SetScaleMode(toolkit::ScaleMode::kTwips);
  float a = 0, b = 60.0f * ty, c = 1500, d = 60.0f * ty;
  ui::Line3D(canvas_, a, b, c, d);
  EXPECT_EQ(b, 60.0f * ty) << "twips pass unchanged";
  EXPECT_EQ(FormPixel(5, 60), kGrey);
}

}  // namespace
