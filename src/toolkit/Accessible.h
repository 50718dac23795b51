// What an element tells screen readers and automation: its name in the
// user's language, its role and state. Wine's oleacc makes no standard
// objects, so every element answers WM_GETOBJECT with an object of the
// program's own, for the system's controls as for the picture surfaces.
#pragma once

#include <windows.h>

#include <ole2.h>
#include <oleacc.h>

#include <functional>
#include <memory>
#include <string>

namespace toolkit {

struct Accessibility {
  LONG role = ROLE_SYSTEM_CLIENT;
  // Asked again at each request, so that a name follows the language and
  // what the window shows now.
  std::function<std::string()> name = {};
  std::function<std::string()> value = {};
  std::function<std::string()> description = {};
  // Added to what the window itself tells (focus, visibility, enabling).
  std::function<LONG()> extraState = {};
  std::string keyboardShortcut = {};
  // What a press through the object does (a button's click); none for an
  // element that has no action.
  std::function<void()> defaultAction = {};
};

// The answer to WM_GETOBJECT of `window` for `accessibility`; 0 (for the
// default handling) when the request is not for the client object or no
// name was given. The object lives as long as its clients hold it, and
// answers for the element only while the element lives.
LRESULT AccessibleObjectResult(HWND window, WPARAM wParam, LPARAM lParam,
                               const std::shared_ptr<const Accessibility>& accessibility);

// The message an element's window gets when a client asks for its default
// action: the client's call returns at once, as for the system's buttons,
// and the action runs from the window's own messages.
UINT DefaultActionMessage();

// Tells screen readers that the element of `window` changed (an
// EVENT_OBJECT_... event).
void AnnounceChange(HWND window, DWORD event);

}  // namespace toolkit
