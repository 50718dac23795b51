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

ShadowWindow::ShadowWindow(toolkit::Form& owner)
    : Form(names::kShadowWindow, owner.Width(), owner.Height()), owner_(owner) {
  SetBackColor(kShadowGrey);
}

// Not listed in the taskbar: the user never works in it. It may be activated
// all the same: a click on it is what brings the main window back in front.
DWORD ShadowWindow::ExtendedStyle() const {
  return WS_EX_TOOLWINDOW;
}

void ShadowWindow::CreateElements() {
  AddTimer(kFollowTimer, kFollowInterval, [this] { Follow(); });
}

void ShadowWindow::OnLoad() {
  Resize(owner_.Width(), owner_.Height());
  ApplyWindowShape(*this);
}

// Without SWP_NOACTIVATE the main window takes the activation as well.
void ShadowWindow::OnActivate() {
  if (owner_.Loaded()) ::SetWindowPos(owner_.Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void ShadowWindow::Follow() {
  if (!owner_.Loaded()) return;
  const int left = owner_.Left() + kOffsetTwips;
  const int top = owner_.Top() + kOffsetTwips;
  if (left != Left() || top != Top()) Move(left, top);
}

}  // namespace ui
