// A folder's customisation values, as read from and written to its
// Desktop.ini.
#pragma once

#include <cstdint>
#include <string>

namespace platform {
class ResourceLibrary;
}

namespace core {

inline constexpr char kSettingsFileName[] = "Desktop.ini";

// The icon browser sets iconFile and iconIndex when the user picks an icon,
// the info-tip box sets infoTip on every key press; nothing resets them.
struct FolderSettings {
  std::int32_t confirmFileOp = 0;
  std::int32_t noSharing = 0;
  std::string iconFile;
  std::int32_t iconIndex = 0;  // from 0, among the icons of iconFile
  std::string infoTip;
};

// `folder` + "\" + "Desktop.ini".
std::string SettingsFilePath(const std::string& folder);

// Fills `settings` from the folder's Desktop.ini. A number key that is
// missing or does not read as a number leaves its field as it was; a text
// value ends at its first line break, as every profile value does.
void ReadFolderSettings(const std::string& folder, FolderSettings& settings);

// Writes `settings` into the folder's Desktop.ini. For a file that counts as
// new (it did not exist when the program started) the shell defaults, a
// default info tip and the program's mark go in as well, and `settings`
// keeps them. Failed writes are stepped over.
void WriteFolderSettings(const std::string& folder, FolderSettings& settings, bool fileIsNew,
                         const platform::ResourceLibrary& language);

// The info tip a new Desktop.ini gets when the user typed none, composed from
// the language library's texts.
std::string DefaultInfoTip(const platform::ResourceLibrary& language);

}  // namespace core
