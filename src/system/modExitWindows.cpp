#include "system/modExitWindows.h"

#include <windows.h>

namespace integration {

void RestartWindows() {
  ::ExitWindowsEx(EWX_REBOOT, 0);
}

}  // namespace integration
