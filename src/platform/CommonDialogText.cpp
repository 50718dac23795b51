#include "platform/CommonDialogText.h"

#include <algorithm>

namespace platform {
namespace {

constexpr char kFilterSeparator = '|';
constexpr std::int32_t kTenthsPerPoint = 10;
constexpr std::int32_t kHalfPoint = kTenthsPerPoint / 2;

}  // namespace

std::string ConvertFilter(std::string_view text) {
  std::string list(text);
  std::replace(list.begin(), list.end(), kFilterSeparator, '\0');
  list.push_back('\0');
  return list;
}

std::string CutAtNul(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

std::string FaceNameToText(const char* bytes, std::size_t length) {
  return CutAtNul(std::string_view(bytes, length));
}

std::string FileNameBuffer(std::string_view text, std::size_t size) {
  if (size == 0) return {};
  std::string buffer(text.substr(0, size - 1));
  buffer.resize(size - 1, ' ');
  buffer.push_back('\0');
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
