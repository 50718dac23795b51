// The process's start: from the command line to the main window on screen.
#pragma once

#include <string>

namespace frame {

// Runs start-up in its fixed order. Returns with the program running, or
// ends the process itself (another copy running, a library missing, no
// folder given, the folder not found).
void Startup();

// The text after the program name of a full command line, unchanged but for
// the one blank that separates it from the name.
std::string CommandLineArguments(const std::string& fullCommandLine);

// The command line without one trailing "\" or "/".
std::string TargetFolderFrom(const std::string& commandLine);

// Config.ini's LANGUAGE, or the first of LANG_ENG.DLL and LANG_ESP.DLL
// beside the program, or "".
std::string ChooseLanguageFile(const std::string& folder);

}  // namespace frame
