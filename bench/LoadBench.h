// The icon browser of the real main window, timed in this process, and the
// floor that extraction alone sets.
#pragma once

#include <string>

#include <memory>
#include <optional>

#include "core/FolderSettings.h"
#include "platform/ResourceLibrary.h"
#include "ui/AboutWindow.h"
#include "ui/MainWindow.h"
#include "ui/WindowContext.h"

namespace bench {

// What start-up sets up for the main window: both libraries, the target
// folder's record, the about window it refers to (never loaded here), and
// the file whose icons the list holds.
struct MainWindowRun {
  platform::ResourceLibrary language;
  platform::ResourceLibrary pictures;
  core::FolderSettings settings;
  std::optional<ui::WindowContext> context;
  std::unique_ptr<ui::AboutWindow> about;
  std::unique_ptr<ui::MainWindow> window;
  std::string listedFile;
};

// Sets up and shows the program's main window in this process as start-up
// does, on the program files in `programFolder` (ending in "\") and the
// folder `targetFolder`; the about window is left out. Never destroyed: the
// window's close sequence ends the process.
MainWindowRun& OpenMainWindow(const std::string& programFolder, const std::string& targetFolder);

// Milliseconds from the call of LoadIcons on `file` to its return, when the
// last item is in the list; -1 when the list then does not hold `icons`
// items. A file other than the listed one is first opened as the user opens
// one, outside the timing.
double TimeBrowserLoad(MainWindowRun& run, const std::string& file, int icons);

// `icons` single-icon ExtractIconExA calls on `file`, each asking for the
// large and the small icon and destroying both: the yardstick the goals are
// set against.
double TimeSingleExtractions(const std::string& file, int icons);
// `icons` single extractions through the call the program makes, at `size`.
double TimeSingleOwnExtractions(const std::string& file, int icons, int size);
// One ExtractIconExA call for all `icons` icons, and destroying them.
double TimeBatchedExtraction(const std::string& file, int icons);

// What the steps of a load other than extraction cost for `icons` icons,
// each run alone, `icons` times, by the window's own step routines.
struct StepCosts {
  double progressMs = 0;   // progress text drawn on the status strip
  double iconImageMs = 0;  // icon rendered on the scratch surface, added to the image list
  double imageListMs = 0;  // of which the image list's own adds
  double itemsMs = 0;      // items added to the list
};
StepCosts TimeLoadSteps(MainWindowRun& run, const std::string& file, int icons);

}  // namespace bench
