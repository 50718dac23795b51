// Turning the chosen icon and info tip into a folder's appearance, and
// taking a customisation away again. Every failing step is stepped over;
// the shell hears of each change through the given notifier.
#pragma once

#include <windows.h>

#include <string>

#include "core/FolderSettings.h"

namespace platform {
class ShellNotifier;
}

namespace core {

// Writes `settings` to the folder's Desktop.ini, marks file and folder so
// that the shell honours it, and sends four notifications.
void ApplyFolderIcon(const std::string& folder, FolderSettings& settings, bool fileIsNew,
                     const platform::ResourceLibrary& language, platform::ShellNotifier& shell);

// Removal comes in two halves, because the program lets pending window
// messages run between them: first the files go (Desktop.ini and a
// morvane.ico in the folder), then the folder's attributes are made normal
// and the shell is told (three notifications; the deleted file itself is
// not announced).
void DeleteCustomisationFiles(const std::string& folder);
void UnmarkFolder(const std::string& folder, platform::ShellNotifier& shell);

// The attributes Desktop.ini gets from its folder's: the folder's own word,
// read-only included, plus hidden and system, less the folder bit.
DWORD SettingsFileAttributes(DWORD folderAttributes);

}  // namespace core
