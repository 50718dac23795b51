#include "platform/ShellNotifier.h"

#include <shlobj.h>

namespace platform {

void SystemShellNotifier::Notify(LONG event, UINT flags, const void* item1, const void* item2) {
  ::SHChangeNotify(event, flags, item1, item2);
}

}  // namespace platform
