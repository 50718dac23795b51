// How the program reads text typed or stored by people: blanks around
// a value do not count, paths compare in lower case, and a number is a whole
// decimal number or nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

// `text` without the spaces at either end (tabs and line breaks stay).
std::string TrimBlanks(const std::string& text);

// Lower case by the system's rule for the whole of Unicode, the same in every
// locale, so that letters of every script in a path fold as the file system
// folds them. Text of the ANSI code page folds as the ANSI calls fold it.
std::string LowerCase(const std::string& text);

// The whole number `text` spells in decimal (blanks around it and a leading
// sign allowed), or nothing when it spells something else or does not fit
// in 32 bits.
std::optional<std::int32_t> ToWholeNumber(const std::string& text);

// The characters before the first NUL; a text without a NUL gives "".
std::string TextBeforeNul(const std::string& text);

}  // namespace platform
