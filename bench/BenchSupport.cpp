#include "BenchSupport.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace testing_support {
namespace {

std::string FullPath(const std::string& path) {
  char buffer[MAX_PATH * 4] = {};
  DWORD length = ::GetFullPathNameA(path.c_str(), sizeof buffer, buffer, nullptr);
  return length ? std::string(buffer, length) : path;
}

std::string ModuleFolder() {
  char buffer[MAX_PATH * 4] = {};
  DWORD length = ::GetModuleFileNameA(nullptr, buffer, sizeof buffer);
  std::string path(buffer, length);
  return path.substr(0, path.find_last_of('\\') + 1);
}

}  // namespace

std::string TestFolder() {
  return ModuleFolder();
}
std::string DistFolder() {
  return FullPath(ModuleFolder() + "..\\dist") + "\\";
}

std::string ReadWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

void WriteWholeFile(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out) throw std::runtime_error("cannot write " + path);
}

bool PathExists(const std::string& path) {
  return ::GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

void DeleteTree(const std::string& path) {
  DWORD attributes = ::GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return;
  ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
    ::DeleteFileA(path.c_str());
    return;
  }
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((path + "\\*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      std::string name = entry.cFileName;
      if (name != "." && name != "..") DeleteTree(path + "\\" + name);
    } while (::FindNextFileA(search, &entry));
    ::FindClose(search);
  }
  ::RemoveDirectoryA(path.c_str());
}

ScratchFolder::ScratchFolder(const std::string& sharedName) {
  char temp[MAX_PATH] = {};
  ::GetTempPathA(MAX_PATH, temp);
  static unsigned serial = 0;
  for (;;) {
    const std::string candidate = std::string(temp) + "morvane-test-" +
                                  (sharedName.empty() ? std::to_string(::GetCurrentProcessId()) +
                                                            "-" + std::to_string(++serial)
                                                      : sharedName);
    const bool made = ::CreateDirectoryA(candidate.c_str(), nullptr);
    const bool taken = !made && ::GetLastError() == ERROR_ALREADY_EXISTS;
    if (made || (taken && !sharedName.empty())) {
      path_ = FullPath(candidate);
      return;
    }
    if (!taken) throw std::runtime_error("cannot create scratch folder " + candidate);
  }
}

ScratchFolder::ScratchFolder() : ScratchFolder(std::string()) {}

ScratchFolder::~ScratchFolder() {
  DeleteTree(path_);
}

std::string ScratchFolder::MakeFolder(const std::string& name) const {
  std::string path = *this / name;
  ::CreateDirectoryA(path.c_str(), nullptr);
  return path;
}

ProgramCopy::ProgramCopy() {
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((DistFolder() + "*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE)
    throw std::runtime_error("no shipping folder " + DistFolder());
  do {
    if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
    std::string name = entry.cFileName;
    if (!::CopyFileA((DistFolder() + name).c_str(), File(name).c_str(), FALSE)) {
      ::FindClose(search);
      throw std::runtime_error("cannot copy " + name + " from " + DistFolder());
    }
  } while (::FindNextFileA(search, &entry));
  ::FindClose(search);
}

ChildProcess::ChildProcess(const std::string& application, const std::string& commandLine) {
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  std::string mutableLine = commandLine;
  ::CreateProcessA(application.c_str(), mutableLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                   nullptr, &startup, &info_);
}

ChildProcess::~ChildProcess() {
  if (!info_.hProcess) return;
  if (::WaitForSingleObject(info_.hProcess, 0) == WAIT_TIMEOUT) {
    ::TerminateProcess(info_.hProcess, 1);
    ::WaitForSingleObject(info_.hProcess, 5000);
  }
  ::CloseHandle(info_.hThread);
  ::CloseHandle(info_.hProcess);
}

bool ChildProcess::WaitForExit(std::chrono::milliseconds limit) {
  return info_.hProcess &&
         ::WaitForSingleObject(info_.hProcess, static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

DWORD ChildProcess::ExitCode() const {
  DWORD code = STILL_ACTIVE;
  if (info_.hProcess) ::GetExitCodeProcess(info_.hProcess, &code);
  return code;
}

std::vector<HWND> ChildProcess::VisibleWindows() const {
  return VisibleWindowsOf(info_.dwProcessId);
}

std::vector<HWND> VisibleWindowsOf(DWORD processId) {
  struct Search {
    DWORD pid;
    std::vector<HWND> found;
  } search{processId, {}};
  ::EnumWindows(
      [](HWND window, LPARAM data) -> BOOL {
        auto* s = reinterpret_cast<Search*>(data);
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner == s->pid && ::IsWindowVisible(window)) s->found.push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND ChildProcess::WaitForWindow(const std::string& className, std::chrono::milliseconds limit,
                                 const std::string& titleStart) const {
  auto deadline = std::chrono::steady_clock::now() + limit;
  do {
    for (HWND window : VisibleWindows()) {
      if ((className.empty() || ClassName(window) == className) &&
          WindowText(window).rfind(titleStart, 0) == 0) {
        return window;
      }
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  } while (std::chrono::steady_clock::now() < deadline);
  return nullptr;
}

std::string WindowText(HWND window) {
  char buffer[4096] = {};
  int length = ::GetWindowTextA(window, buffer, sizeof buffer);
  return std::string(buffer, length > 0 ? length : 0);
}

std::string ClassName(HWND window) {
  char buffer[256] = {};
  int length = ::GetClassNameA(window, buffer, sizeof buffer);
  return std::string(buffer, length > 0 ? length : 0);
}

std::vector<HWND> Children(HWND parent) {
  std::vector<HWND> found;
  ::EnumChildWindows(
      parent,
      [](HWND child, LPARAM data) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(data)->push_back(child);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

}  // namespace testing_support
