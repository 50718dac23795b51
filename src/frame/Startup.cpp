#include "frame/Startup.h"

#include <windows.h>

#include "folder/FolderSettings.h"
#include "frame/CResDll.h"
#include "frame/EndProgram.h"
#include "frame/RunState.h"
#include "frame/modFileExist.h"
#include "frame/modINI.h"
#include "resource_ids.h"
#include "system/modColourDepth.h"
#include "toolkit/MessageLoop.h"
#include "toolkit/ScopedHandle.h"
#include "ui/frmPrincipal.h"
#include "ui/frmShadow.h"
#include "ui/frmSplash.h"
#include "ui/modRegionForm.h"

namespace frame {
namespace {

constexpr LONG kStartSquare = 32;
constexpr char kInstanceMutexName[] = "Local\\Morvane.Running";
constexpr char kEnglishLibrary[] = "LANG_ENG.DLL";
constexpr char kSpanishLibrary[] = "LANG_ESP.DLL";
constexpr char kPictureLibrary[] = "Resource.DLL";
constexpr char kConfigFile[] = "Config.ini";

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

// Holds the instance marker for the life of the process; the system drops it
// when the process ends.
bool AnotherInstanceRunning() {
  static toolkit::ScopedKernelHandle marker;
  marker.reset(::CreateMutexA(nullptr, FALSE, kInstanceMutexName));
  return ::GetLastError() == ERROR_ALREADY_EXISTS;
}

std::string ProgramFileFolder() {
  std::string path(MAX_PATH, '\0');
  for (;;) {
    DWORD length = ::GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) return "\\";
    if (length < path.size()) {
      path.resize(length);
      break;
    }
    path.resize(path.size() * 2);
  }
  return path.substr(0, path.find_last_of('\\')) + "\\";
}

bool IsEmptyAfterTrim(const std::string& text) {
  return text.find_first_not_of(' ') == std::string::npos;
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

std::string ChooseLanguageFile(const std::string& folder) {
  std::string chosen = ReadIniValue("Config", "LANGUAGE", folder + kConfigFile);
  if (!chosen.empty()) return chosen;
  if (FileExist(folder + kEnglishLibrary)) return kEnglishLibrary;
  if (FileExist(folder + kSpanishLibrary)) return kSpanishLibrary;
  return {};
}

void Startup() {
  startingUp = true;

  POINT mouse{};
  ::GetCursorPos(&mouse);
  startRect = {mouse.x, mouse.y, mouse.x + kStartSquare, mouse.y + kStartSquare};

  if (AnotherInstanceRunning()) EndProcessNow();

  programFolder = ProgramFileFolder();
  languageFile = ChooseLanguageFile(programFolder);

  PictureLibrary().DllName(programFolder + kPictureLibrary);
  LanguageLibrary().DllName(programFolder + languageFile);
  if (PictureLibrary().DllName().empty() || LanguageLibrary().DllName().empty()) {
    EndProgram(false);
  }

  const std::string commandLine = CommandLineArguments(::GetCommandLineA());
  if (IsEmptyAfterTrim(commandLine)) {
    std::string prompt = LanguageLibrary().LoadDllString(IDS_EMPTY_COMMAND_LINE);
    ::MessageBoxA(nullptr, prompt.c_str(), kProgramName, MB_OK);
    EndProgram(false);
  }

  targetFolder = TargetFolderFrom(commandLine);
  if (!FolderExist(targetFolder)) EndProcessNow();

  folder::settingsFileExisted = FileExist(targetFolder + "\\" + folder::kSettingsFileName);
  integration::CheckColourDepth();
  if (folder::settingsFileExisted) folder::ReadFolderSettings();

  ui::FrmSplash& splash = ui::AboutWindow();
  splash.Load();
  toolkit::DoEvents();
  ui::ZoomWindow(splash, false);
  splash.Show();
  toolkit::DoEvents();

  ui::FrmPrincipal& main = ui::MainWindow();
  main.Load();
  toolkit::DoEvents();
  main.Tile();
  ui::ShadowWindow().Show();
  main.Show();
  toolkit::DoEvents();
  main.CargarIconosdeArchivo();
  toolkit::DoEvents();
  toolkit::DoEvents();

  splash.Unload();
  toolkit::DoEvents();
  startingUp = false;
}

}  // namespace frame
