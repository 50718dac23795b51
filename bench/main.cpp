// The benchmark of the icon browser, start-up and resource use. Prints its
// figures as markdown on standard output and its progress on standard
// error. Argument: how many timed runs each median is taken over (5 when
// not given).
//
// Order: start-up runs of Morvane.exe and of the minimal program (other
// processes); then the real main window in this process: its first load
// (the shipped icons, as at start-up), 20 loads of the 1234-icon library
// with object counts, the timed loads against extraction alone, the cost of
// each other step of a load, and at last the window's close sequence, whose
// leftovers are counted as it ends the process.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "BenchSupport.h"
#include "Clock.h"
#include "ExitWatch.h"
#include "GuiObjects.h"
#include "LoadBench.h"
#include "StartupBench.h"
#include "platform/IconFile.h"

namespace {

constexpr int kDefaultRuns = 5;
// Start-up may take this many times what the minimal program takes.
constexpr double kStartupGoal = 1.5;
constexpr int kLeakLoads = 20;
constexpr char kLeakLibrary[] = "ICONS1234.DLL";
constexpr const char* kLibraries[] = {"ICONS120.DLL", "ICONS1234.DLL", "ICONS5000.DLL"};
constexpr std::size_t kStepsLibrary = 1;  // the 1234-icon library
constexpr char kShippedLibrary[] = "iconos.dll";
constexpr double kBytesPerKiB = 1024;
constexpr int kIconSize = 32;  // the large icons at 96 dpi, where the bench runs

void Progress(const std::string& text) {
  std::fprintf(stderr, "bench: %s\n", text.c_str());
}

std::string Fixed(double value, int decimals = 0) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return text;
}

std::string Signed(double value, int decimals = 0) {
  return (value > 0 ? "+" : "") + Fixed(value, decimals);
}

std::string Ratio(double value, double reference) {
  return reference > 0 ? Fixed(value / reference, 2) : "n/a";
}

struct Snapshot {
  testing_support::GuiObjectCount objects;
  std::map<DWORD, std::uint32_t> gdiKinds;
  double privateKiB = 0;
  double countMs = 0;  // how long counting the objects took
};

Snapshot TakeSnapshot() {
  Snapshot snapshot;
  snapshot.countMs = bench::TimeMs([&] { snapshot.objects = testing_support::CountGuiObjects(); });
  snapshot.gdiKinds = testing_support::GdiObjectsByKind();
  snapshot.privateKiB = static_cast<double>(testing_support::PrivateBytes()) / kBytesPerKiB;
  return snapshot;
}

const char* KindName(DWORD kind) {
  switch (kind) {
    case OBJ_PEN: return "pens";
    case OBJ_BRUSH: return "brushes";
    case OBJ_DC: return "DCs";
    case OBJ_PAL: return "palettes";
    case OBJ_FONT: return "fonts";
    case OBJ_BITMAP: return "bitmaps";
    case OBJ_REGION: return "regions";
    case OBJ_MEMDC: return "memory DCs";
    default: return "others";
  }
}

// "+2 bitmaps, -1 fonts", or "none".
std::string KindChanges(const Snapshot& before, const Snapshot& after) {
  std::map<DWORD, std::uint32_t> kinds = before.gdiKinds;
  kinds.insert(after.gdiKinds.begin(), after.gdiKinds.end());
  std::string changes;
  for (const auto& [kind, unused] : kinds) {
    auto count = [kind](const Snapshot& s) {
      auto found = s.gdiKinds.find(kind);
      return found == s.gdiKinds.end() ? 0.0 : static_cast<double>(found->second);
    };
    const double change = count(after) - count(before);
    if (change == 0) continue;
    changes += (changes.empty() ? "" : ", ") + Signed(change) + " " + KindName(kind);
  }
  return changes.empty() ? "none" : changes;
}

// Filled while the window runs, printed when its close sequence ends the
// process.
struct ResourceFigures {
  Snapshot afterSetUp, afterFirstLoad, afterLastLoad, beforeClose, afterClose;
  std::vector<std::string> scratchFolders;
} resources;

