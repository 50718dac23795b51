#include "app/Run.h"

#include <windows.h>

#include "app/CommandLine.h"
#include "core/ColourDepth.h"
#include "platform/DisplayDepth.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Utf8.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"
#include "ui/ProgramFont.h"
#include "ui/WindowShape.h"

namespace app {
namespace {

constexpr char kProgramName[] = "Morvane";
constexpr LONG kStartSquare = 32;
constexpr wchar_t kInstanceMarkerName[] = L"Local\\Morvane.Running";
constexpr char kPictureLibrary[] = "Resource.DLL";

std::string ProgramFileFolder() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) return "\\";
    if (length < path.size()) {
      path.resize(length);
      break;
    }
    path.resize(path.size() * 2);
  }
  return platform::Utf8(path.substr(0, path.find_last_of(L'\\'))) + "\\";
}

[[noreturn]] void EndProcessNow() {
  ::ExitProcess(0);
}

}  // namespace

// The marker lives as long as the run; the system drops it when the process
// ends.
bool Run::AnotherCopyRunning() {
  instanceMarker_.reset(::CreateMutexW(nullptr, FALSE, kInstanceMarkerName));
  return ::GetLastError() == ERROR_ALREADY_EXISTS;
}

bool Run::Agrees(int notice, int question) const {
  return platform::AskYesNo(nullptr, language_.String(notice) + "\r\n" + language_.String(question),
                            kProgramName);
}

void Run::CheckColourDepth() {
  const std::int32_t displayDepth = platform::DisplayColourDepth();
  if (!core::ShouldOfferDeeperIcons(displayDepth, platform::ShellIconDepth())) return;
  if (!Agrees(IDS_LOW_DEPTH_NOTICE, IDS_LOW_DEPTH_QUESTION)) return;
  platform::RaiseShellIconDepth();
  if (Agrees(IDS_RESTART_NOTICE, IDS_RESTART_QUESTION)) End(true);
}

void Run::Start() {
  POINT mouse{};
  ::GetCursorPos(&mouse);
  startRect_ = {mouse.x, mouse.y, mouse.x + kStartSquare, mouse.y + kStartSquare};

  if (AnotherCopyRunning()) EndProcessNow();

  programFolder_ = ProgramFileFolder();
  const std::string languageFile = ChooseLanguageFile(programFolder_);
  pictures_.Open(programFolder_ + kPictureLibrary);
  language_.Open(programFolder_ + languageFile);
  if (pictures_.Name().empty() || language_.Name().empty()) End(false);

  const std::string commandLine = CommandLineArguments(platform::Utf8(::GetCommandLineW()));
  if (IsBlankCommandLine(commandLine)) {
    platform::Tell(nullptr, language_.String(IDS_EMPTY_COMMAND_LINE), kProgramName);
    End(false);
  }

  targetFolder_ = TargetFolderFrom(commandLine);
  if (!platform::FolderExists(targetFolder_)) EndProcessNow();

  settingsFileExisted_ = platform::FileExists(core::SettingsFilePath(targetFolder_));
  CheckColourDepth();
  if (settingsFileExisted_) core::ReadFolderSettings(targetFolder_, settings_);

  context_.emplace(
      ui::WindowContext{language_, pictures_, programFolder_, targetFolder_, startRect_});
  about_ = std::make_unique<ui::AboutWindow>(*context_);
  main_ =
      std::make_unique<ui::MainWindow>(*context_, settings_, settingsFileExisted_, *about_, [this] {
        ReleaseLibraries();
        End(false);
      });

  ui::AboutWindow& splash = *about_;
  splash.SetSplash(true);
  splash.Load();
  toolkit::DoEvents();
  ui::ZoomWindow(splash, false, startRect_);
  splash.Show();
  toolkit::DoEvents();

  ui::MainWindow& main = *main_;
  // The splash can be read over the main window until start-up closes it,
  // without standing in front of other programs.
  main.StayBehind(&splash);
  main.Load();
  toolkit::DoEvents();
  main.Tile();
  main.Shadow().Show();
  main.Show();
  toolkit::DoEvents();
  main.LoadIcons();
  toolkit::DoEvents();
  toolkit::DoEvents();

  // Active before the splash goes: the main window takes the keyboard and
  // the pointer's tips the moment the splash is seen to close.
  main.StayBehind(nullptr);
  splash.Unload();
  toolkit::DoEvents();
  splash.SetSplash(false);
}

bool Run::HasWindows() const {
  return (about_ && about_->Loaded()) || (main_ && (main_->Loaded() || main_->Shadow().Loaded()));
}

void Run::ReleaseLibraries() {
  pictures_.Close();
  language_.Close();
}

void Run::End(bool restartWindows) {
  ui::RemoveProgramFont(programFolder_);
  toolkit::Form* windows[] = {about_.get(), main_.get(), main_ ? &main_->Shadow() : nullptr};
  for (toolkit::Form* window : windows) {
    // An earlier unload may have closed this one already.
    if (window && window->Loaded() && !window->Closing()) window->Unload();
  }
  ReleaseLibraries();
  if (restartWindows) platform::RestartWindows();
  EndProcessNow();
}

}  // namespace app
