// The window elements where a fault hides from the end-to-end tests: who
// owns a picture, what a picture surface keeps, and lists filled in a batch.
#include <gtest/gtest.h>

#include "support/TestSupport.h"
#include "toolkit/Form.h"
#include "toolkit/MessageLoop.h"

namespace {

using testing_support::ReadPixels;
using toolkit::TwipsRect;

constexpr COLORREF kBack = RGB(10, 20, 30);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);

platform::Picture SolidPicture(int size, COLORREF colour) {
  testing_support::DibSurface surface(size, size, colour);
  HBITMAP copy = static_cast<HBITMAP>(::CopyImage(surface.Bitmap(), IMAGE_BITMAP, 0, 0, 0));
  // The picture owns the copy from here on.
  return platform::Picture::Adopt(platform::Picture::Kind::Bitmap, copy);
}

COLORREF PicturePixel(const platform::Picture& picture, int x, int y) {
  int width = 0;
  const auto pixels = ReadPixels(static_cast<HBITMAP>(picture.Handle()), width);
  return pixels.empty() ? CLR_INVALID : pixels[y * width + x];
}

class TestForm : public toolkit::Form {
 public:
  TestForm() : Form("frmTest", 6000, 4500) {}
  toolkit::PictureBox* box = nullptr;
  toolkit::ListView* list = nullptr;
  toolkit::ImageList* images = nullptr;

 protected:
  void CreateElements() override {
    box = &AddPictureBox("picTest", TwipsRect{75, 75, 480, 480}, 10);
    list = &AddListView("lvwIcons", TwipsRect{3300, 150, 2500, 3000}, 12);
    images = &AddImageList("img32", 32, 32);
  }
};

class ToolkitTest : public ::testing::Test {
 protected:
  void SetUp() override {
    form_.Show();
    form_.box->SetBackColor(kBack);
  }
  void MarkCorner(COLORREF colour) {
    RECT corner{0, 0, 4, 4};
    ::SetDCBrushColor(form_.box->hDC(), colour);
    ::FillRect(form_.box->hDC(), &corner, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
  }
  COLORREF OnScreen(int x, int y) {
    toolkit::DoEvents();
    platform::WindowDC dc(form_.box->Hwnd());
    return ::GetPixel(dc.get(), x, y);
  }
  TestForm form_;
};

TEST_F(ToolkitTest, OnlyPersistentDrawingIsKeptUntilANewPictureErasesIt) {
  form_.box->SetAutoRedraw(false);
  MarkCorner(kRed);
  EXPECT_EQ(PicturePixel(form_.box->Image(), 0, 0), kBack);
  form_.box->SetAutoRedraw(true);
  MarkCorner(kRed);
  form_.box->Refresh();
  EXPECT_EQ(PicturePixel(form_.box->Image(), 0, 0), kRed);
  EXPECT_EQ(PicturePixel(form_.box->Image(), 10, 10), kBack);
  EXPECT_EQ(OnScreen(1, 1), kRed);
  // A new picture erases the drawing; the surface releases the one it held.
  platform::Picture green = SolidPicture(8, kGreen);
  HANDLE handle = green.Handle();
  form_.box->SetPicture(std::move(green));
  EXPECT_EQ(PicturePixel(form_.box->Image(), 0, 0), kGreen);
  EXPECT_EQ(PicturePixel(form_.box->Image(), 8, 8), kBack);
  form_.box->SetPicture({});
  EXPECT_EQ(::GetObjectType(handle), 0u) << "the surface held the last reference";
  EXPECT_EQ(PicturePixel(form_.box->Image(), 0, 0), kBack);
}

TEST_F(ToolkitTest, ImageListsKeepCopiesAndListsFilledInABatchAreShown) {
  constexpr int kItems = 60;  // many more than the list shows at once
  form_.images->Reserve(kItems);
  for (int i = 0; i < kItems; ++i) {
    platform::Picture picture = SolidPicture(32, RGB(0, 0, i));
    form_.images->Add("c" + std::to_string(i), picture);
  }
  EXPECT_THROW(form_.images->Add("c2", SolidPicture(32, 0)), toolkit::ElementError);
  form_.list->SetIcons(form_.images);
  {
    toolkit::ListView::ItemBatch batch(*form_.list);
    for (int j = 1; j <= kItems; ++j) form_.list->AddItem("a" + std::to_string(j), "", j);
  }
  EXPECT_THROW(form_.list->AddItem("a61", "", kItems + 1), toolkit::ElementError);
  toolkit::DoEvents();
  EXPECT_EQ(form_.list->Count(), kItems);
  testing_support::DibSurface drawn(32, 32, kBack);
  ImageList_Draw(form_.images->Handle(), 59, drawn.Dc(), 0, 0, ILD_NORMAL);
  EXPECT_EQ(drawn.Pixel(16, 16), RGB(0, 0, 59)) << "the list's own copy outlives the picture";
  SCROLLINFO scroll{sizeof scroll, SIF_RANGE | SIF_PAGE, 0, 0, 0, 0, 0};
  ASSERT_TRUE(::GetScrollInfo(form_.list->Hwnd(), SB_VERT, &scroll));
  EXPECT_GT(scroll.nMax - scroll.nMin + 1, static_cast<int>(scroll.nPage))
      << "redrawing came back on after the batch";
}

// Moved to a monitor of 192 dpi, the form stands where the system says and
// its elements and fonts are twice their size.
TEST_F(ToolkitTest, ANewDpiPlacesTheFormAndItsElementsForIt) {
  RECT suggested{10, 20, 810, 620}, window{};
  ::SendMessageW(form_.Hwnd(), WM_DPICHANGED, MAKEWPARAM(192, 192),
                 reinterpret_cast<LPARAM>(&suggested));
  ::GetWindowRect(form_.Hwnd(), &window);
  EXPECT_TRUE(::EqualRect(&window, &suggested));
  EXPECT_EQ(form_.box->ScaleWidth(), 64) << "480 twips";
  EXPECT_EQ(form_.list->Bounds().left, 440) << "3300 twips";
  LOGFONTW font{};
  ::GetObjectW(form_.box->Font(), sizeof font, &font);
  EXPECT_EQ(font.lfHeight, -21) << "8 points";
}

// A quick second press arrives as a double-click: without a double-click of
// its own, an element takes it as the press it is.
TEST_F(ToolkitTest, ASecondQuickPressIsAPressToo) {
  int presses = 0, clicks = 0;
  form_.box->mouse.onMouseDown = [&](const toolkit::MouseEvent&) { ++presses; };
  form_.box->mouse.onClick = [&] { ++clicks; };
  for (UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP})
    ::SendMessageA(form_.box->Hwnd(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, 0);
  EXPECT_EQ(presses, 2);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
