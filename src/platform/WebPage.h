// Links to the maker's web server: every page is asked for through one
// redirection script, by page code and interface language.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace platform {

enum WebPage : std::int32_t { kWebPage = 0, kUpdates = 1, kHelpPage = 3 };

inline constexpr char kMakerHost[] = "www.morvane.example";

// The request address for page `code` with the given client parameter and
// language code ("en", "es").
std::string WebPageAddress(std::int32_t code, const std::string& clientParameter,
                           const std::string& languageCode);
// A fresh random identifier: it tells requests apart without saying anything
// about the user.
std::string NewClientParameter();

// Opens the page in the user's browser, maximised, with `workingFolder` as
// the browser's folder; nothing is reported.
void OpenWebPage(std::int32_t code, const std::string& languageCode, HWND owner,
                 const std::string& workingFolder);

}  // namespace platform
