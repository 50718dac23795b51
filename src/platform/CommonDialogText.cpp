#include "platform/CommonDialogText.h"

#include <algorithm>

#include "platform/Utf8.h"

namespace platform {
namespace {

constexpr wchar_t kFilterSeparator = L'|';
constexpr std::int32_t kTenthsPerPoint = 10;
constexpr std::int32_t kHalfPoint = kTenthsPerPoint / 2;

}  // namespace

std::wstring ConvertFilter(std::wstring_view text) {
  std::wstring list(text);
  std::replace(list.begin(), list.end(), kFilterSeparator, L'\0');
  list.push_back(L'\0');
  return list;
}

std::wstring CutAtNul(std::wstring_view text) {
  return std::wstring(text.substr(0, text.find(L'\0')));
}

std::string FaceNameToText(const wchar_t* face, std::size_t length) {
  return Utf8(CutAtNul(std::wstring_view(face, length)));
}

std::wstring FileNameBuffer(std::wstring_view text, std::size_t size) {
  if (size == 0) return {};
  std::wstring buffer(text.substr(0, size - 1));
  buffer.resize(size - 1, L' ');
  buffer.push_back(L'\0');
  return buffer;
}

std::int32_t TenthsToPoints(std::int32_t tenths) {
  std::int32_t points = tenths / kTenthsPerPoint;
  std::int32_t rest = tenths % kTenthsPerPoint;
  // Division truncates towards zero, so the rest carries the sign.
  if (rest < 0) {
    rest += kTenthsPerPoint;
    --points;
  }
  if (rest > kHalfPoint || (rest == kHalfPoint && points % 2 != 0)) ++points;
  return points;
}

}  // namespace platform
