#include "platform/TextRules.h"

#include <windows.h>

#include <cctype>
#include <charconv>

#include "platform/Utf8.h"

namespace platform {

std::string TrimBlanks(const std::string& text) {
  auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  auto last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

std::string LowerCase(const std::string& text) {
  std::wstring lower = Wide(text);
  if (lower.empty()) return {};
  // Lower case keeps the length of every character in this mapping.
  ::LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, lower.data(),
                  static_cast<int>(lower.size()), lower.data(), static_cast<int>(lower.size()),
                  nullptr, nullptr, 0);
  return Utf8(lower);
}

std::optional<std::int32_t> ToWholeNumber(const std::string& text) {
  std::string digits = TrimBlanks(text);
  const bool hasSign = !digits.empty() && (digits.front() == '+' || digits.front() == '-');
  const std::size_t firstDigit = hasSign ? 1 : 0;
  if (digits.size() <= firstDigit ||
      !std::isdigit(static_cast<unsigned char>(digits[firstDigit]))) {
    return std::nullopt;
  }
  // from_chars takes a minus sign but not a plus sign.
  if (digits.front() == '+') digits.erase(0, 1);
  std::int32_t number = 0;
  const char* end = digits.data() + digits.size();
  auto [stop, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

std::string TextBeforeNul(const std::string& text) {
  auto nul = text.find('\0');
  return nul == std::string::npos ? std::string() : text.substr(0, nul);
}

}  // namespace platform
