#include "icons/modIcon.h"

#include <shellapi.h>

namespace icons {
namespace {

constexpr UINT kLargeIconFlags = SHGFI_ICON | SHGFI_LARGEICON;
constexpr UINT kSmallIconFlags = SHGFI_ICON | SHGFI_SMALLICON;
// No attributes are given, so the shell looks at the path itself and a path
// that does not exist gets no icon.
constexpr DWORD kNoFileAttributes = 0;

}  // namespace

bool DrawIconInPicture(HICON icon, toolkit::PictureBox& surface, std::int32_t x, std::int32_t y) {
  const bool wasPersistent = surface.AutoRedraw();
  surface.SetAutoRedraw(true);
  const bool drawn = ::DrawIcon(surface.hDC(), x, y, icon) != FALSE;
  if (drawn) surface.Refresh();
  surface.SetAutoRedraw(wasPersistent);
  return drawn;
}

toolkit::Picture GetShellIconPicture(const std::string& path, std::int32_t size) {
  SHFILEINFOA info{};
  const UINT flags = size == kLargeShellIcon ? kLargeIconFlags : kSmallIconFlags;
  // After a failed call the record may hold junk, so its handle is not read.
  if (!::SHGetFileInfoA(path.c_str(), kNoFileAttributes, &info, sizeof info, flags)) return {};
  if (!info.hIcon) return {};
  return IconToPicture(info.hIcon);
}

toolkit::Picture IconToPicture(HICON icon) {
  // From here on the picture owns the icon.
  return toolkit::Picture::Adopt(toolkit::Picture::Kind::Icon, icon);
}

}  // namespace icons
