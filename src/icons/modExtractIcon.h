// Counting, extracting and releasing the icons stored in a file: an icon
// file, a program or a library. A handle from ExtractLargeIcon belongs to
// the caller until it goes back through ReleaseIcon (or to a picture, see
// IconToPicture in modIcon.h).
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace icons {

// The number of icons in `file`; 0 for a missing, unreadable or empty path
// and for a file that holds no icons.
std::int32_t GetIconCount(const std::string& file);

// The large icon at 0-based position `index` of `file`, or 0. The index goes
// to the system unchanged: -1 and positions at or past the count give 0, and
// other negative values name an icon by its resource identifier.
HICON ExtractLargeIcon(const std::string& file, std::int32_t index);

// Destroys an extracted icon; 0 is allowed and does nothing.
void ReleaseIcon(HICON icon);

}  // namespace icons
