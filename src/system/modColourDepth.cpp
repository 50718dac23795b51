#include "system/modColourDepth.h"

#include <windows.h>

#include <cstdlib>
#include <string>

#include "folder/modRegistry.h"
#include "frame/CResDll.h"
#include "frame/EndProgram.h"
#include "frame/RunState.h"
#include "resource_ids.h"
#include "toolkit/ScopedHandle.h"

namespace integration {
namespace {

constexpr int kBitsPerPixel = BITSPIXEL;
constexpr std::int32_t kHighColour = 16;
constexpr char kRaisedDepth[] = "16";
constexpr char kMetricsKey[] = "Control Panel\\Desktop\\WindowMetrics";
constexpr char kIconDepthValue[] = "Shell Icon BPP";

// Yes to a two-line question of the program's own.
bool Agrees(int first, int second) {
  frame::CResDll& texts = frame::LanguageLibrary();
  const std::string prompt = texts.LoadDllString(first) + "\r\n" + texts.LoadDllString(second);
  return ::MessageBoxA(nullptr, prompt.c_str(), frame::kProgramName, MB_YESNO | MB_ICONQUESTION) ==
         IDYES;
}

}  // namespace

std::int32_t GetDisplayColourDepth() {
  toolkit::ScopedMemoryDC display(::CreateDCA("DISPLAY", nullptr, nullptr, nullptr));
  return display ? ::GetDeviceCaps(display.get(), kBitsPerPixel) : 0;
}

std::int32_t GetShellIconDepth() {
  const std::string text = folder::RegistryText(
      folder::GetRegistryValue(HKEY_CURRENT_USER, kMetricsKey, kIconDepthValue));
  return static_cast<std::int32_t>(std::strtol(text.c_str(), nullptr, 10));
}

void RaiseShellIconDepth() {
  if (GetShellIconDepth() == 0) return;
  folder::SetRegistryValue(HKEY_CURRENT_USER, kMetricsKey, kIconDepthValue,
                           std::string(kRaisedDepth), folder::kTextKind);
}

void CheckColourDepth() {
  const std::int32_t displayDepth = displayColourDepthSource();
  if (GetShellIconDepth() >= kHighColour || displayDepth >= kHighColour) return;
  if (!Agrees(IDS_LOW_DEPTH_NOTICE, IDS_LOW_DEPTH_QUESTION)) return;
  RaiseShellIconDepth();
  if (Agrees(IDS_RESTART_NOTICE, IDS_RESTART_QUESTION)) frame::EndProgram(true);
}

}  // namespace integration
