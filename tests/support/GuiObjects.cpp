#include "support/GuiObjects.h"

#include <psapi.h>

namespace testing_support {
namespace {

constexpr ULONG_PTR kHandleSlots = 0x10000;

template <typename Handle>
Handle Slot(ULONG_PTR index) {
  return reinterpret_cast<Handle>(index);
}

std::uint32_t LiveGdiObjects() {
  std::uint32_t count = 0;
  for (ULONG_PTR slot = 1; slot < kHandleSlots; ++slot) {
    count += ::GetObjectType(Slot<HGDIOBJ>(slot)) != 0;
  }
  return count;
}

bool IsIcon(HICON candidate) {
  ICONINFO info{};
  if (!::GetIconInfo(candidate, &info)) return false;
  ::DeleteObject(info.hbmColor);
  ::DeleteObject(info.hbmMask);
  return true;
}

bool IsOwnWindow(HWND candidate) {
  DWORD process = 0;
  return ::IsWindow(candidate) && ::GetWindowThreadProcessId(candidate, &process) &&
         process == ::GetCurrentProcessId();
}

std::uint32_t LiveUserObjects() {
  std::uint32_t count = 0;
  for (ULONG_PTR slot = 1; slot < kHandleSlots; ++slot) {
    count += IsIcon(Slot<HICON>(slot)) || IsOwnWindow(Slot<HWND>(slot));
  }
  return count;
}

}  // namespace

GuiObjectCount CountGuiObjects() {
  GuiObjectCount count;
  count.gdi = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
  count.user = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
  count.fromSystem = count.gdi != 0 && count.user != 0;
  if (!count.fromSystem) {
    // The USER count goes first: the bitmaps it copies out of icons are
    // deleted again before the GDI objects are counted.
    count.user = LiveUserObjects();
    count.gdi = LiveGdiObjects();
  }
  return count;
}

std::uint64_t PrivateBytes() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  counters.cb = sizeof counters;
  ::GetProcessMemoryInfo(::GetCurrentProcess(),
                         reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof counters);
  return counters.PrivateUsage ? counters.PrivateUsage : counters.PagefileUsage;
}

}  // namespace testing_support
