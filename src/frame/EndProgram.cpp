#include "frame/EndProgram.h"

#include <windows.h>

#include "frame/CResDll.h"
#include "system/modExitWindows.h"
#include "toolkit/LoadedWindows.h"
#include "ui/modFuentes.h"

namespace frame {

void EndProgram(bool restartWindows) {
  ui::RemoveProgramFont();
  for (toolkit::LoadedWindow* window : toolkit::LoadedWindows()) {
    // An earlier unload may have closed this one already.
    if (toolkit::IsWindowLoaded(window) && !window->Closing()) window->Unload();
  }
  ReleaseLibraries();
  if (restartWindows) integration::RestartWindows();
  EndProcessNow();
}

void EndProcessNow() {
  ::ExitProcess(0);
}

}  // namespace frame
