// How many GDI and USER objects the process holds, for leak checks.
#pragma once

#include <windows.h>

#include <cstdint>
#include <map>

namespace testing_support {

struct GuiObjectCount {
  std::uint32_t gdi = 0;
  std::uint32_t user = 0;
  // True when the counts come from GetGuiResources. Wine answers it with 0;
  // the counts then come from Wine's handle tables, which take a 16-bit slot
  // number in place of a full handle: GDI objects of any kind, icons and
  // cursors by trying each slot, and this process's windows by listing them.
  // A count takes a few milliseconds.
  bool fromSystem = false;
};

GuiObjectCount CountGuiObjects();

// Live GDI objects by kind (OBJ_BITMAP, OBJ_DC, ...), from Wine's handle
// table; empty where the table cannot be read that way.
std::map<DWORD, std::uint32_t> GdiObjectsByKind();

// Committed private memory of the process in bytes (Wine reports it as the
// page-file usage and leaves PrivateUsage at 0).
std::uint64_t PrivateBytes();

}  // namespace testing_support
