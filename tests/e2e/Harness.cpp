#include "Harness.h"

#include <commctrl.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace e2e {
namespace {

std::string FullPath(const std::string& path) {
  wchar_t buffer[MAX_PATH * 4] = {};
  const DWORD length = ::GetFullPathNameW(Wide(path).c_str(), MAX_PATH * 4, buffer, nullptr);
  return Utf8(std::wstring(buffer, length));
}

// SendInput stays inside Wine, unseen by a window manager: while the test
// script relays input through X, its pipe (MORVANE_X_INPUT) takes it instead.
void SendMouse(POINT screen, DWORD buttons = 0) {
  if (const char* relay = std::getenv("MORVANE_X_INPUT")) {
    std::ofstream(relay, std::ios::binary) << screen.x << " " << screen.y << " " << buttons << "\n";
    return;
  }
  INPUT input{};
  input.type = INPUT_MOUSE;
  // Wine maps absolute input coordinates back as x * width / 65536.
  const LONG width = ::GetSystemMetrics(SM_CXSCREEN), height = ::GetSystemMetrics(SM_CYSCREEN);
  input.mi.dx = (screen.x * 65536 + width - 1) / width;
  input.mi.dy = (screen.y * 65536 + height - 1) / height;
  input.mi.dwFlags = buttons | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  ::SendInput(1, &input, sizeof input);
}

void SendKey(WORD virtualKey, WORD scan, DWORD flags) {
  INPUT key[2] = {};
  for (INPUT& k : key) k.type = INPUT_KEYBOARD, k.ki.wVk = virtualKey, k.ki.wScan = scan;
  key[0].ki.dwFlags = flags;
  key[1].ki.dwFlags = flags | KEYEVENTF_KEYUP;
  ::SendInput(2, key, sizeof(INPUT));
}

}  // namespace

std::string ClassOf(HWND window) {
  char buffer[256] = {};
  return std::string(buffer, std::max(0, ::GetClassNameA(window, buffer, sizeof buffer)));
}

