// The display's colour depth and the shell's icon colour depth: a low-colour
// desktop draws custom folder icons badly unless the icon depth is raised.
#pragma once

#include <cstdint>
#include <functional>

namespace integration {

// Bits per pixel of the display.
std::int32_t GetDisplayColourDepth();
// "Shell Icon BPP" of the current user as a whole number; 0 when missing.
std::int32_t GetShellIconDepth();
// Writes the text "16" over an existing "Shell Icon BPP"; a missing value
// stays missing.
void RaiseShellIconDepth();

// Where start-up's check takes the display depth from; tests put in a
// depth of their own.
inline std::function<std::int32_t()> displayColourDepthSource = GetDisplayColourDepth;

// Start-up's check: with both depths below 16 it offers to raise the icon
// depth and then to restart Windows; Yes to both ends the program with a
// restart.
void CheckColourDepth();

}  // namespace integration
