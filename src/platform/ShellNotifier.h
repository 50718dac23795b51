// The one way folder changes are announced to the shell. The program sends
// the real announcements; tests hand in a recorder to see them in order.
#pragma once

#include <windows.h>

namespace platform {

class ShellNotifier {
 public:
  virtual ~ShellNotifier() = default;
  // Arguments as SHChangeNotify takes them: the flags say whether the items
  // are ANSI paths or numbers.
  virtual void Notify(LONG event, UINT flags, const void* item1, const void* item2) = 0;
};

// SHChangeNotify itself.
class SystemShellNotifier final : public ShellNotifier {
 public:
  void Notify(LONG event, UINT flags, const void* item1, const void* item2) override;
};

}  // namespace platform
