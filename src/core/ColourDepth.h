// Whether the desktop draws custom folder icons badly: on a display of
// fewer than 16 bits per pixel with the shell's icon depth below 16 too,
// the program offers to raise the icon depth and then to restart Windows.
#pragma once

#include <cstdint>

namespace core {

inline constexpr std::int32_t kHighColourDepth = 16;

// True when both depths are below 16, so that the user is to be asked.
bool ShouldOfferDeeperIcons(std::int32_t displayDepth, std::int32_t shellIconDepth);

}  // namespace core
