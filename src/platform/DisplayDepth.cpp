#include "platform/DisplayDepth.h"

#include <windows.h>

#include <cstdlib>
#include <string>

#include "platform/Registry.h"
#include "platform/ScopedHandle.h"

namespace platform {
namespace {

constexpr char kRaisedDepth[] = "16";
constexpr char kMetricsKey[] = "Control Panel\\Desktop\\WindowMetrics";
constexpr char kIconDepthValue[] = "Shell Icon BPP";

}  // namespace

std::int32_t DisplayColourDepth() {
  ScopedMemoryDC display(::CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr));
  return display ? ::GetDeviceCaps(display.get(), BITSPIXEL) : 0;
}

std::int32_t ShellIconDepth() {
  const std::string text =
      RegistryText(GetRegistryValue(HKEY_CURRENT_USER, kMetricsKey, kIconDepthValue));
  return static_cast<std::int32_t>(std::strtol(text.c_str(), nullptr, 10));
}

void RaiseShellIconDepth() {
  if (ShellIconDepth() == 0) return;
  SetRegistryValue(HKEY_CURRENT_USER, kMetricsKey, kIconDepthValue, std::string(kRaisedDepth),
                   kTextKind);
}

void RestartWindows() {
  ::ExitWindowsEx(EWX_REBOOT, 0);
}

}  // namespace platform
