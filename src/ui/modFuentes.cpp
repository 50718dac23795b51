#include "ui/modFuentes.h"

#include <windows.h>

#include <string>

#include "frame/RunState.h"
#include "toolkit/MessageLoop.h"

namespace ui {

void RemoveProgramFont() {
  const std::string path = frame::programFolder + kProgramFontFile;
  ::RemoveFontResourceA(path.c_str());
  toolkit::DoEvents();
  ::DeleteFileA(path.c_str());
}

}  // namespace ui
