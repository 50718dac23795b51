// What the windows need to know of the run: its two libraries, where the
// program lives, the folder being customised and where the mouse was when
// the program started. The run owns all of it and outlives the windows.
#pragma once

#include <windows.h>

#include <string>

#include "platform/ResourceLibrary.h"

namespace ui {

struct WindowContext {
  const platform::ResourceLibrary& language;
  const platform::ResourceLibrary& pictures;
  std::string programFolder;  // with "\" appended
  std::string targetFolder;   // without a trailing separator
  RECT startRect;             // the zoom animations start and end here

  std::string Text(int id) const { return language.String(id); }
  std::string ConfigFile() const { return programFolder + "Config.ini"; }
};

}  // namespace ui
