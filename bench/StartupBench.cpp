#include "StartupBench.h"

#include <windows.h>

#include <commctrl.h>

#include <chrono>
#include <functional>

#include "BenchSupport.h"
#include "Clock.h"
#include "ui/ControlIds.h"

namespace bench {
namespace {

using namespace std::chrono_literals;
using testing_support::ChildProcess;

constexpr double kGiveUpMs = 30000;
// Short enough to see the window within a few milliseconds, long enough not
// to take the processor from the program being watched.
constexpr DWORD kPollMs = 2;
constexpr UINT kAnswerLimitMs = 10000;
constexpr char kMainWindowClass[] = "MorvaneForm";
constexpr char kMainWindowTitle[] = "Morvane";
constexpr char kMinimalClass[] = "MorvaneBenchMinimal";
constexpr int kMinimalListId = 1;

bool StartsWith(const std::string& text, const std::string& start) {
  return text.rfind(start, 0) == 0;
}

// Milliseconds from process creation to the first visible window of the
// process that `ready` accepts; -1 when none came. The window is then asked
// to close, and the process is ended if it does not.
double TimeToReadyWindow(const std::string& exe, const std::string& commandLine,
                         const std::function<bool(HWND)>& ready) {
  const double start = NowMs();
  ChildProcess child(exe, commandLine);
  if (!child.Started()) return -1;
  HWND found = nullptr;
  double readyAt = -1;
  while (!found && NowMs() - start < kGiveUpMs && !child.WaitForExit(0ms)) {
    for (HWND window : child.VisibleWindows()) {
      if (ready(window)) {
        readyAt = NowMs();
        found = window;
        break;
      }
    }
    if (!found) ::Sleep(kPollMs);
  }
  if (found) ::PostMessageA(found, WM_CLOSE, 0, 0);
  child.WaitForExit(std::chrono::milliseconds(static_cast<int>(kGiveUpMs)));
  return found ? readyAt - start : -1;
}

}  // namespace

StartupSamples MeasureStartup(const std::string& morvaneExe, const std::string& minimalExe,
                              const std::string& targetFolder, int listedIcons, int runs) {
  auto morvaneReady = [listedIcons](HWND window) {
    if (testing_support::ClassName(window) != kMainWindowClass ||
        !StartsWith(testing_support::WindowText(window), kMainWindowTitle)) {
      return false;
    }
    // The program answers only between its steps, so the answer comes once
    // the listing is over.
    DWORD_PTR items = 0;
    HWND list = ::GetDlgItem(window, ui::ids::iconList);
    return list &&
           ::SendMessageTimeoutA(list, LVM_GETITEMCOUNT, 0, 0, SMTO_NORMAL, kAnswerLimitMs,
                                 &items) &&
           static_cast<int>(items) == listedIcons;
  };
  // Watched as Morvane is: shown, and its list answering with its one item.
  auto minimalReady = [](HWND window) {
    DWORD_PTR items = 0;
    HWND list = ::GetDlgItem(window, kMinimalListId);
    return testing_support::ClassName(window) == kMinimalClass && list &&
           ::SendMessageTimeoutA(list, LVM_GETITEMCOUNT, 0, 0, SMTO_NORMAL, kAnswerLimitMs,
                                 &items) &&
           items == 1;
  };
  const std::string morvaneLine = "\"" + morvaneExe + "\" " + targetFolder;
  const std::string minimalLine = "\"" + minimalExe + "\"";

  StartupSamples samples;
  for (int run = 0; run <= runs; ++run) {
    const double minimal = TimeToReadyWindow(minimalExe, minimalLine, minimalReady);
    const double morvane = TimeToReadyWindow(morvaneExe, morvaneLine, morvaneReady);
    if (run == 0) continue;
    samples.failures += (minimal < 0) + (morvane < 0);
    if (minimal >= 0) samples.minimalMs.push_back(minimal);
    if (morvane >= 0) samples.morvaneMs.push_back(morvane);
  }
  return samples;
}

}  // namespace bench
