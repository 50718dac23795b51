#include "toolkit/MessageLoop.h"

#include <windows.h>

namespace toolkit {
namespace {
void Dispatch(MSG& message) {
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
}
}  // namespace

void DoEvents() {
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
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
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) Dispatch(message);
}

}  // namespace toolkit
