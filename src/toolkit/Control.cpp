#include "toolkit/Control.h"

#include <commctrl.h>
#include <windowsx.h>

#include "platform/Utf8.h"

namespace toolkit {
namespace {
constexpr UINT_PTR kSubclassId = 1;
}

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
  ::SetWindowSubclass(window, &Control::Subclass, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
  AttachWindow(window);
}

Control::~Control() {
  if (Hwnd()) {
    ::RemoveWindowSubclass(Hwnd(), &Control::Subclass, kSubclassId);
    ::DestroyWindow(Hwnd());
  }
}

bool Control::Visible() const {
  return Hwnd() && ::IsWindowVisible(Hwnd());
}

void Control::SetVisible(bool visible) {
  if (Hwnd()) ::ShowWindow(Hwnd(), visible ? SW_SHOWNA : SW_HIDE);
}

LRESULT CALLBACK Control::Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR, DWORD_PTR self) noexcept {
  auto* control = reinterpret_cast<Control*>(self);
  try {
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
  return ::DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace toolkit
