#include "toolkit/MessageLoop.h"

#include <windows.h>

namespace toolkit {
namespace {
void Dispatch(MSG& message) {
  ::TranslateMessage(&message);
  ::DispatchMessageA(&message);
}
}  // namespace

void DoEvents() {
  MSG message;
  while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // Leave the quit request for the main loop that owns it.
      ::PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Dispatch(message);
  }
}

void RunMessageLoop() {
  MSG message;
  while (::GetMessageA(&message, nullptr, 0, 0) > 0) Dispatch(message);
}

}  // namespace toolkit
