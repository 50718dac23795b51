// Text inside the program is UTF-8 in std::string; the system's wide calls
// take UTF-16. Every conversion happens here, at the platform's boundary.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// UTF-8 as UTF-16. A byte that starts no valid sequence becomes U+FFFD.
std::wstring Wide(std::string_view text);

// UTF-16 as UTF-8. A surrogate without its partner, which Windows allows in
// file names, keeps its own three-byte form, so that Wide gives back exactly
// the name the system handed out.
std::string Utf8(std::wstring_view text);

// True when the ANSI code page holds every character of `text`, so that an
// ANSI file written with it reads back the same.
bool FitsAnsiCodePage(std::string_view text);

}  // namespace platform
