// Links to the maker's web server: every page is asked for through one
// redirection script, by page code and interface language.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace integration {

enum WebPage : std::int32_t { kWebPage = 0, kUpdates = 1, kHelpPage = 3 };

inline constexpr char kMakerHost[] = "www.morvane.example";

// The request address for `code` with the given client parameter.
std::string WebPageAddress(std::int32_t code, const std::string& clientParameter);
// A client parameter of its own for each request.
std::string NewClientParameter();

// Opens the page in the user's browser, maximised; nothing is reported.
void OpenWebPage(std::int32_t code, HWND owner);

}  // namespace integration
