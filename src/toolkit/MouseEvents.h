// Mouse events of elements as a form designer knows them: press, move,
// release, click (a left press and release on the same element) and
// double-click, made from the window messages.
#pragma once

#include <windows.h>

#include <functional>

namespace toolkit {

struct MouseEvent {
  int button;  // MK_LBUTTON, MK_RBUTTON or MK_MBUTTON; 0 on a move without one
  int x;       // relative to the element, in its unit
  int y;
};

struct MouseHandlers {
  std::function<void(const MouseEvent&)> onMouseDown;
  std::function<void(const MouseEvent&)> onMouseMove;
  std::function<void(const MouseEvent&)> onMouseUp;
  std::function<void()> onClick;
  std::function<void()> onDblClick;
};

bool IsMouseMessage(UINT message);
int ButtonOf(UINT message, WPARAM wParam);

// Raises the event that `message` means on `target`. `pressed` remembers
// which target the left button went down on, so that only a release on that
// same target makes a click; `inside` tells whether the release happened
// over the target.
void RaiseMouseEvent(MouseHandlers& target, UINT message, const MouseEvent& event,
                     MouseHandlers*& pressed, bool inside = true);

}  // namespace toolkit
