// The program's standard message boxes: a question that only Yes answers,
// a warning, and a plain notice.
#pragma once

#include <windows.h>

#include <string>

namespace platform {

// Yes/No with the question icon; true only for Yes.
bool AskYesNo(HWND owner, const std::string& text, const std::string& title);

// OK with the exclamation icon.
void Warn(HWND owner, const std::string& text, const std::string& title);

// OK and no icon.
void Tell(HWND owner, const std::string& text, const std::string& title);

}  // namespace platform
