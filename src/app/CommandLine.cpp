#include "app/CommandLine.h"

#include "platform/FileSystem.h"
#include "platform/IniFile.h"

namespace app {
namespace {

constexpr char kEnglishLibrary[] = "LANG_ENG.DLL";
constexpr char kSpanishLibrary[] = "LANG_ESP.DLL";
constexpr char kConfigFile[] = "Config.ini";

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

}  // namespace

std::string CommandLineArguments(const std::string& fullCommandLine) {
  std::size_t at = 0;
  if (!fullCommandLine.empty() && fullCommandLine[0] == '"') {
    std::size_t closing = fullCommandLine.find('"', 1);
    at = closing == std::string::npos ? fullCommandLine.size() : closing + 1;
  } else {
    while (at < fullCommandLine.size() && !IsBlank(fullCommandLine[at])) ++at;
  }
  if (at < fullCommandLine.size() && IsBlank(fullCommandLine[at])) ++at;
  return fullCommandLine.substr(at);
}

std::string TargetFolderFrom(const std::string& commandLine) {
  if (!commandLine.empty() && (commandLine.back() == '\\' || commandLine.back() == '/')) {
    return commandLine.substr(0, commandLine.size() - 1);
  }
  return commandLine;
}

bool IsBlankCommandLine(const std::string& commandLine) {
  return commandLine.find_first_not_of(' ') == std::string::npos;
}

std::string ChooseLanguageFile(const std::string& programFolder) {
  std::string chosen = platform::ReadIniValue("Config", "LANGUAGE", programFolder + kConfigFile);
  if (!chosen.empty()) return chosen;
  if (platform::FileExists(programFolder + kEnglishLibrary)) return kEnglishLibrary;
  if (platform::FileExists(programFolder + kSpanishLibrary)) return kSpanishLibrary;
  return {};
}

}  // namespace app
