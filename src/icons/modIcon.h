// Icons on their way to the screen: drawn into a picture surface so that the
// drawing lasts, asked from the shell for a file or folder, and wrapped in a
// picture object that window elements can show.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "toolkit/Picture.h"
#include "toolkit/PictureBox.h"

namespace icons {

// The `size` that asks GetShellIconPicture for the large icon; any other
// value gives the small one.
inline constexpr std::int32_t kLargeShellIcon = 2;

// Draws `icon` at its own size with its top-left corner at (x, y), into the
// surface's persistent image; transparent parts of the icon leave the
// surface's pixels as they were. True when drawn. The surface's AutoRedraw
// switch is the same afterwards, whatever happened.
bool DrawIconInPicture(HICON icon, toolkit::PictureBox& surface, std::int32_t x, std::int32_t y);

// The icon the shell shows for an existing file or folder, as a picture; no
// picture for a path that does not exist.
toolkit::Picture GetShellIconPicture(const std::string& path, std::int32_t size);

// Hands `icon` over to a new picture, which destroys it with its last
// reference. The caller must not release the icon afterwards, even when no
// picture could be made. No picture for 0.
toolkit::Picture IconToPicture(HICON icon);

}  // namespace icons
