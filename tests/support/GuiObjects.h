// How many GDI and USER objects the process holds, for leak checks.
#pragma once

#include <windows.h>

#include <cstdint>

namespace testing_support {

struct GuiObjectCount {
  std::uint32_t gdi = 0;
  std::uint32_t user = 0;
  // True when the counts come from GetGuiResources. Wine answers it with 0;
  // the counts then come from trying every 16-bit handle slot, which Wine
  // accepts in place of a full handle: GDI objects of any kind, and of the
  // USER objects the icons, cursors and windows of this process.
  bool fromSystem = false;
};

GuiObjectCount CountGuiObjects();

// Committed private memory of the process in bytes (Wine reports it as the
// page-file usage and leaves PrivateUsage at 0).
std::uint64_t PrivateBytes();

}  // namespace testing_support
