#include "platform/MessageBoxes.h"

namespace platform {

bool AskYesNo(HWND owner, const std::string& text, const std::string& title) {
  return ::MessageBoxA(owner, text.c_str(), title.c_str(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void Warn(HWND owner, const std::string& text, const std::string& title) {
  ::MessageBoxA(owner, text.c_str(), title.c_str(), MB_OK | MB_ICONEXCLAMATION);
}

void Tell(HWND owner, const std::string& text, const std::string& title) {
  ::MessageBoxA(owner, text.c_str(), title.c_str(), MB_OK);
}

}  // namespace platform
