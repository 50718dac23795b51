// The shadow right beneath the main window through start-up, a drag, another
// program's window coming between and a click on the shadow, with or without
// a window manager.
#include <gtest/gtest.h>

#include "Harness.h"

namespace {

using namespace e2e;

constexpr COLORREF kShadowGrey = RGB(64, 64, 64);
constexpr int kShadowOffset = 3;           // pixels right and down, at 96 dpi
constexpr POINT kBackground = {100, 335};  // between the info tip box and the recent files

RECT Place(HWND window) {
  RECT place{};
  ::GetWindowRect(window, &place);
  return place;
}

TEST(Shadow, StaysRightBeneathTheMainWindow) {
  MovePointer(nullptr, {0, 0});  // so that no tool tip takes the presses
  ProgramRun run;
  ASSERT_TRUE(run.Open());
  HWND shadow = ::GetWindow(run.main, GW_OWNER);
  ASSERT_EQ(Text(shadow), "frmShadow") << "the shadow owns the window it stands under";
  // Its strip along the main window's right edge, as the screen shows it.
  auto strip = [&] { return POINT{Place(run.main).right, Place(run.main).top + 200}; };
  auto beneath = [&] {
    HWND next = run.main;
    while ((next = ::GetWindow(next, GW_HWNDNEXT)) && !::IsWindowVisible(next)) continue;
    const RECT main = Place(run.main), under = Place(shadow);
    return next == shadow && under.left - main.left == kShadowOffset &&
           under.top - main.top == kShadowOffset && ScreenPixel(strip()) == kShadowGrey &&
           ScreenPixel({strip().x - 2 * kShadowOffset, strip().y}) != kShadowGrey;
  };
  EXPECT_TRUE(WaitUntil([&] { return run.Windows().size() == 2 && beneath(); }, 5s))
      << "once the splash has gone";

  ASSERT_TRUE(Drag(run.main, kBackground, {-60, -40}));
  EXPECT_TRUE(WaitUntil(beneath, 5s)) << "after a drag";

  ::WinExec("notepad.exe", SW_SHOWNORMAL);
  HWND other = nullptr;
  ASSERT_TRUE(WaitUntil([&] { return (other = ::FindWindowA("Notepad", nullptr)) != nullptr; }));
  // The other program's window over the strip, or beside it, in front.
  const POINT at = strip();
  auto bring = [&](int left) {
    ::SetWindowPos(other, nullptr, left, at.y - 100, 300, 200, SWP_NOZORDER);
    ::SetForegroundWindow(other);
    // Its thread has taken the activation once its keyboard focus is set.
    return WaitUntil([&] { return ::GetAncestor(FocusWindow(), GA_ROOT) == other; }, 5s);
  };
  ASSERT_TRUE(bring(at.x - 100));
  EXPECT_TRUE(WaitUntil([&] { return ScreenPixel(strip()) != kShadowGrey; }, 5s));
  Click(run.Element(ids::kStatus), {10, 10});
  EXPECT_TRUE(WaitUntil(beneath, 5s)) << "after a click on the main window";

  ASSERT_TRUE(bring(at.x + 10));
  Click(::GetDesktopWindow(), strip());  // at that point of the screen
  EXPECT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == run.main && beneath(); }, 5s))
      << "after a click on the shadow";
  ::PostMessageA(other, WM_CLOSE, 0, 0);
  EXPECT_TRUE(run.Close());
}

}  // namespace
