// How the program reads its command line and its settings file at start.
#pragma once

#include <string>

namespace app {

// The text after the program name of a full command line, unchanged but for
// the one blank that separates it from the name.
std::string CommandLineArguments(const std::string& fullCommandLine);

// The command line without one trailing "\" or "/".
std::string TargetFolderFrom(const std::string& commandLine);

// True when the command line holds nothing but blanks.
bool IsBlankCommandLine(const std::string& commandLine);

// Config.ini's LANGUAGE in `programFolder`, or the first of LANG_ENG.DLL and
// LANG_ESP.DLL beside the program, or "".
std::string ChooseLanguageFile(const std::string& programFolder);

}  // namespace app
