// The real Morvane.exe run in its own process from a scratch copy of the
// shipping folder, seen and driven from outside as a user would. Win32 only,
// so that it keeps building whatever the product's sources become. Text is
// UTF-8, as in the program; the system is asked through its wide calls.
#pragma once

#include <windows.h>

#include <chrono>
#include <string>
#include <vector>

#include "support/Files.h"

namespace e2e {

using namespace testing_support;

using namespace std::chrono_literals;
// Long enough for the slowest start (a 1 MB Desktop.ini) on a busy machine.
inline constexpr auto kLimit = 60s;

// The control ids the program gives its elements so that tools can find them.
namespace ids {
inline constexpr int kPreview = 1102, kDefaultFolderIcon = 1103, kInfoTip = 1104;
inline constexpr int kRecentFiles = 1105, kIconList = 1106, kBrowse = 1107, kApply = 1108;
inline constexpr int kStatus = 1109, kExit = 1110, kUpdate = 1202, kWebPage = 1203, kHelp = 1204,
                     kOk = 1205;
}  // namespace ids

std::string LibraryString(const std::string& library, int id);
std::string Text(HWND window);
std::string ControlText(HWND control);  // what a text box holds, through the box
std::string ClassOf(HWND window);
std::vector<HWND> TopWindows();  // visible ones
// Closes Wine's "Program Error" window, shown when a process dies of an exception.
bool CrashWindowShown();

// Polls until `condition` holds (true), or the limit passes or a crash window shows.
template <typename Condition>
bool WaitUntil(Condition condition, std::chrono::milliseconds limit = kLimit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  for (; !condition(); ::Sleep(10))
    if (std::chrono::steady_clock::now() >= deadline || CrashWindowShown()) return false;
  return true;
}

struct MessageBoxView {
  std::string title, text;
  std::vector<std::string> buttons;
  HWND icon = nullptr;  // its picture, when it shows one
};
MessageBoxView Read(HWND box);
// Whether `icon` shows the system icon `which` (IDI_...) pixel for pixel.
bool ShowsSystemIcon(HWND icon, LPCSTR which);
void Answer(HWND box, int button);

// Mouse input at a point of a window's client area (through X when relayed).
void Click(HWND window, POINT at, bool rightButton = false, int times = 1);
void MovePointer(HWND window, POINT at);  // no window: screen coordinates
// Drags the window by `by` from `from`; true once the screen shows it followed.
bool Drag(HWND window, POINT from, SIZE by);
COLORREF ScreenPixel(POINT at);
// A square of the screen from `at`, or `icon` drawn over `back`, as RGB values.
std::vector<COLORREF> Pixels(int side, POINT at, HICON icon = nullptr, COLORREF back = 0);
void Type(const std::string& text);
void PressKey(WORD virtualKey, WORD heldKey = 0);  // heldKey (VK_SHIFT, VK_MENU) around it
POINT Centre(HWND window);
// The tool tip that shows when the pointer rests at a point of a window.
std::string TipAt(HWND window, POINT at);
HWND FocusWindow();  // of whichever process has the foreground

// A scratch folder holding "program\" (a copy of the shipping folder) and
// "target\" (the folder to customise), and a run of Morvane.exe on them.
class ProgramRun {
 public:
  ProgramRun();
  ~ProgramRun();
  ProgramRun(const ProgramRun&) = delete;
  ProgramRun& operator=(const ProgramRun&) = delete;

  std::string Root() const { return root_; }
  std::string File(const std::string& name) const { return root_ + "\\program\\" + name; }
  std::string Target(const std::string& name = "") const;
  // Paths under Root() that differ from `before`, apart from the font file.
  std::string Changes(const std::vector<std::string>& allowed = {}) const;
  void Remember() { before_ = Files(); }
  std::string Setting(const char* key) const;  // of the target's Desktop.ini

  void Start(const std::string& arguments);  // after the program's quoted name
  // Starts it on the target folder, or on `folder`; true once the main window
  // is up, start-up over and `icons` icons listed.
  bool Open(int icons = 1, const std::string& folder = "");
  HWND WaitForMain();
  HWND WaitForWindow(const std::string& className, const std::string& title = "") const;
  HWND WaitForDialog() const { return WaitForWindow("#32770"); }
  std::vector<HWND> Windows() const;
  bool HasEnded() const { return ::WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0; }
  bool Ended() const {
    return WaitUntil([&] { return HasEnded(); });
  }
  DWORD ExitCode() const;
  bool Close();  // true when the process ended

  HWND Element(int id) const { return ::GetDlgItem(main, id); }
  int IconCount() const;

  HWND main = nullptr;

 private:
  std::map<std::string, std::string> Files() const;

  std::string root_;
  std::map<std::string, std::string> before_;
  PROCESS_INFORMATION process_{};
};

// The centre of the icon at `position` (from 1) in the list's first row.
POINT IconAt(int position);
// Clicks an icon and waits for the apply button, the sign that the click was
// handled: input sent on meanwhile could be taken by the list for a drag.
bool Pick(const ProgramRun& run, int position);
// Clicks an element and returns the message box or dialog it brings up.
HWND ClickForBox(const ProgramRun& run, int element, int times = 1);
// Chooses the first line of the recent files box with the keyboard.
bool ChooseFirstRecentFile(const ProgramRun& run);

}  // namespace e2e
