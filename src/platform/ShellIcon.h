// The icons the shell shows for files and folders, as pictures that window
// elements can hold.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "platform/Picture.h"

namespace platform {

// The `size` that asks ShellIconPicture for the large icon; any other value
// gives the small one.
inline constexpr std::int32_t kLargeShellIcon = 2;

// The icon the shell shows for an existing file or folder, as a picture; no
// picture for a path that does not exist.
Picture ShellIconPicture(const std::string& path, std::int32_t size);

// Hands `icon` over to a new picture, which destroys it with its last
// reference. The caller must not release the icon afterwards, even when no
// picture could be made. No picture for 0.
Picture IconToPicture(HICON icon);

// The folder's position in the system image list; 0 when the lookup fails.
int SystemIconIndex(const std::string& path);

}  // namespace platform
