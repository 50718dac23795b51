#include "toolkit/Control.h"

#include <windowsx.h>

#include "platform/Utf8.h"
#include "toolkit/ToolTips.h"

namespace toolkit {

Control::Control(std::string name, std::string kind, const wchar_t* className, DWORD style,
                 DWORD exStyle, HWND parent, const RECT& pixels, int id)
    : Element(std::move(name), std::move(kind)), id_(id) {
  HWND window = ::CreateWindowExW(
      exStyle, className, L"", style | WS_CHILD | WS_VISIBLE, pixels.left, pixels.top,
      pixels.right - pixels.left, pixels.bottom - pixels.top, parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleW(nullptr), nullptr);
  if (!window) return;
  // Screen readers and tests find the control by its name.
  ::SetWindowTextW(window, platform::Wide(Name()).c_str());
  // The procedure is swapped rather than chained with SetWindowSubclass:
  // Wine keeps that chain in a window property, and reading it is a trip to
  // the Wine server on every message: adding 1234 items to the icon list
  // took 285 ms and more, against 5 ms without.
  ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  own_ = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Control::Procedure)));
  AttachWindow(window);
}

Control::~Control() {
  if (Hwnd() && ::GetWindowLongPtrW(Hwnd(), GWLP_USERDATA) == reinterpret_cast<LONG_PTR>(this)) {
    Release(Hwnd());
    ::DestroyWindow(Hwnd());
  }
}

void Control::Release(HWND window) const {
  ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own_));
  ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
}

LRESULT Control::OwnProcedure(UINT message, WPARAM wParam, LPARAM lParam) const {
  return ::CallWindowProcW(own_, Hwnd(), message, wParam, lParam);
}

bool Control::Visible() const {
  return Hwnd() && ::IsWindowVisible(Hwnd());
}

void Control::SetVisible(bool visible) {
  if (Hwnd()) ::ShowWindow(Hwnd(), visible ? SW_SHOWNA : SW_HIDE);
}

LRESULT CALLBACK Control::Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept {
  auto* control = reinterpret_cast<Control*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  const WNDPROC own = control->own_;
  // Destroyed with its parent: the control lets go of the window here.
  if (message == WM_NCDESTROY) {
    control->Release(window);
    return ::CallWindowProcW(own, window, message, wParam, lParam);
  }
  try {
    ToolTips::Relay(window, message, wParam, lParam);
    LRESULT result = 0;
    if (control->PreviewMessage(message, wParam, lParam, result)) return result;
    if (message == WM_GETOBJECT) {
      if (LRESULT object = control->AccessibleObject(wParam, lParam)) return object;
    }
    if (IsMouseMessage(message)) {
      RaiseMouseEvent(control->mouse, message,
                      {ButtonOf(message, wParam), GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)},
                      control->pressed_);
    }
  } catch (...) {
    // A failing handler is stepped over; the control goes on as usual.
  }
  return ::CallWindowProcW(own, window, message, wParam, lParam);
}

}  // namespace toolkit
