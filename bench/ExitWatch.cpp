#include "ExitWatch.h"

#include <windows.h>

#include <cstring>

namespace bench {
namespace {

using ExitProcessCall = void(WINAPI*)(UINT);

ExitProcessCall realExitProcess = nullptr;
void (*pendingCallback)() = nullptr;

void WINAPI ExitProcessWatched(UINT exitCode) {
  // Once only: the callback itself may end the process.
  if (void (*callback)() = pendingCallback) {
    pendingCallback = nullptr;
    callback();
  }
  realExitProcess(exitCode);
}

template <typename T>
T* At(BYTE* base, DWORD offset) {
  return reinterpret_cast<T*>(base + offset);
}

// The import address slot through which this program calls `function` of
// kernel32, or nullptr.
ULONG_PTR* ImportSlot(const char* function) {
  auto* base = reinterpret_cast<BYTE*>(::GetModuleHandleA(nullptr));
  auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
  auto* headers = At<IMAGE_NT_HEADERS>(base, dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& imports =
      headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  if (!imports.VirtualAddress) return nullptr;
  for (auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(base, imports.VirtualAddress); library->Name;
       ++library) {
    if (_stricmp(At<char>(base, library->Name), "kernel32.dll") != 0) continue;
    auto* names = At<IMAGE_THUNK_DATA>(base, library->OriginalFirstThunk);
    auto* slots = At<IMAGE_THUNK_DATA>(base, library->FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slots) {
      if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
      auto* named = At<IMAGE_IMPORT_BY_NAME>(base, static_cast<DWORD>(names->u1.AddressOfData));
      if (std::strcmp(reinterpret_cast<const char*>(named->Name), function) == 0) {
        return reinterpret_cast<ULONG_PTR*>(&slots->u1.Function);
      }
    }
  }
  return nullptr;
}

}  // namespace

bool RunBeforeProcessExit(void (*callback)()) {
  ULONG_PTR* slot = ImportSlot("ExitProcess");
  if (!slot) return false;
  DWORD protection = 0;
  if (!::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection)) return false;
  if (!realExitProcess) realExitProcess = reinterpret_cast<ExitProcessCall>(*slot);
  *slot = reinterpret_cast<ULONG_PTR>(&ExitProcessWatched);
  ::VirtualProtect(slot, sizeof *slot, protection, &protection);
  pendingCallback = callback;
  return true;
}

}  // namespace bench
