#include "Harness.h"

#include <commctrl.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace e2e {
namespace {

constexpr char kFormClass[] = "MorvaneForm";

std::string FullPath(const std::string& path) {
  char buffer[MAX_PATH * 4] = {};
  const DWORD length = ::GetFullPathNameA(path.c_str(), sizeof buffer, buffer, nullptr);
  return length ? std::string(buffer, length) : path;
}

void DeleteTree(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return;
  ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
    ::DeleteFileA(path.c_str());
    return;
  }
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((path + "\\*").c_str(), &entry);
  for (bool more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileA(search, &entry)) {
    const std::string name = entry.cFileName;
    if (name != "." && name != "..") DeleteTree(path + "\\" + name);
  }
  if (search != INVALID_HANDLE_VALUE) ::FindClose(search);
  ::RemoveDirectoryA(path.c_str());
}

void Collect(const std::string& folder, const std::string& relative, Snapshot& into) {
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((folder + "\\*").c_str(), &entry);
  for (bool more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileA(search, &entry)) {
    const std::string name = entry.cFileName, path = folder + "\\" + name;
    if (name == "." || name == "..") continue;
    if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
      into[relative + name + "\\"] = "";
      Collect(path, relative + name + "\\", into);
    } else {
      into[relative + name] = ReadFile(path);
    }
  }
  if (search != INVALID_HANDLE_VALUE) ::FindClose(search);
}

// Absolute input coordinates as Wine maps them back: x * width / 65536.
INPUT MouseAt(POINT screen, DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  const LONG width = ::GetSystemMetrics(SM_CXSCREEN), height = ::GetSystemMetrics(SM_CYSCREEN);
  input.mi.dx = (screen.x * 65536 + width - 1) / width;
  input.mi.dy = (screen.y * 65536 + height - 1) / height;
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  return input;
}

void SendKey(WORD virtualKey, WORD scan, DWORD flags) {
  INPUT key[2] = {};
  key[0].type = key[1].type = INPUT_KEYBOARD;
  key[0].ki.wVk = key[1].ki.wVk = virtualKey;
  key[0].ki.wScan = key[1].ki.wScan = scan;
  key[0].ki.dwFlags = flags;
  key[1].ki.dwFlags = flags | KEYEVENTF_KEYUP;
  ::SendInput(2, key, sizeof(INPUT));
}

}  // namespace

std::string TestFolder() {
  char buffer[MAX_PATH * 4] = {};
  const std::string path(buffer, ::GetModuleFileNameA(nullptr, buffer, sizeof buffer));
  return path.substr(0, path.find_last_of('\\') + 1);
}

std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out) throw std::runtime_error("cannot write " + path);
}

