#include "toolkit/MessageLoop.h"

namespace toolkit {

UINT KeyPreviewMessage() {
  static const UINT message = ::RegisterWindowMessageW(L"Morvane.KeyPreview");
  return message;
}

void Dispatch(MSG& message) {
  if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) {
    HWND top = ::GetAncestor(message.hwnd, GA_ROOT);
    if (top && ::SendMessageW(top, KeyPreviewMessage(), 0, reinterpret_cast<LPARAM>(&message))) {
      return;
    }
  }
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
}

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
