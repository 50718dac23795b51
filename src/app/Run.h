// One run of the program: what start-up finds out (where the program lives,
// the folder to customise, the two libraries, where the mouse was) and the
// three windows. It is the only code that ends the process.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/FolderSettings.h"
#include "platform/ResourceLibrary.h"
#include "platform/ScopedHandle.h"
#include "ui/AboutWindow.h"
#include "ui/MainWindow.h"
#include "ui/WindowContext.h"

namespace app {

class Run {
 public:
  Run() = default;
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  // Runs start-up in its fixed order. Returns with the program running, or
  // ends the process itself (another copy running, a library missing, no
  // folder given, the folder not found, a restart agreed to).
  void Start();

  // True while one of the program's windows is open.
  bool HasWindows() const;

  // The one orderly way out: removes the program's font, unloads the windows
  // still loaded (the main window's own close comes back here and ends the
  // process at that point), releases both libraries, optionally asks Windows
  // to restart, and ends the process.
  [[noreturn]] void End(bool restartWindows);

 private:
  bool AnotherCopyRunning();
  void CheckColourDepth();
  bool Agrees(int notice, int question) const;
  void ReleaseLibraries();

  platform::ScopedKernelHandle instanceMarker_;
  platform::ResourceLibrary language_;
  platform::ResourceLibrary pictures_;
  std::string programFolder_;
  std::string targetFolder_;
  RECT startRect_{};
  core::FolderSettings settings_;
  bool settingsFileExisted_ = false;

  std::optional<ui::WindowContext> context_;
  std::unique_ptr<ui::AboutWindow> about_;
  std::unique_ptr<ui::MainWindow> main_;
};

}  // namespace app
