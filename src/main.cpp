#include <windows.h>

#include "frame/EndProgram.h"
#include "frame/Startup.h"
#include "toolkit/LoadedWindows.h"
#include "toolkit/MessageLoop.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  // A damaged library beside the program must end it quietly, not with a
  // system error box.
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  frame::Startup();
  if (!toolkit::LoadedWindows().empty()) toolkit::RunMessageLoop();
  frame::EndProgram(false);
}
