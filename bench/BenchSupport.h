// Helpers shared by the tests: where the built files are, scratch folders
// that clean up after themselves, and a child process to watch from outside.
#pragma once

#include <windows.h>

#include <chrono>
#include <string>
#include <vector>

namespace testing_support {

// Folders end with "\".
std::string TestFolder();  // where the test programs and TESTRES.DLL are
std::string DistFolder();  // the shipping folder

std::string ReadWholeFile(const std::string& path);
void WriteWholeFile(const std::string& path, const std::string& bytes);
bool PathExists(const std::string& path);

// A fresh folder under the system's temporary folder, deleted with all its
// contents (attributes cleared first) when the object ends.
class ScratchFolder {
 public:
  ScratchFolder();
  // The same folder for every process that asks for this name, so that a
  // child process (a death test) and its parent share it.
  explicit ScratchFolder(const std::string& sharedName);
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& Path() const { return path_; }  // without trailing "\"
  std::string operator/(const std::string& name) const { return path_ + "\\" + name; }
  std::string MakeFolder(const std::string& name) const;

 private:
  std::string path_;
};

void DeleteTree(const std::string& path);

// A copy of every file of the shipping folder to run Morvane from, so that
// tests can change its files freely.
class ProgramCopy {
 public:
  ProgramCopy();
  std::string Folder() const { return root_.Path() + "\\"; }
  std::string File(const std::string& name) const { return root_ / name; }
  std::string Exe() const { return File("Morvane.exe"); }

 private:
  ScratchFolder root_;
};

// A process started with an exact command line, killed if still running
// when the object ends.
class ChildProcess {
 public:
  ChildProcess(const std::string& application, const std::string& commandLine);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  bool Started() const { return info_.hProcess != nullptr; }
  // True when the process ended within the time.
  bool WaitForExit(std::chrono::milliseconds limit);
  DWORD ExitCode() const;
  DWORD Id() const { return info_.dwProcessId; }

  // Visible top-level windows of the process.
  std::vector<HWND> VisibleWindows() const;
  // Waits for a visible top-level window of the given class ("" = any)
  // whose title starts with `titleStart`.
  HWND WaitForWindow(const std::string& className, std::chrono::milliseconds limit,
                     const std::string& titleStart = "") const;

 private:
  PROCESS_INFORMATION info_{};
};

// Visible top-level windows of a process.
std::vector<HWND> VisibleWindowsOf(DWORD processId);
std::string WindowText(HWND window);
std::string ClassName(HWND window);
std::vector<HWND> Children(HWND parent);

}  // namespace testing_support
