#include "folder/ShellNotifier.h"

#include <shlobj.h>

namespace folder {
namespace {

class SystemShellNotifier final : public ShellNotifier {
 public:
  void Notify(LONG event, UINT flags, const void* item1, const void* item2) override {
    ::SHChangeNotify(event, flags, item1, item2);
  }
};

SystemShellNotifier systemNotifier;
ShellNotifier* installed = nullptr;

}  // namespace

ShellNotifier& CurrentShellNotifier() {
  return installed ? *installed : systemNotifier;
}

ShellNotifier* InstallShellNotifier(ShellNotifier* notifier) {
  ShellNotifier* previous = installed;
  installed = notifier;
  return previous;
}

}  // namespace folder
