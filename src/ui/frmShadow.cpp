#include "ui/frmShadow.h"

#include "ui/frmPrincipal.h"
#include "ui/modRegionForm.h"

namespace ui {
namespace {
constexpr COLORREF kShadowGrey = RGB(64, 64, 64);
constexpr int kOffsetTwips = 50;
constexpr int kTimer1 = 1;
constexpr UINT kTimer1Interval = 100;
}  // namespace

FrmShadow::FrmShadow(toolkit::Form& owner)
    : Form("frmShadow", owner.Width(), owner.Height()), owner_(owner) {
  SetBackColor(kShadowGrey);
}

FrmShadow& ShadowWindow() {
  static FrmShadow shadow(MainWindow());
  return shadow;
}

// Not listed in the taskbar: the user never works in it. It may be activated
// all the same: a click on it is what brings the main window back in front.
DWORD FrmShadow::ExtendedStyle() const {
  return WS_EX_TOOLWINDOW;
}

void FrmShadow::CreateElements() {
  AddTimer(kTimer1, kTimer1Interval, [this] { Timer1(); });
}

void FrmShadow::OnLoad() {
  Resize(owner_.Width(), owner_.Height());
  ApplyWindowShape(*this);
}

// Without SWP_NOACTIVATE the main window takes the activation as well.
void FrmShadow::OnActivate() {
  if (owner_.Loaded()) ::SetWindowPos(owner_.Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void FrmShadow::Timer1() {
  if (!owner_.Loaded()) return;
  const int left = owner_.Left() + kOffsetTwips;
  const int top = owner_.Top() + kOffsetTwips;
  if (left != Left() || top != Top()) Move(left, top);
}

}  // namespace ui