void PrintResourceTable() {
  const Snapshot& set = resources.afterSetUp;
  const Snapshot& first = resources.afterFirstLoad;
  const Snapshot& last = resources.afterLastLoad;
  const Snapshot& open = resources.beforeClose;
  const Snapshot& closed = resources.afterClose;
  std::printf("\n### Resources: %d loads of the 1234-icon library, then the close sequence\n\n",
              kLeakLoads);
  std::printf(
      "| Measure | after set-up | after load 1 | after load %d | load %d - load 1 | "
      "before close | after close | close - set-up |\n"
      "|---|---|---|---|---|---|---|---|\n",
      kLeakLoads, kLeakLoads);
  auto row = [](const char* name, double s, double f, double l, double o, double c) {
    std::printf("| %s | %s | %s | %s | %s | %s | %s | %s |\n", name, Fixed(s).c_str(),
                Fixed(f).c_str(), Fixed(l).c_str(), Signed(l - f).c_str(), Fixed(o).c_str(),
                Fixed(c).c_str(), Signed(c - s).c_str());
  };
  row("GDI objects", set.objects.gdi, first.objects.gdi, last.objects.gdi, open.objects.gdi,
      closed.objects.gdi);
  row("USER objects", set.objects.user, first.objects.user, last.objects.user, open.objects.user,
      closed.objects.user);
  row("Private memory (KiB)", set.privateKiB, first.privateKiB, last.privateKiB, open.privateKiB,
      closed.privateKiB);
  std::printf(
      "\nGDI objects by kind, load %d against load 1: %s; after close against set-up: "
      "%s.\n",
      kLeakLoads, KindChanges(first, last).c_str(), KindChanges(set, closed).c_str());
  std::printf(
      "Object counts %s, %s ms each. \"Before close\" follows all the timed loads "
      "(up to 5000 icons); \"after close\" is counted as the close sequence ends the "
      "process.\n",
      set.objects.fromSystem ? "from GetGuiResources" : "from Wine's handle tables",
      Fixed(closed.countMs).c_str());
}

void OnProcessExit() {
  resources.afterClose = TakeSnapshot();
  PrintResourceTable();
  std::fflush(stdout);
  for (const std::string& folder : resources.scratchFolders) testing_support::DeleteTree(folder);
}

struct LoadRow {
  std::string library;
  int icons = 0;
  std::vector<double> load, single, own, batched, ratio;
};

void PrintLoadTable(const std::vector<LoadRow>& rows, int runs, int failedLoads) {
  std::printf("### Icon browser load (median of %d runs)\n\n", runs);
  std::printf(
      "| Icons | Load in Morvane (ms) | Floor: single ExtractIconExA calls (ms) | Single calls "
      "of the program's own extraction (ms) | One batched call (ms) | Load / floor | Load / own "
      "calls | Batched / floor |\n"
      "|---|---|---|---|---|---|---|---|\n");
  for (const LoadRow& row : rows) {
    const double floor = bench::Median(row.single);
    const double batched = bench::Median(row.batched);
    const double own = bench::Median(row.own), load = bench::Median(row.load);
    std::printf("| %d | %s | %s | %s | %s | %s | %s | %s |\n", row.icons, Fixed(load).c_str(),
                Fixed(floor).c_str(), Fixed(own).c_str(), Fixed(batched).c_str(),
                Fixed(bench::Median(row.ratio), 2).c_str(), Ratio(load, own).c_str(),
                Ratio(batched, floor).c_str());
  }
  std::printf(
      "\nLoad / floor is the median of each run's ratio (load and floor measured back "
      "to back).\n");
  if (failedLoads) std::printf("%d loads did not list every icon.\n", failedLoads);
}

void PrintStepTable(const LoadRow& row, const bench::StepCosts& steps, int runs) {
  const double load = bench::Median(row.load);
  std::printf(
      "\n### Where a load of %d icons goes (each step run alone %d times; median of %d "
      "runs)\n\n",
      row.icons, row.icons, runs);
  std::printf("| Step | ms | per icon (us) | of the load |\n|---|---|---|---|\n");
  auto stepRow = [&](const char* name, double ms) {
    std::printf("| %s | %s | %s | %s%% |\n", name, Fixed(ms).c_str(),
                Fixed(1000 * ms / row.icons).c_str(),
                Fixed(load > 0 ? 100 * ms / load : 0).c_str());
  };
  const double floor = bench::Median(row.single);
  stepRow("Extraction (the floor, median)", floor);
  stepRow("Progress text drawn on the status strip", steps.progressMs);
  stepRow("Icon rendered on the scratch surface and added as an image", steps.iconImageMs);
  stepRow("... of which the image list's own adds", steps.imageListMs);
  stepRow("Items added to the list", steps.itemsMs);
  stepRow("Sum of the above", floor + steps.progressMs + steps.iconImageMs + steps.itemsMs);
  stepRow("Whole load (median)", load);
}

