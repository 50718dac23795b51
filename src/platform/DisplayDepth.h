// The display's colour depth, the shell's icon colour depth, and the restart
// that makes a new icon depth take effect.
#pragma once

#include <cstdint>

namespace platform {

// Bits per pixel of the display; 0 when it cannot be asked.
std::int32_t DisplayColourDepth();
// "Shell Icon BPP" of the current user as a whole number; 0 when missing.
std::int32_t ShellIconDepth();
// Writes the text "16" over an existing "Shell Icon BPP"; a missing value
// stays missing.
void RaiseShellIconDepth();
// Asks Windows to restart the computer; a refusal is not reported.
void RestartWindows();

}  // namespace platform
