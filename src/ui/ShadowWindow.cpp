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

void ShadowWindow::Follow() {
  if (!mainWindow_.Loaded()) return;
  const int left = mainWindow_.Left() + kOffsetTwips;
  const int top = mainWindow_.Top() + kOffsetTwips;
  if (left != Left() || top != Top()) Move(left, top);
}

}  // namespace ui
