// The one way folder changes are announced to the shell. The program sends
// the real announcements; tests hand in a recorder to see them in order.
#pragma once

#include <windows.h>

#include <string>

namespace platform {

class ShellNotifier {
 public:
  virtual ~ShellNotifier() = default;
  // An event about the item at `path`; the shell has handled it on return.
  virtual void NotifyPath(LONG event, const std::string& path) = 0;
  // An event about a number, such as a place in the system image list.
  virtual void NotifyNumber(LONG event, int number) = 0;
  // An event about no item in particular.
  virtual void Notify(LONG event) = 0;
};

// SHChangeNotify itself.
class SystemShellNotifier final : public ShellNotifier {
 public:
  void NotifyPath(LONG event, const std::string& path) override;
  void NotifyNumber(LONG event, int number) override;
  void Notify(LONG event) override;
};

}  // namespace platform
