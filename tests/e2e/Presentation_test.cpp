// How the running program presents itself, seen from outside: its font in
// the system's font table, the window's outline, the shadow that follows it,
// and the splash during start-up.
#include <gtest/gtest.h>
#include <windows.h>

#include "MorvaneWindow.h"
#include "UserInput.h"
#include "support/TestSupport.h"
#include "toolkit/ScopedHandle.h"
#include "ui/ControlIds.h"

namespace {

using namespace e2e;
using testing_support::PathExists;

RECT ScreenRect(HWND window) {
  RECT rect{};
  ::GetWindowRect(window, &rect);
  return rect;
}

// The shadow's offset of 50 twips in whole pixels of this display.
int ShadowOffsetPixels() {
  HDC screen = ::GetDC(nullptr);
  int offset = ::MulDiv(50, ::GetDeviceCaps(screen, LOGPIXELSX), 1440);
  ::ReleaseDC(nullptr, screen);
  return offset;
}

bool ShadowInPlace(HWND main, HWND shadow) {
  RECT a = ScreenRect(main), b = ScreenRect(shadow);
  return b.left - a.left == ShadowOffsetPixels() && b.top - a.top == ShadowOffsetPixels();
}

// True when `upper` lies above `lower` in the order of top-level windows.
bool Above(HWND upper, HWND lower) {
  for (HWND w = ::GetWindow(lower, GW_HWNDPREV); w; w = ::GetWindow(w, GW_HWNDPREV)) {
    if (w == upper) return true;
  }
  return false;
}

using PresentationTest = MorvaneWindowTest;

TEST_F(PresentationTest, TheFontFileLivesExactlyAsLongAsTheRun) {
  EXPECT_TRUE(PathExists(program_.File("Morvane.ttf")));
  ASSERT_TRUE(Close());
  EXPECT_FALSE(PathExists(program_.File("Morvane.ttf")));
}

TEST_F(PresentationTest, BothWindowsAreCutToTheFolderOutline) {
  HWND shadow = Shadow();
  ASSERT_NE(shadow, nullptr);
  toolkit::ScopedRegion outline(::CreateRectRgn(0, 0, 0, 0));
  toolkit::ScopedRegion shadowOutline(::CreateRectRgn(0, 0, 0, 0));
  ASSERT_EQ(::GetWindowRgn(main_, outline.get()), COMPLEXREGION);
  ASSERT_EQ(::GetWindowRgn(shadow, shadowOutline.get()), COMPLEXREGION);
  EXPECT_TRUE(::EqualRgn(outline.get(), shadowOutline.get()));

  // The folder's tab at the top left, its body below; right of the tab the
  // outline steps down, and its corners are rounded.
  for (POINT inside : {POINT{100, 20}, POINT{300, 200}, POINT{560, 420}}) {
    EXPECT_TRUE(::PtInRegion(outline.get(), inside.x, inside.y)) << inside.x << "," << inside.y;
  }
  for (POINT outside : {POINT{500, 10}, POINT{0, 437}, POINT{586, 437}}) {
    EXPECT_FALSE(::PtInRegion(outline.get(), outside.x, outside.y))
        << outside.x << "," << outside.y;
  }
}

TEST_F(PresentationTest, TheShadowCatchesUpWithAMoveWithinATick) {
  HWND shadow = Shadow();
  ASSERT_NE(shadow, nullptr);
  EXPECT_TRUE(ShadowInPlace(main_, shadow));

  ::SetWindowPos(main_, nullptr, 40, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  const auto moved = std::chrono::steady_clock::now();
  ASSERT_TRUE(WaitUntil([&] { return ShadowInPlace(main_, shadow); }, 1s));
  const auto took = std::chrono::steady_clock::now() - moved;
  // One timer period, and the time for this process to see the change.
  EXPECT_LE(took, 100ms + 50ms)
      << std::chrono::duration_cast<std::chrono::milliseconds>(took).count();

  // Dragging the background moves the window; the shadow follows.
  const RECT before = ScreenRect(main_);
  Drag(main_, {259, 200}, {60, 45});
  EXPECT_TRUE(WaitUntil([&] { return ScreenRect(main_).left != before.left; }));
  EXPECT_EQ(ScreenRect(main_).left - before.left, 60);
  EXPECT_EQ(ScreenRect(main_).top - before.top, 45);
  EXPECT_TRUE(WaitUntil([&] { return ShadowInPlace(main_, shadow); }, 1s));
}

TEST_F(PresentationTest, ClickingTheShadowBringsTheMainWindowForward) {
  HWND shadow = Shadow();
  ASSERT_NE(shadow, nullptr);
  EXPECT_TRUE(Above(main_, shadow));
  ::SetWindowPos(shadow, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ASSERT_TRUE(Above(shadow, main_));
  ClickAt(shadow, {300, 200});
  EXPECT_TRUE(WaitUntil([&] { return Above(main_, shadow); }));
}

// Start-up with a large icon library, so that the splash stays up while the
// icons load.
class SplashTest : public MorvaneWindowTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(::CopyFileA((testing_support::TestFolder() + "ICONS1234.DLL").c_str(),
                            program_.File("iconos.dll").c_str(), FALSE));
    iconsToList_ = 1234;
    child_ = std::make_unique<testing_support::ChildProcess>(
        program_.Exe(), "\"" + program_.Exe() + "\" " + target_.Path());
    splash_ = child_->WaitForWindow(kFormClass, kLimit, "frmSplash");
    ASSERT_NE(splash_, nullptr);
  }
  void FinishStart() {
    main_ = child_->WaitForWindow(kFormClass, kLimit, "Morvane");
    ASSERT_NE(main_, nullptr);
    EXPECT_TRUE(WaitUntil([this] { return Count() == iconsToList_; }));
  }
  HWND splash_ = nullptr;
};

TEST_F(SplashTest, ShowsWithoutButtonsDuringStartUpAndIsGoneAfter) {
  RECT client{};
  ::GetClientRect(splash_, &client);
  EXPECT_EQ(client.right, 442);
  EXPECT_EQ(client.bottom, 323);
  for (int button :
       {ui::ids::picActualizar, ui::ids::picWebPage, ui::ids::picAyuda, ui::ids::picAceptar}) {
    HWND face = ::GetDlgItem(splash_, button);
    ASSERT_NE(face, nullptr);
    EXPECT_FALSE(::IsWindowVisible(face));
    EXPECT_FALSE(::IsWindowEnabled(face));
  }
  main_ = child_->WaitForWindow(kFormClass, kLimit, "Morvane");
  ASSERT_NE(main_, nullptr);
  EXPECT_TRUE(Above(splash_, main_)) << "in front while the icons load";
  FinishStart();
  EXPECT_TRUE(WaitUntil([this] { return !::IsWindowVisible(splash_); }));
}

// Start-up lets messages run at its waiting points, not while the icons load:
// the click comes at once, and is seen at the latest as the load begins.
TEST_F(SplashTest, AClickClosesItAtOnceAndStartUpGoesOn) {
  // Where the buttons would be, the message covers the splash.
  ClickAt(splash_, {360, 200});
  EXPECT_TRUE(WaitUntil([this] { return !::IsWindowVisible(splash_); }));
  EXPECT_LT(Count(), iconsToList_) << "closed by the click, not by the end of start-up";
  FinishStart();
}

TEST_F(SplashTest, AskingForTheAboutWindowMeanwhileIsIgnored) {
  main_ = child_->WaitForWindow(kFormClass, kLimit, "Morvane");
  ASSERT_NE(main_, nullptr);
  ASSERT_TRUE(::IsWindowVisible(splash_));
  ClickAt(main_, {555, 60});  // the help link
  FinishStart();
  EXPECT_TRUE(::IsWindowEnabled(main_));
  EXPECT_TRUE(WaitUntil([this] { return !::IsWindowVisible(splash_); }));

  ClickAt(main_, {555, 60});
  HWND about = child_->WaitForWindow(kFormClass, kLimit, "frmSplash");
  ASSERT_NE(about, nullptr);
  EXPECT_TRUE(::IsWindowVisible(::GetDlgItem(about, ui::ids::picAceptar)));
  ClickAt(::GetDlgItem(about, ui::ids::picAceptar), {20, 10});
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindowVisible(about); }));
}

}  // namespace
