// The one way folder changes are announced to the shell, so that tests can
// see the announcements in order while the program sends the real ones.
#pragma once

#include <windows.h>

namespace folder {

class ShellNotifier {
 public:
  virtual ~ShellNotifier() = default;
  // Arguments as SHChangeNotify takes them: the flags say whether the items
  // are ANSI paths or numbers.
  virtual void Notify(LONG event, UINT flags, const void* item1, const void* item2) = 0;
};

// The notifier in use: the system's SHChangeNotify unless another is installed.
ShellNotifier& CurrentShellNotifier();

// Installs `notifier` (nullptr puts the system's back) and returns the one it
// replaces. The caller keeps ownership and must outlive its installation.
ShellNotifier* InstallShellNotifier(ShellNotifier* notifier);

}  // namespace folder
