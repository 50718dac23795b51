#include "platform/Utf8.h"

#include <windows.h>

#include <iterator>

namespace platform {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;
constexpr char32_t kFirstTwoUnits = 0x10000;  // the first code point UTF-16 splits in two
constexpr char32_t kHighSurrogate = 0xD800;
constexpr char32_t kLowSurrogate = 0xDC00;
constexpr char32_t kSurrogateEnd = 0xE000;
constexpr int kSurrogateBits = 10;
constexpr char32_t kSurrogateMask = 0x3FF;
constexpr int kContinuationBits = 6;
constexpr unsigned char kContinuationMask = 0xC0;
constexpr unsigned char kContinuationMark = 0x80;
constexpr unsigned char kContinuationValue = 0x3F;

// The UTF-8 sequences by length: the lead byte's marker bits, and the
// smallest code point that needs that length (a smaller one is overlong).
struct Form {
  unsigned char leadMask, leadMark;
  std::size_t length;
  char32_t smallest;
};
constexpr Form kForms[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

// The code point of the sequence at `at`, which moves past it. A sequence
// cut short, overlong or out of range gives U+FFFD and moves one byte.
// Surrogates pass, so that the lone ones Utf8 keeps come back.
char32_t Decode(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  for (const Form& form : kForms) {
    if ((lead & form.leadMask) != form.leadMark) continue;
    if (at + form.length > text.size()) break;
    char32_t point = lead & static_cast<unsigned char>(~form.leadMask);
    bool whole = true;
    for (std::size_t n = 1; n < form.length; ++n) {
      const auto next = static_cast<unsigned char>(text[at + n]);
      whole = whole && (next & kContinuationMask) == kContinuationMark;
      point = (point << kContinuationBits) | (next & kContinuationValue);
    }
    if (!whole || point < form.smallest || point > kLastCodePoint) break;
    at += form.length;
    return point;
  }
  ++at;
  return kReplacement;
}

void Encode(char32_t point, std::string& out) {
  const Form* form = kForms;
  while (form + 1 != std::end(kForms) && point >= form[1].smallest) ++form;
  const int tail = static_cast<int>(form->length) - 1;
  out += static_cast<char>(form->leadMark | (point >> (tail * kContinuationBits)));
  for (int n = tail - 1; n >= 0; --n) {
    out += static_cast<char>(kContinuationMark |
                             ((point >> (n * kContinuationBits)) & kContinuationValue));
  }
}

bool IsHigh(char32_t unit) {
  return unit >= kHighSurrogate && unit < kLowSurrogate;
}
bool IsLow(char32_t unit) {
  return unit >= kLowSurrogate && unit < kSurrogateEnd;
}

}  // namespace

std::wstring Wide(std::string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const char32_t point = Decode(text, at);
    if (point < kFirstTwoUnits) {
      wide += static_cast<wchar_t>(point);
    } else {
      const char32_t above = point - kFirstTwoUnits;
      wide += static_cast<wchar_t>(kHighSurrogate + (above >> kSurrogateBits));
      wide += static_cast<wchar_t>(kLowSurrogate + (above & kSurrogateMask));
    }
  }
  return wide;
}

std::string Utf8(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char32_t unit = static_cast<char16_t>(text[at]);
    const char32_t next = at + 1 < text.size() ? static_cast<char16_t>(text[at + 1]) : 0;
    if (IsHigh(unit) && IsLow(next)) {
      Encode(kFirstTwoUnits + ((unit - kHighSurrogate) << kSurrogateBits) + (next - kLowSurrogate),
             bytes);
      ++at;
    } else {
      Encode(unit, bytes);
    }
  }
  return bytes;
}

bool FitsAnsiCodePage(std::string_view text) {
  const std::wstring wide = Wide(text);
  if (wide.empty()) return true;
  const int length = static_cast<int>(wide.size());
  const int size =
      ::WideCharToMultiByte(CP_ACP, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
  std::string ansi(static_cast<std::size_t>(size), '\0');
  ::WideCharToMultiByte(CP_ACP, 0, wide.data(), length, ansi.data(), size, nullptr, nullptr);
  // Whatever the code page cannot hold comes back as something else.
  std::wstring back(wide.size(), L'\0');
  back.resize(static_cast<std::size_t>(::MultiByteToWideChar(
      CP_ACP, 0, ansi.data(), size, back.data(), static_cast<int>(back.size()))));
  return back == wide;
}

}  // namespace platform
