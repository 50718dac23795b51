// Turning the chosen icon and info tip into the folder's appearance, and
// taking a customisation away again. Both act on the run's target folder,
// step over any failing step and tell the shell through the installed
// ShellNotifier.
#pragma once

#include <windows.h>

namespace folder {

// Does nothing while the icon browser shows no icons. Otherwise, after a Yes
// when `askConfirmation`, writes FolderSettings to Desktop.ini, marks file and
// folder so that the shell honours it, and sends four notifications.
void ApplyFolderIcon(bool askConfirmation);

// After a Yes, deletes Desktop.ini and morvane.ico, gives the folder normal
// attributes and sends three notifications. FolderSettings stays as it is.
void RemoveFolderIcon();

// The attributes Desktop.ini gets from its folder's: the folder's own word,
// read-only included, plus hidden and system, less the folder bit.
DWORD SettingsFileAttributes(DWORD folderAttributes);

}  // namespace folder
