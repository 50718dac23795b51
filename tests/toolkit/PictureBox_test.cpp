#include "toolkit/PictureBox.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Pixels.h"
#include "toolkit/MessageLoop.h"

namespace {

using testing_support::PicturePixel;
using testing_support::SolidPicture;

constexpr COLORREF kBack = RGB(10, 20, 30);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);

class PictureBoxTest : public ::testing::Test {
 protected:
  PictureBoxTest() : box_("picTest", host_.Hwnd(), RECT{5, 5, 37, 37}, 101) {
    box_.SetBackColor(kBack);
  }
  // A 4 x 4 square in the top left corner of the box's drawing surface.
  void MarkCorner(COLORREF colour = kRed) {
    RECT corner{0, 0, 4, 4};
    ::SetDCBrushColor(box_.hDC(), colour);
    ::FillRect(box_.hDC(), &corner, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
  }
  COLORREF OnScreen(int x, int y) {
    toolkit::DoEvents();
    HDC dc = ::GetDC(box_.Hwnd());
    COLORREF colour = ::GetPixel(dc, x, y);
    ::ReleaseDC(box_.Hwnd(), dc);
    return colour;
  }
  testing_support::TestWindow host_;
  toolkit::PictureBox box_;
};

TEST_F(PictureBoxTest, OnlyPersistentDrawingGoesIntoTheImageAndItReachesTheScreen) {
  EXPECT_EQ(box_.ScaleWidth(), 32);
  box_.SetAutoRedraw(false);
  MarkCorner();
  EXPECT_EQ(PicturePixel(box_.Image(), 0, 0), kBack);

  box_.SetAutoRedraw(true);
  MarkCorner();
  box_.Refresh();
  EXPECT_EQ(PicturePixel(box_.Image(), 0, 0), kRed);
  EXPECT_EQ(PicturePixel(box_.Image(), 10, 10), kBack);
  EXPECT_EQ(OnScreen(1, 1), kRed);
  EXPECT_EQ(OnScreen(20, 20), kBack);

  // Taking the image as the picture keeps the drawing once persistence ends.
  box_.SetPicture(box_.Image());
  box_.SetAutoRedraw(false);
  box_.Refresh();
  EXPECT_EQ(OnScreen(1, 1), kRed);
  EXPECT_EQ(PicturePixel(box_.GetPicture(), 1, 1), kRed);
}

TEST_F(PictureBoxTest, TheScreenKeepsUpWithChangesMadeWhileHiddenOrBeforeAPaint) {
  box_.SetAutoRedraw(true);
  box_.SetVisible(false);
  MarkCorner();
  box_.Refresh();
  box_.SetVisible(true);
  EXPECT_EQ(OnScreen(1, 1), kRed) << "drawn while hidden";

  box_.SetPicture(SolidPicture(8, 8, kGreen));
  box_.SetPicture({});
  EXPECT_EQ(OnScreen(1, 1), kBack) << "two changes before one paint";

  // Refresh shows the drawing at once, with no message pump in between.
  MarkCorner(kGreen);
  box_.Refresh();
  HDC screen = ::GetDC(box_.Hwnd());
  EXPECT_EQ(::GetPixel(screen, 1, 1), kGreen);
  ::ReleaseDC(box_.Hwnd(), screen);
}

TEST_F(PictureBoxTest, ANewPictureErasesTheDrawingAndReleasesTheOldPicture) {
  box_.SetAutoRedraw(true);
  MarkCorner();
  toolkit::Picture green = SolidPicture(8, 8, kGreen);
  HANDLE handle = green.Handle();
  box_.SetPicture(std::move(green));
  EXPECT_EQ(PicturePixel(box_.Image(), 0, 0), kGreen);
  EXPECT_EQ(PicturePixel(box_.Image(), 8, 8), kBack);

  box_.SetPicture({});
  EXPECT_EQ(::GetObjectType(handle), 0u);
  EXPECT_EQ(PicturePixel(box_.Image(), 0, 0), kBack);
}

TEST_F(PictureBoxTest, AutoSizeFollowsThePictureUntilSwitchedOff) {
  box_.SetAutoRedraw(true);
  box_.SetAutoSize(true);
  box_.SetPicture(SolidPicture(20, 10, kGreen));
  EXPECT_EQ(box_.ScaleWidth(), 20);
  EXPECT_EQ(box_.ScaleHeight(), 10);
  RECT client{};
  ::GetClientRect(box_.Hwnd(), &client);
  EXPECT_EQ(client.right, 20);

  box_.SetAutoSize(false);
  box_.Resize(32, 32);
  EXPECT_EQ(PicturePixel(box_.Image(), 19, 9), kGreen) << "the picture stays";
  EXPECT_EQ(PicturePixel(box_.Image(), 25, 25), kBack);
}

TEST_F(PictureBoxTest, ClicksComeOnlyFromAPressAndReleaseOnTheSurface) {
  std::vector<std::string> log;
  box_.mouse.onMouseDown = [&](const toolkit::MouseEvent& e) {
    log.push_back("down " + std::to_string(e.button));
  };
  box_.mouse.onMouseUp = [&](const toolkit::MouseEvent&) { log.push_back("up"); };
  box_.mouse.onClick = [&] { log.push_back("click"); };
  box_.mouse.onDblClick = [&] { log.push_back("dblclick"); };
  HWND w = box_.Hwnd();
  ::SendMessageA(w, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  ::SendMessageA(w, WM_LBUTTONUP, 0, MAKELPARAM(6, 6));
  ::SendMessageA(w, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(6, 6));
  ::SendMessageA(w, WM_LBUTTONUP, 0, MAKELPARAM(6, 6));
  ::SendMessageA(w, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(6, 6));
  ::SendMessageA(w, WM_RBUTTONUP, 0, MAKELPARAM(6, 6));
  ::SendMessageA(w, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  ::SendMessageA(w, WM_LBUTTONUP, 0, MAKELPARAM(-20, 50));  // released outside
  EXPECT_EQ(log, (std::vector<std::string>{"down 1", "up", "click", "dblclick", "up", "down 2",
                                           "up", "down 1", "up"}));
}

}  // namespace
