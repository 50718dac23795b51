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

// Not ExtractIconEx: it makes the system's large and small sizes only, and
// a per-monitor aware window may need another.
HICON IconFile::Extract(std::int32_t index, int size) const {
  if (!intact_ || index == kCountOnly || size <= 0) return nullptr;
  HICON icon = nullptr;
  UINT id = 0;
  UINT answer = ::PrivateExtractIconsW(systemPath_.c_str(), index, size, size, &icon, &id, kOneIcon,
                                       LR_DEFAULTCOLOR);
  // The slot holds junk after a failed call, so it is read only after a
  // successful one.
  if (ExtractedNothing(answer)) return nullptr;
  return icon;
}

void ReleaseIcon(HICON icon) {
  if (icon) ::DestroyIcon(icon);
}

}  // namespace platform