void PrintStartupTable(const bench::StartupSamples& startup, int shippedIcons, double firstLoad,
                       double laterLoads, int runs) {
  const double minimal = bench::Median(startup.minimalMs);
  const double morvane = bench::Median(startup.morvaneMs);
  const double bound = kStartupGoal * minimal;
  std::printf("\n### Start-up (median of %d runs of each, taken in turns)\n\n", runs);
  std::printf("| Measure | ms |\n|---|---|\n");
  std::printf("| Minimal Win32 program: process start to its list of one item shown | %s |\n",
              Fixed(minimal).c_str());
  std::printf("| Morvane: process start to the main window shown, %d icons listed | %s |\n",
              shippedIcons, Fixed(morvane).c_str());
  std::printf("| Load of \"%s\", the first in a new main window (as at start-up) | %s |\n",
              kShippedLibrary, Fixed(firstLoad).c_str());
  std::printf("| Load of \"%s\", later loads (median) | %s |\n", kShippedLibrary,
              Fixed(laterLoads).c_str());
  std::printf("| Goal: 1.5 x minimal | %s |\n", Fixed(bound).c_str());
  std::printf("| Morvane / minimal | %s |\n", Ratio(morvane, minimal).c_str());
  std::printf("| Morvane / goal | %s |\n", Ratio(morvane, bound).c_str());
  if (startup.failures) {
    std::printf("\n%d start-up runs never showed their window.\n", startup.failures);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : kDefaultRuns;
  const std::string libraries = testing_support::TestFolder() + "..\\tests\\";
  // Never destroyed: the close sequence ends the process. The folders are
  // deleted by OnProcessExit.
  auto* target = new testing_support::ScratchFolder();
  auto* startupCopy = new testing_support::ProgramCopy();
  auto* windowCopy = new testing_support::ProgramCopy();
  resources.scratchFolders = {target->Path(), startupCopy->Folder(), windowCopy->Folder()};
  const std::string shippedFile = windowCopy->File(kShippedLibrary);
  const int shippedIcons = platform::IconFile(shippedFile).Count();

  Progress("start-up, " + std::to_string(runs) + " runs of each program");
  const bench::StartupSamples startup =
      bench::MeasureStartup(startupCopy->Exe(), testing_support::TestFolder() + "MinimalWindow.exe",
                            target->Path(), shippedIcons, runs);

  Progress("setting up the main window in this process");
  bench::MainWindowRun& window = bench::OpenMainWindow(windowCopy->Folder(), target->Path());
  resources.afterSetUp = TakeSnapshot();
  const double firstShippedLoad = bench::TimeBrowserLoad(window, shippedFile, shippedIcons);

  Progress("resources: " + std::to_string(kLeakLoads) + " loads of " + kLeakLibrary);
  const std::string leakFile = libraries + kLeakLibrary;
  const int leakIcons = platform::IconFile(leakFile).Count();
  bench::TimeBrowserLoad(window, leakFile, leakIcons);
  resources.afterFirstLoad = TakeSnapshot();
  for (int load = 2; load <= kLeakLoads; ++load) {
    bench::TimeBrowserLoad(window, leakFile, leakIcons);
  }
  resources.afterLastLoad = TakeSnapshot();

  std::vector<LoadRow> rows;
  for (const char* name : kLibraries) {
    rows.push_back({name, platform::IconFile(libraries + name).Count(), {}, {}, {}, {}, {}});
  }
  std::vector<double> shippedLoads;
  int failedLoads = 0;
  for (int run = 1; run <= runs; ++run) {
    Progress("icon browser, run " + std::to_string(run) + " of " + std::to_string(runs));
    const double shipped = bench::TimeBrowserLoad(window, shippedFile, shippedIcons);
    if (shipped >= 0) shippedLoads.push_back(shipped);
    for (LoadRow& row : rows) {
      const std::string file = libraries + row.library;
      const double single = bench::TimeSingleExtractions(file, row.icons);
      const double load = bench::TimeBrowserLoad(window, file, row.icons);
      row.batched.push_back(bench::TimeBatchedExtraction(file, row.icons));
      row.own.push_back(bench::TimeSingleOwnExtractions(file, row.icons, kIconSize));
      row.single.push_back(single);
      failedLoads += load < 0;
      if (load < 0) continue;
      row.load.push_back(load);
      row.ratio.push_back(load / single);
    }
  }

  Progress("cost of each step of a load");
  const LoadRow& stepsRow = rows[kStepsLibrary];
  std::vector<bench::StepCosts> stepRuns;
  for (int run = 1; run <= runs; ++run) {
    stepRuns.push_back(bench::TimeLoadSteps(window, libraries + stepsRow.library, stepsRow.icons));
  }
  auto medianOf = [&stepRuns](double bench::StepCosts::*step) {
    std::vector<double> samples;
    for (const bench::StepCosts& costs : stepRuns) samples.push_back(costs.*step);
    return bench::Median(samples);
  };
  bench::StepCosts steps;
  for (double bench::StepCosts::*step :
       {&bench::StepCosts::progressMs, &bench::StepCosts::iconImageMs,
        &bench::StepCosts::imageListMs, &bench::StepCosts::itemsMs}) {
    steps.*step = medianOf(step);
  }

  PrintLoadTable(rows, runs, failedLoads);
  PrintStepTable(stepsRow, steps, runs);
  PrintStartupTable(startup, shippedIcons, firstShippedLoad, bench::Median(shippedLoads), runs);
  std::fflush(stdout);

  resources.beforeClose = TakeSnapshot();
  Progress("closing the main window");
  if (!bench::RunBeforeProcessExit(OnProcessExit)) {
    Progress("cannot watch the process end; the close is not measured");
    return 1;
  }
  window.window->Unload();
  Progress("the close sequence did not end the process");
  return 1;
}