// The visible ones, from top to bottom. Taken in one snapshot: walking the
// order window by window misses one that moves up past the walk meanwhile.
std::vector<HWND> TopWindows() {
  std::vector<HWND> found;
  ::EnumWindows(
      [](HWND window, LPARAM list) {
        if (::IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

std::string LibraryString(const std::string& library, int id) {
  HMODULE module = ::LoadLibraryExW(Wide(library).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  wchar_t text[4096] = {};
  const int length = module ? ::LoadStringW(module, id, text, 4096) : 0;
  if (module) ::FreeLibrary(module);
  return Utf8({text, static_cast<size_t>(length)});
}

std::string Text(HWND window) {
  std::wstring text(::GetWindowTextLengthW(window) + 1, L'\0');
  text.resize(std::max(0, ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return Utf8(text);
}

// Asked of the control itself: an edit control keeps what it holds to itself.
std::string ControlText(HWND control) {
  std::wstring text(::SendMessageW(control, WM_GETTEXTLENGTH, 0, 0) + 1, L'\0');
  text.resize(
      ::SendMessageW(control, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
  return Utf8(text);
}

bool CrashWindowShown() {
  for (HWND window : TopWindows())
    if (Text(window).rfind("Program Error", 0) == 0) return ::PostMessageA(window, WM_CLOSE, 0, 0);
  return false;
}

MessageBoxView Read(HWND box) {
  MessageBoxView view{Text(box), "", {}, nullptr};
  for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    const bool isIcon = (::GetWindowLongA(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    if (!::IsWindowVisible(child)) continue;
    if (ClassOf(child) == "Button") view.buttons.push_back(Text(child));
    if (ClassOf(child) == "Static" && !isIcon) view.text += Text(child);
    if (isIcon && ::SendMessageA(child, STM_GETICON, 0, 0)) view.icon = child;
  }
  return view;
}

bool ShowsSystemIcon(HWND icon, LPCSTR which) {
  RECT place{};
  ::GetWindowRect(icon, &place);
  const int size = ::GetSystemMetrics(SM_CXICON);
  const POINT corner{place.left, place.top};
  // Drawn here on the background the box shows at its corner.
  return Pixels(size, corner, ::LoadIconA(nullptr, which), ScreenPixel(corner)) ==
         Pixels(size, corner);
}

void Answer(HWND box, int button) {
  ::PostMessageA(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(box, button)));
}

void Click(HWND window, POINT at, bool rightButton, int times) {
  ::ClientToScreen(window, &at);
  for (int n = 0; n < times; ++n) {
    SendMouse(at, rightButton ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN);
    SendMouse(at, rightButton ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP);
  }
}

void MovePointer(HWND window, POINT at) {
  if (window) ::ClientToScreen(window, &at);
  SendMouse(at);
}

std::string TipAt(HWND window, POINT at) {
  auto shownTip = [] {
    for (HWND top : TopWindows())
      if (ClassOf(top) == "tooltips_class32") return top;
    return HWND{};
  };
  MovePointer(nullptr, {5, 5});
  WaitUntil([&] { return !shownTip(); });
  MovePointer(window, at);
  wchar_t text[1024] = {};
  WaitUntil([&] {
    ::SendMessageTimeoutW(shownTip(), WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text),
                          SMTO_ABORTIFHUNG, 1000, nullptr);
    return text[0] != 0;
  });
  MovePointer(nullptr, {5, 5});
  return Utf8(text);
}

COLORREF ScreenPixel(POINT at) {
  HDC screen = ::GetDC(nullptr);
  const COLORREF colour = ::GetPixel(screen, at.x, at.y);
  ::ReleaseDC(nullptr, screen);
  return colour;
}

std::vector<COLORREF> Pixels(int side, POINT at, HICON icon, COLORREF back) {
  BITMAPINFO info{{sizeof(BITMAPINFOHEADER), side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
  void* bits = nullptr;
  HDC screen = ::GetDC(nullptr), memory = ::CreateCompatibleDC(screen);
  HGDIOBJ old =
      ::SelectObject(memory, ::CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  ::SelectObject(memory, ::GetStockObject(DC_BRUSH));
  ::SetDCBrushColor(memory, back);
  ::PatBlt(memory, 0, 0, side, side, PATCOPY);
  if (icon)
    ::DrawIconEx(memory, 0, 0, icon, side, side, 0, nullptr, DI_NORMAL);
  else
    ::BitBlt(memory, 0, 0, side, side, screen, at.x, at.y, SRCCOPY);
  ::GdiFlush();
  std::vector<COLORREF> pixels(static_cast<COLORREF*>(bits),
                               static_cast<COLORREF*>(bits) + side * side);
  for (COLORREF& pixel : pixels) pixel &= 0xffffff;  // no alpha
  ::DeleteObject(::SelectObject(memory, old));
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  return pixels;
}

bool Drag(HWND window, POINT from, SIZE by) {
  ::ClientToScreen(window, &from);
  const POINT half{from.x + by.cx / 2, from.y + by.cy / 2}, to{from.x + by.cx, from.y + by.cy};
  auto look = [](POINT at) { return std::pair{ScreenPixel(at), ScreenPixel({at.x + 2, at.y})}; };
  const auto grabbed = look(from);
  SendMouse(from, MOUSEEVENTF_LEFTDOWN);
  // A move starts once the program has the press, and a window manager tells
  // Wine where the window went only on the release: so the screen tells.
  bool all = false;
  const bool followed =
      WaitUntil([&] { return SendMouse((all = !all) ? to : half), look(to) == grabbed; });
  // The system's move loop ends on the release without looking where it is.
  SendMouse(to);
  const bool arrived = WaitUntil([&] { return look(to) == grabbed; });
  SendMouse(to, MOUSEEVENTF_LEFTUP);
  return followed && arrived;
}

void Type(const std::string& text) {
  for (wchar_t unit : Wide(text)) SendKey(0, unit, KEYEVENTF_UNICODE);
}

void PressKey(WORD virtualKey, WORD heldKey) {
  INPUT held[2] = {};
  for (INPUT& k : held) k.type = INPUT_KEYBOARD, k.ki.wVk = heldKey;
  held[1].ki.dwFlags = KEYEVENTF_KEYUP;
  if (heldKey) ::SendInput(1, &held[0], sizeof(INPUT));
  SendKey(virtualKey, 0, 0);
  if (heldKey) ::SendInput(1, &held[1], sizeof(INPUT));
}

POINT Centre(HWND window) {
  RECT client{};
  ::GetClientRect(window, &client);
  return {client.right / 2, client.bottom / 2};
}

HWND FocusWindow() {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  return ::GetGUIThreadInfo(0, &info) ? info.hwndFocus : nullptr;
}

ProgramRun::ProgramRun() {
  wchar_t temp[MAX_PATH] = {};
  ::GetTempPathW(MAX_PATH, temp);
  static unsigned serial = 0;
  root_ = FullPath(Utf8(temp) + "morvane-e2e-" + std::to_string(::GetCurrentProcessId()) + "-" +
                   std::to_string(++serial));
  for (const char* folder : {"", "\\program", "\\target"})
    ::CreateDirectoryW(Wide(root_ + folder).c_str(), nullptr);
  const std::string dist = FullPath(TestFolder() + "..\\dist");
  Walk(dist, [&](const std::string& path, bool isFolder) {
    if (!isFolder)
      ::CopyFileW(Wide(path).c_str(), Wide(File(path.substr(dist.size() + 1))).c_str(), FALSE);
  });
  if (!IsFile(File("Morvane.exe"))) throw std::runtime_error("no shipping folder at " + dist);
}

ProgramRun::~ProgramRun() {
  if (process_.hProcess && !HasEnded()) ::TerminateProcess(process_.hProcess, 1);
  ::WaitForSingleObject(process_.hProcess, 5000);
  ::CloseHandle(process_.hThread);
  ::CloseHandle(process_.hProcess);
  DeleteTree(root_);
}

std::string ProgramRun::Target(const std::string& name) const {
  return root_ + "\\target" + (name.empty() ? "" : "\\" + name);
}

std::map<std::string, std::string> ProgramRun::Files() const {
  auto files = Snapshot(root_);
  files.erase(File("Morvane.ttf"));  // the program's own font file comes and goes with every run
  return files;
}

std::string ProgramRun::Changes(const std::vector<std::string>& allowed) const {
  auto after = Files(), all = before_;
  all.insert(after.begin(), after.end());
  std::string changes;
  for (const auto& [path, bytes] : all) {
    const std::string relative = path.substr(root_.size() + 1);
    bool mayChange = before_.count(path) && after.count(path) && before_.at(path) == after[path];
    for (const std::string& prefix : allowed) mayChange |= relative.rfind(prefix, 0) == 0;
    if (!mayChange) changes += relative + "\n";
  }
  return changes;
}

void ProgramRun::Start(const std::string& arguments) {
  if (process_.hProcess) ::CloseHandle(process_.hThread), ::CloseHandle(process_.hProcess);
  const std::string line = "\"" + File("Morvane.exe") + "\"" + (arguments.empty() ? "" : " ");
  std::wstring wideLine = Wide(line + arguments);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  main = nullptr;
  if (!::CreateProcessW(Wide(File("Morvane.exe")).c_str(), wideLine.data(), nullptr, nullptr, FALSE,
                        0, nullptr, nullptr, &startup, &process_))
    throw std::runtime_error("cannot start " + line + arguments);
}

bool ProgramRun::Open(int icons, const std::string& folder) {
  Start(folder.empty() ? Target() : folder);
  return WaitForMain() && WaitUntil([&] { return IconCount() >= icons; });
}

HWND ProgramRun::WaitForMain() {
  WaitUntil([&] {
    bool splash = false;
    for (HWND window : Windows()) {
      const std::string title = Text(window);
      splash |= title == "frmSplash";
      if (ClassOf(window) == "MorvaneForm" && title != "frmSplash" && title != "frmShadow")
        main = window;
    }
    return main && !splash;
  });
  return main;
}

HWND ProgramRun::WaitForWindow(const std::string& className, const std::string& title) const {
  HWND found = nullptr;
  WaitUntil([&] {
    for (HWND window : Windows())
      if (ClassOf(window) == className && (title.empty() || Text(window) == title) &&
          ::IsWindowVisible(window))  // shown: placed, and ready for the pointer
        found = window;
    return found != nullptr;
  });
  return found;
}

std::string ProgramRun::Setting(const char* key) const {
  wchar_t value[4096] = {};
  const DWORD length = ::GetPrivateProfileStringW(L".ShellClassInfo", Wide(key).c_str(), L"", value,
                                                  4096, Wide(Target("Desktop.ini")).c_str());
  return Utf8({value, length});
}

std::vector<HWND> ProgramRun::Windows() const {
  std::vector<HWND> found;
  for (HWND window : TopWindows()) {
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    if (owner == process_.dwProcessId) found.push_back(window);
  }
  return found;
}

DWORD ProgramRun::ExitCode() const {
  DWORD code = STILL_ACTIVE;
  ::GetExitCodeProcess(process_.hProcess, &code);
  return code;
}

bool ProgramRun::Close() {
  if (::IsWindow(main)) ::PostMessageA(main, WM_CLOSE, 0, 0);
  return Ended();
}

int ProgramRun::IconCount() const {
  return static_cast<int>(::SendMessageA(Element(ids::kIconList), LVM_GETITEMCOUNT, 0, 0));
}

POINT IconAt(int position) {
  constexpr int kIconSpacing = 43;
  return {kIconSpacing * (position - 1) + kIconSpacing / 2, kIconSpacing / 2};
}

bool Pick(const ProgramRun& run, int position) {
  // Under load Wine now and then drops a press on a window that is still
  // coming forward: pressed again, far apart enough to make no double-click.
  for (int attempt = 0; attempt < 3; ++attempt) {
    Click(run.Element(ids::kIconList), IconAt(position));
    if (WaitUntil([&] { return ::IsWindowVisible(run.Element(ids::kApply)); }, kLimit / 6))
      return true;
  }
  return false;
}

HWND ClickForBox(const ProgramRun& run, int element, int times) {
  Click(run.Element(element), Centre(run.Element(element)), false, times);
  return run.WaitForDialog();
}

bool ChooseFirstRecentFile(const ProgramRun& run) {
  HWND box = run.Element(ids::kRecentFiles);
  Click(box, {20, 10});
  if (!WaitUntil([&] { return FocusWindow() == box; })) return false;
  PressKey(VK_ESCAPE);
  PressKey(VK_DOWN);
  return true;
}

}  // namespace e2e
