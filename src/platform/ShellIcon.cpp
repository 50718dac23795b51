#include "platform/ShellIcon.h"

#include <shellapi.h>

#include "platform/SystemPath.h"

namespace platform {
namespace {

constexpr UINT kLargeIconFlags = SHGFI_ICON | SHGFI_LARGEICON;
constexpr UINT kSmallIconFlags = SHGFI_ICON | SHGFI_SMALLICON;
// No attributes are given, so the shell looks at the path itself and a path
// that does not exist gets no icon.
constexpr DWORD kNoFileAttributes = 0;

}  // namespace

Picture ShellIconPicture(const std::string& path, std::int32_t size) {
  SHFILEINFOW info{};
  const UINT flags = size == kLargeShellIcon ? kLargeIconFlags : kSmallIconFlags;
  // After a failed call the record may hold junk, so its handle is not read.
  if (!::SHGetFileInfoW(ShellPath(path).c_str(), kNoFileAttributes, &info, sizeof info, flags)) {
    return {};
  }
  if (!info.hIcon) return {};
  return IconToPicture(info.hIcon);
}

Picture IconToPicture(HICON icon) {
  // From here on the picture owns the icon.
  return Picture::Adopt(Picture::Kind::Icon, icon);
}

int SystemIconIndex(const std::string& path) {
  SHFILEINFOW info{};
  // The record is larger in a 64-bit build than the 352 bytes of a 32-bit
  // one; the system must be told the size it writes into.
  ::SHGetFileInfoW(ShellPath(path).c_str(), kNoFileAttributes, &info, sizeof info,
                   SHGFI_SYSICONINDEX);
  return info.iIcon;
}

}  // namespace platform
