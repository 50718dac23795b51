// Run-wide state set by start-up and read by the rest of the program.
// One user-interface thread owns all of it.
#pragma once

#include <windows.h>

#include <string>

namespace frame {

inline constexpr char kProgramName[] = "Morvane";

// True while start-up runs; the about window behaves as a splash meanwhile.
inline bool startingUp = false;
// A 32 x 32 square at the mouse position when the program started, in screen
// pixels: where the window animations start and end.
inline RECT startRect{};
// The program file's folder, always with "\" appended.
inline std::string programFolder;
// File name of the language library, relative to programFolder.
inline std::string languageFile;
// The folder being customised: the command line minus one trailing separator.
inline std::string targetFolder;

// The icon file whose icons the browser shows.
inline std::string currentIconFile;
// True while the browser shows only the placeholder of a file without icons.
inline bool iconListEmpty = false;
// True while the icons of a file are being loaded into the browser.
inline bool loadingIcons = false;
// True while the icon-file chooser is open.
inline bool browsingForFile = false;

}  // namespace frame
