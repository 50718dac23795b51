#include "ui/ShadowWindow.h"

#include "ui/ControlIds.h"
#include "ui/WindowShape.h"

namespace ui {
namespace {
constexpr COLORREF kShadowGrey = RGB(64, 64, 64);
constexpr int kOffsetTwips = 50;
constexpr int kFollowTimer = 1;
constexpr UINT kFollowInterval = 100;
}  // namespace

ShadowWindow::ShadowWindow(toolkit::Form& mainWindow)
    : Form(names::kShadowWindow, mainWindow.Width(), mainWindow.Height()), mainWindow_(mainWindow) {
  SetBackColor(kShadowGrey);
}

// Not listed in the taskbar and never active: the user never works in it.
DWORD ShadowWindow::ExtendedStyle() const {
  return WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
}

void ShadowWindow::CreateElements() {
  AddTimer(kFollowTimer, kFollowInterval, [this] { Follow(); });
}

void ShadowWindow::OnLoad() {
  Resize(mainWindow_.Width(), mainWindow_.Height());
  ApplyWindowShape(*this);
}

// A press on the shadow is meant for the window it belongs to.
void ShadowWindow::OnMouseDown(const toolkit::MouseEvent&) {
  if (mainWindow_.Loaded()) ::SetForegroundWindow(mainWindow_.Hwnd());
}

// Wine restacks a window on the X side only when it becomes the topmost
// window, and an owner never rises above what it owns. So the main window
// lets go of its shadow while the shadow rises, then takes it back, which
// raises it above the shadow. A window manager keeps the main window, the
// shadow's transient, above the shadow as it raises it.
void ShadowWindow::StandBeneath() {
  if (!Visible() || !mainWindow_.Visible()) return;
  mainWindow_.SetOwner(nullptr);
  ::SetWindowPos(Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  mainWindow_.SetOwner(this);
}

bool ShadowWindow::RightBeneath() const {
  HWND next = mainWindow_.Hwnd();
  while ((next = ::GetWindow(next, GW_HWNDNEXT)) && !::IsWindowVisible(next)) continue;
  return next == Hwnd();
}

// Placed behind the main window in the same call: under Wine, moving the
// shadow alone, or the main window's own move loop, can leave it above.
void ShadowWindow::Follow() {
  if (!mainWindow_.Loaded()) return;
  const int left = mainWindow_.Left() + kOffsetTwips;
  const int top = mainWindow_.Top() + kOffsetTwips;
  if (left == Left() && top == Top() && RightBeneath()) return;
  ::SetWindowPos(Hwnd(), mainWindow_.Hwnd(), ToPixels(left), ToPixels(top), 0, 0,
                 SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace ui
