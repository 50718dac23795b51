// The target folder's customisation values, as read from and written to its
// Desktop.ini.
#pragma once

#include <cstdint>
#include <string>

namespace folder {

inline constexpr char kSettingsFileName[] = "Desktop.ini";

// Whether the target folder held a Desktop.ini when the program started.
// Set once by start-up; a later write does not change it.
inline bool settingsFileExisted = false;

}  // namespace folder
