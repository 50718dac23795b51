#include "GuiObjects.h"

#include <psapi.h>

namespace testing_support {
namespace {

// Wine keeps GDI objects in a table of 16-bit slots per process and accepts
// a slot number in place of a full handle. USER handles share one table of
// the session: slot values are even, from 0x20 up to 0xffee.
constexpr ULONG_PTR kGdiSlots = 0x10000;
constexpr ULONG_PTR kFirstUserSlot = 0x20;
constexpr ULONG_PTR kUserSlotEnd = 0xfff0;
constexpr ULONG_PTR kUserSlotStep = 2;

template <typename Handle>
Handle Slot(ULONG_PTR index) {
  return reinterpret_cast<Handle>(index);
}

// Icons and cursors are looked up in the process's own part of the table,
// so a probe costs no trip to the Wine server (a window probe would).
std::uint32_t LiveIcons() {
  std::uint32_t count = 0;
  for (ULONG_PTR slot = kFirstUserSlot; slot < kUserSlotEnd; slot += kUserSlotStep) {
    ICONINFO info{};
    if (!::GetIconInfo(Slot<HICON>(slot), &info)) continue;
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    ++count;
  }
  return count;
}

BOOL CALLBACK CountWindowAndChildren(HWND window, LPARAM counter);

BOOL CALLBACK CountOne(HWND, LPARAM counter) {
  ++*reinterpret_cast<std::uint32_t*>(counter);
  return TRUE;
}

// The window and all its descendants, when it belongs to this process.
BOOL CALLBACK CountWindowAndChildren(HWND window, LPARAM counter) {
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  if (process != ::GetCurrentProcessId()) return TRUE;
  CountOne(window, counter);
  ::EnumChildWindows(window, CountOne, counter);
  return TRUE;
}

// Top-level and message-only windows of this process, with their children.
std::uint32_t LiveWindows() {
  std::uint32_t count = 0;
  const LPARAM counter = reinterpret_cast<LPARAM>(&count);
  ::EnumWindows(CountWindowAndChildren, counter);
  for (HWND window = ::FindWindowExA(HWND_MESSAGE, nullptr, nullptr, nullptr); window;
       window = ::FindWindowExA(HWND_MESSAGE, window, nullptr, nullptr)) {
    CountWindowAndChildren(window, counter);
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
    count.user = LiveIcons() + LiveWindows();
    for (const auto& [kind, live] : GdiObjectsByKind()) count.gdi += live;
  }
  return count;
}

std::map<DWORD, std::uint32_t> GdiObjectsByKind() {
  std::map<DWORD, std::uint32_t> kinds;
  for (ULONG_PTR slot = 1; slot < kGdiSlots; ++slot) {
    if (DWORD kind = ::GetObjectType(Slot<HGDIOBJ>(slot))) ++kinds[kind];
  }
  return kinds;
}

std::uint64_t PrivateBytes() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  counters.cb = sizeof counters;
  ::GetProcessMemoryInfo(::GetCurrentProcess(),
                         reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof counters);
  return counters.PrivateUsage ? counters.PrivateUsage : counters.PagefileUsage;
}

}  // namespace testing_support
