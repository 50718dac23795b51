#include "platform/MessageBoxes.h"

#include "platform/Utf8.h"

namespace platform {

bool AskYesNo(HWND owner, const std::string& text, const std::string& title) {
  return ::MessageBoxW(owner, Wide(text).c_str(), Wide(title).c_str(),
                       MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void Warn(HWND owner, const std::string& text, const std::string& title) {
  ::MessageBoxW(owner, Wide(text).c_str(), Wide(title).c_str(), MB_OK | MB_ICONEXCLAMATION);
}

void Tell(HWND owner, const std::string& text, const std::string& title) {
  ::MessageBoxW(owner, Wide(text).c_str(), Wide(title).c_str(), MB_OK);
}

}  // namespace platform
