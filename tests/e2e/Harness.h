// What the end-to-end tests share: the real Morvane.exe run in its own
// process from a scratch copy of the shipping folder, its windows found from
// outside, and the virtual display's mouse and keyboard. Built on Win32
// alone, so that it keeps working whatever the product's sources become.
#pragma once

#include <windows.h>

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace e2e {

using namespace std::chrono_literals;
inline constexpr auto kLimit = 20s;

// The control ids the program gives its elements so that tools can find them.
namespace ids {
inline constexpr int kPreview = 1102, kDefaultFolderIcon = 1103, kInfoTip = 1104;
inline constexpr int kRecentFiles = 1105, kIconList = 1106, kBrowse = 1107, kApply = 1108;
inline constexpr int kStatus = 1109;
inline constexpr int kUpdate = 1202, kWebPage = 1203, kHelp = 1204, kAboutOk = 1205;
}  // namespace ids

std::string TestFolder();  // where the test programs and test libraries are, with "\"
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& bytes);
bool IsFile(const std::string& path);
std::string IniValue(const std::string& file, const char* section, const char* key);
std::string LibraryString(const std::string& library, int id);
std::string Text(HWND window);
std::string ClassOf(HWND window);

// Wine's debugger shows a "Program Error" window when a process dies of an
// exception; true (and the window closed) when one is up.
bool CrashWindowShown();

// Polls `condition` until it holds, the limit passes or a crash window
// shows; returns whether it held.
template <typename Condition>
bool WaitUntil(Condition condition, std::chrono::milliseconds limit = kLimit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= deadline || CrashWindowShown()) return false;
    ::Sleep(10);
  }
  return true;
}

// A standard message box as the user reads it.
struct MessageBoxView {
  std::string title, text;
  std::vector<std::string> buttons;
  bool hasIcon = false;
};
MessageBoxView Read(HWND box);
// Whether the box's icon shows the system icon `which` (IDI_...), pixel by pixel.
bool ShowsSystemIcon(HWND box, LPCSTR which);
void Answer(HWND box, int button);

// Input through the system's queue, at points of a window's client area.
void Click(HWND window, POINT at, bool rightButton = false, int times = 1);
void MovePointer(HWND window, POINT at);
void ParkPointer();  // at the screen's bottom right corner
void Type(const std::string& text);
void PressKey(WORD virtualKey);
POINT Centre(HWND window);
// The window with the keyboard focus, in whichever process.
HWND FocusWindow();

// Relative path -> bytes of every file under a folder; a folder shows as
// its path with "\" and no bytes.
using Snapshot = std::map<std::string, std::string>;
std::string Differences(const Snapshot& before, const Snapshot& after);

// A scratch folder holding "program\" (a copy of the shipping folder),
// "target\" (the folder to customise) and the run of Morvane.exe on them.
class ProgramRun {
 public:
  ProgramRun();
  ~ProgramRun();
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  std::string File(const std::string& name) const { return root_ + "\\program\\" + name; }
  std::string Target(const std::string& name = "") const;
  std::string Root() const { return root_; }
  Snapshot Files() const;

  // Starts the program with `arguments` after its quoted name.
  void Start(const std::string& arguments);
  // Starts it on the target folder and waits for the main window, the end
  // of start-up and at least `icons` icons listed; sets `main`.
  bool Open(int icons = 1);
  // The main window once start-up has ended, or 0 within the limit.
  HWND WaitForMain();
  HWND WaitForWindow(const std::string& className, const std::string& title = "") const;
  HWND WaitForDialog() const { return WaitForWindow("#32770"); }
  std::vector<HWND> Windows() const;  // visible top-level windows
  bool HasEnded() const { return ::WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0; }
  bool Ended(std::chrono::milliseconds limit = kLimit) const;
  DWORD ExitCode() const;
  bool Close();  // asks the main window to close; true when the process ended

  HWND Element(int id) const { return ::GetDlgItem(main, id); }
  int IconCount() const;

  HWND main = nullptr;

 private:
  std::string root_;
  PROCESS_INFORMATION process_{};
};

// Sets a registry value for the life of the object, then puts back what
// was there before (or removes the value).
class RegistryValue {
 public:
  RegistryValue(HKEY hive, std::string key, const std::string& value);
  ~RegistryValue();
  RegistryValue(const RegistryValue&) = delete;
  RegistryValue& operator=(const RegistryValue&) = delete;

 private:
  HKEY hive_;
  std::string key_, old_;
  bool hadValue_ = false;
};

}  // namespace e2e
