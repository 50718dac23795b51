#include "platform/IconFile.h"

#include <shellapi.h>

#include <limits>

#include "platform/IconFileShape.h"
#include "platform/ScopedHandle.h"
#include "platform/SystemPath.h"

namespace platform {
namespace {

// Asked for this position, the system extracts nothing and answers the count.
constexpr int kCountOnly = -1;
constexpr UINT kOneIcon = 1;

// Wine answers a path it cannot open (missing, empty) with all bits set
// instead of 0, and then leaves junk in both output slots. Nothing was
// extracted either way.
bool ExtractedNothing(UINT answer) {
  return answer == 0 || answer == std::numeric_limits<UINT>::max();
}

}  // namespace

IconFile::IconFile(std::string path)
    : path_(std::move(path)), systemPath_(ShellPath(path_)), intact_(IconSourceIsIntact(path_)) {}

std::int32_t IconFile::Count() const {
  if (!intact_) return 0;
  HICON large = nullptr;
  HICON small = nullptr;
  UINT count = ::ExtractIconExW(systemPath_.c_str(), kCountOnly, &large, &small, kOneIcon);
  if (ExtractedNothing(count) || count > std::numeric_limits<std::int32_t>::max()) return 0;
  return static_cast<std::int32_t>(count);
}

HICON IconFile::ExtractLarge(std::int32_t index) const {
  if (!intact_) return nullptr;
  HICON large = nullptr;
  HICON small = nullptr;
  UINT answer = ::ExtractIconExW(systemPath_.c_str(), index, &large, &small, kOneIcon);
  // The slots hold junk after a failed call, so they are read only after a
  // successful one.
  if (ExtractedNothing(answer)) return nullptr;
  // The system made a small icon as well; only the large one is handed out.
  ScopedIcon unwanted(small);
  return large;
}

void ReleaseIcon(HICON icon) {
  if (icon) ::DestroyIcon(icon);
}

}  // namespace platform
