// The target folder's customisation values, as read from and written to its
// Desktop.ini.
#pragma once

#include <cstdint>
#include <string>

namespace folder {

inline constexpr char kSettingsFileName[] = "Desktop.ini";

// One record for the run's one target folder. The icon browser sets iconFile
// and iconIndex when the user picks an icon, the info-tip box sets infoTip on
// every key press; nothing resets it.
struct FolderSettingsRecord {
  std::int32_t confirmFileOp = 0;
  std::int32_t noSharing = 0;
  std::string iconFile;
  std::int32_t iconIndex = 0;  // from 0, among the icons of iconFile
  std::string infoTip;
};
inline FolderSettingsRecord FolderSettings;

// Whether the target folder held a Desktop.ini when the program started.
// Set once by start-up; a later write does not change it.
inline bool settingsFileExisted = false;

// targetFolder + "\" + "Desktop.ini".
std::string SettingsFilePath();

// Fills FolderSettings from the folder's Desktop.ini. A number key that is
// missing or does not read as a number leaves its field as it was; a text
// value ends at its first line break, as every profile value does.
void ReadFolderSettings();

// Writes FolderSettings into the folder's Desktop.ini. While the file counts
// as new (settingsFileExisted false) the shell defaults, a default info tip
// and the program's mark go in as well. Failed writes are stepped over.
void WriteFolderSettings();

// The info tip a new Desktop.ini gets when the user typed none, composed from
// the language library's texts.
std::string DefaultInfoTip();

}  // namespace folder
