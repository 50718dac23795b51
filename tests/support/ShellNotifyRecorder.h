// Stands in for the system's shell notifications while it lives and keeps
// each call, its items decoded by the flags' item type, for comparison with
// a table.
#pragma once

#include <windows.h>

#include <ostream>
#include <string>
#include <vector>

#include "folder/ShellNotifier.h"

namespace testing_support {

struct ShellNotification {
  LONG event;
  UINT flags;
  std::string item1, item2;  // a path, a decimal number, or "" for none
  bool operator==(const ShellNotification&) const = default;
};
std::ostream& operator<<(std::ostream& out, const ShellNotification& call);

class ShellNotifyRecorder : public folder::ShellNotifier {
 public:
  ShellNotifyRecorder() : previous_(folder::InstallShellNotifier(this)) {}
  ~ShellNotifyRecorder() override { folder::InstallShellNotifier(previous_); }
  ShellNotifyRecorder(const ShellNotifyRecorder&) = delete;
  ShellNotifyRecorder& operator=(const ShellNotifyRecorder&) = delete;

  void Notify(LONG event, UINT flags, const void* item1, const void* item2) override;
  std::vector<ShellNotification> calls;

 private:
  folder::ShellNotifier* previous_;
};

}  // namespace testing_support
