#include "toolkit/MouseEvents.h"

namespace toolkit {

bool IsMouseMessage(UINT message) {
  return message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK;
}

int ButtonOf(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK: return MK_LBUTTON;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK: return MK_RBUTTON;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_MBUTTONDBLCLK: return MK_MBUTTON;
    default:
      return (wParam & MK_LBUTTON)   ? MK_LBUTTON
             : (wParam & MK_RBUTTON) ? MK_RBUTTON
             : (wParam & MK_MBUTTON) ? MK_MBUTTON
                                     : 0;
  }
}

void RaiseMouseEvent(MouseHandlers& target, UINT message, const MouseEvent& event,
                     MouseHandlers*& pressed, bool inside) {
  switch (message) {
    case WM_MOUSEMOVE:
      if (target.onMouseMove) target.onMouseMove(event);
      return;
    case WM_LBUTTONDBLCLK:
      if (target.onDblClick) {
        target.onDblClick();
        return;
      }
      // Without a double-click of its own the second press is a press like
      // the first: a button pressed twice quickly acts twice.
      [[fallthrough]];
    case WM_LBUTTONDOWN: pressed = &target; [[fallthrough]];
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
      if (target.onMouseDown) target.onMouseDown(event);
      return;
    case WM_LBUTTONUP: {
      bool click = pressed == &target && inside;
      pressed = nullptr;
      if (target.onMouseUp) target.onMouseUp(event);
      if (click && target.onClick) target.onClick();
      return;
    }
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      if (target.onMouseUp) target.onMouseUp(event);
      return;
    default: return;
  }
}

}  // namespace toolkit
