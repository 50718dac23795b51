// Start-up seen from outside: the time from creating a process to the
// moment its window is on screen, for Morvane and for the minimal program.
#pragma once

#include <string>
#include <vector>

namespace bench {

struct StartupSamples {
  std::vector<double> minimalMs;
  std::vector<double> morvaneMs;
  int failures = 0;  // runs whose window never showed (left out of the samples)
};

// Morvane counts as started when its main window is visible and its icon
// list holds `listedIcons` items. The two programs take turns, after one
// run of each that is not counted (the first run of a program fills Wine's
// caches).
StartupSamples MeasureStartup(const std::string& morvaneExe, const std::string& minimalExe,
                              const std::string& targetFolder, int listedIcons, int runs);

}  // namespace bench
