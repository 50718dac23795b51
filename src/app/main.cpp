#include <windows.h>

#include "app/Run.h"
#include "toolkit/MessageLoop.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  // A damaged library beside the program must end it quietly, not with a
  // system error box.
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  app::Run run;
  run.Start();
  if (run.HasWindows()) toolkit::RunMessageLoop();
  run.End(false);
}