bool IsFile(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::string IniValue(const std::string& file, const char* section, const char* key) {
  char value[4096] = {};
  return std::string(
      value, ::GetPrivateProfileStringA(section, key, "", value, sizeof value, file.c_str()));
}

std::string LibraryString(const std::string& library, int id) {
  HMODULE module = ::LoadLibraryExA(library.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  char text[4096] = {};
  const int length = module ? ::LoadStringA(module, id, text, sizeof text) : 0;
  if (module) ::FreeLibrary(module);
  return std::string(text, length);
}

std::string Text(HWND window) {
  char buffer[4096] = {};
  return std::string(buffer, std::max(0, ::GetWindowTextA(window, buffer, sizeof buffer)));
}

std::string ClassOf(HWND window) {
  char buffer[256] = {};
  return std::string(buffer, std::max(0, ::GetClassNameA(window, buffer, sizeof buffer)));
}

bool CrashWindowShown() {
  bool shown = false;
  ::EnumWindows(
      [](HWND window, LPARAM found) -> BOOL {
        if (::IsWindowVisible(window) && Text(window).rfind("Program Error", 0) == 0) {
          *reinterpret_cast<bool*>(found) = true;
          ::PostMessageA(window, WM_CLOSE, 0, 0);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&shown));
  return shown;
}

MessageBoxView Read(HWND box) {
  MessageBoxView view{Text(box), "", {}, false};
  for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (!::IsWindowVisible(child)) continue;
    const bool isIcon = (::GetWindowLongA(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    if (ClassOf(child) == "Button") {
      view.buttons.push_back(Text(child));
    } else if (ClassOf(child) == "Static" && isIcon) {
      view.hasIcon = view.hasIcon || ::SendMessageA(child, STM_GETICON, 0, 0) != 0;
    } else if (ClassOf(child) == "Static") {
      view.text += Text(child);
    }
  }
  return view;
}

bool ShowsSystemIcon(HWND box, LPCSTR which) {
  HWND icon = ::GetWindow(box, GW_CHILD);
  while (icon && (::GetWindowLongA(icon, GWL_STYLE) & SS_TYPEMASK) != SS_ICON)
    icon = ::GetWindow(icon, GW_HWNDNEXT);
  if (!icon) return false;
  RECT place{};
  ::GetWindowRect(icon, &place);
  const int size = ::GetSystemMetrics(SM_CXICON);
  // The same icon drawn here on the box's own background must match the
  // screen pixel for pixel.
  HDC screen = ::GetDC(nullptr);
  HDC memory = ::CreateCompatibleDC(screen);
  HBITMAP bitmap = ::CreateCompatibleBitmap(screen, size, size);
  HGDIOBJ old = ::SelectObject(memory, bitmap);
  HBRUSH background = ::CreateSolidBrush(::GetPixel(screen, place.left, place.top));
  RECT all{0, 0, size, size};
  ::FillRect(memory, &all, background);
  ::DrawIconEx(memory, 0, 0, ::LoadIconA(nullptr, which), size, size, 0, nullptr, DI_NORMAL);
  bool same = true;
  for (int y = 0; y < size && same; ++y)
    for (int x = 0; x < size && same; ++x)
      same = ::GetPixel(memory, x, y) == ::GetPixel(screen, place.left + x, place.top + y);
  ::SelectObject(memory, old);
  ::DeleteObject(background);
  ::DeleteObject(bitmap);
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  return same;
}

void Answer(HWND box, int button) {
  // Posted, so that the box's own thread handles it inside its loop.
  ::PostMessageA(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(box, button)));
}

void Click(HWND window, POINT at, bool rightButton, int times) {
  ::ClientToScreen(window, &at);
  std::vector<INPUT> inputs;
  for (int n = 0; n < times; ++n) {
    inputs.push_back(MouseAt(at, rightButton ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN));
    inputs.push_back(MouseAt(at, rightButton ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP));
  }
  ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void MovePointer(HWND window, POINT at) {
  ::ClientToScreen(window, &at);
  INPUT move = MouseAt(at, 0);
  ::SendInput(1, &move, sizeof move);
}

void ParkPointer() {
  MovePointer(nullptr, {::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1});
}

void Type(const std::string& text) {
  for (char c : text) SendKey(0, static_cast<unsigned char>(c), KEYEVENTF_UNICODE);
}

void PressKey(WORD virtualKey) {
  SendKey(virtualKey, 0, 0);
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

std::string Differences(const Snapshot& before, const Snapshot& after) {
  std::string changed;
  for (const auto& [path, bytes] : before) {
    const auto now = after.find(path);
    if (now == after.end() || now->second != bytes)
      changed += (now == after.end() ? "missing: " : "changed: ") + path + "\n";
  }
  for (const auto& [path, bytes] : after)
    if (!before.count(path)) changed += "appeared: " + path + "\n";
  return changed;
}

ProgramRun::ProgramRun() {
  char temp[MAX_PATH] = {};
  ::GetTempPathA(MAX_PATH, temp);
  static unsigned serial = 0;
  root_ = FullPath(std::string(temp) + "morvane-e2e-" + std::to_string(::GetCurrentProcessId()) +
                   "-" + std::to_string(++serial));
  DeleteTree(root_);
  for (const char* folder : {"", "\\program", "\\target"})
    ::CreateDirectoryA((root_ + folder).c_str(), nullptr);
  const std::string dist = FullPath(TestFolder() + "..\\dist") + "\\";
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((dist + "*").c_str(), &entry);
  for (bool more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileA(search, &entry)) {
    if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
      ::CopyFileA((dist + entry.cFileName).c_str(), File(entry.cFileName).c_str(), FALSE);
  }
  if (search != INVALID_HANDLE_VALUE) ::FindClose(search);
  if (!IsFile(File("Morvane.exe"))) throw std::runtime_error("no shipping folder at " + dist);
}

ProgramRun::~ProgramRun() {
  if (process_.hProcess) {
    if (!Ended(0ms)) ::TerminateProcess(process_.hProcess, 1);
    ::WaitForSingleObject(process_.hProcess, 5000);
    ::CloseHandle(process_.hThread);
    ::CloseHandle(process_.hProcess);
  }
  DeleteTree(root_);
}

std::string ProgramRun::Target(const std::string& name) const {
  return root_ + "\\target" + (name.empty() ? "" : "\\" + name);
}

Snapshot ProgramRun::Files() const {
  Snapshot files;
  Collect(root_, "", files);
  // The program's own font file comes and goes with every run.
  files.erase("program\\Morvane.ttf");
  return files;
}

void ProgramRun::Start(const std::string& arguments) {
  if (process_.hProcess) {
    ::CloseHandle(process_.hThread);
    ::CloseHandle(process_.hProcess);
  }
  main = nullptr;
  std::string line;
  line.append("\"").append(File("Morvane.exe")).append("\"");
  if (!arguments.empty()) line.append(" ").append(arguments);
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  if (!::CreateProcessA(File("Morvane.exe").c_str(), line.data(), nullptr, nullptr, FALSE, 0,
                        nullptr, nullptr, &startup, &process_))
    throw std::runtime_error("cannot start " + line);
}

bool ProgramRun::Open(int icons) {
  Start(Target());
  return WaitForMain() && WaitUntil([&] { return IconCount() >= icons; });
}

HWND ProgramRun::WaitForMain() {
  WaitUntil([&] {
    bool splash = false;
    for (HWND window : Windows()) {
      const std::string title = Text(window);
      if (ClassOf(window) != kFormClass) continue;
      if (title == "frmSplash") splash = true;
      if (title != "frmSplash" && title != "frmShadow") main = window;
    }
    return main && !splash;
  });
  return main;
}

HWND ProgramRun::WaitForWindow(const std::string& className, const std::string& title) const {
  HWND found = nullptr;
  WaitUntil([&] {
    for (HWND window : Windows())
      if (ClassOf(window) == className && (title.empty() || Text(window) == title)) found = window;
    return found != nullptr;
  });
  return found;
}

std::vector<HWND> ProgramRun::Windows() const {
  struct Search {
    DWORD process;
    std::vector<HWND> found;
  } search{process_.dwProcessId, {}};
  ::EnumWindows(
      [](HWND window, LPARAM data) -> BOOL {
        auto* s = reinterpret_cast<Search*>(data);
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner == s->process && ::IsWindowVisible(window)) s->found.push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

bool ProgramRun::Ended(std::chrono::milliseconds limit) const {
  return WaitUntil([&] { return HasEnded(); }, limit);
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

RegistryValue::RegistryValue(HKEY hive, std::string key, const std::string& value)
    : hive_(hive), key_(std::move(key)) {
  char old[4096] = {};
  DWORD size = sizeof old;
  hadValue_ = ::RegGetValueA(hive_, key_.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, old, &size) ==
              ERROR_SUCCESS;
  old_ = old;
  ::RegSetKeyValueA(hive_, key_.c_str(), nullptr, REG_SZ, value.c_str(),
                    static_cast<DWORD>(value.size() + 1));
}

RegistryValue::~RegistryValue() {
  if (hadValue_) {
    ::RegSetKeyValueA(hive_, key_.c_str(), nullptr, REG_SZ, old_.c_str(),
                      static_cast<DWORD>(old_.size() + 1));
  } else {
    ::RegDeleteKeyValueA(hive_, key_.c_str(), nullptr);
  }
}

}  // namespace e2e
