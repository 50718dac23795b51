// The icon browser of the real main window, timed in this process, and the
// floor that extraction alone sets.
#pragma once

#include <string>

#include "ui/frmPrincipal.h"

namespace bench {

// Sets up and shows the program's main window in this process as start-up
// does, on the program files in `programFolder` (ending in "\") and the
// folder `targetFolder`; the about window is left out.
ui::FrmPrincipal& OpenMainWindow(const std::string& programFolder, const std::string& targetFolder);

// Milliseconds from the call of CargarIconosdeArchivo on `file` to its
// return, when the last item is in the list; -1 when the list then does not
// hold `icons` items.
double TimeBrowserLoad(ui::FrmPrincipal& window, const std::string& file, int icons);

// `icons` single-icon ExtractIconExA calls on `file`, each asking for the
// large and the small icon and destroying both, as the program's extraction
// does.
double TimeSingleExtractions(const std::string& file, int icons);
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
StepCosts TimeLoadSteps(ui::FrmPrincipal& window, const std::string& file, int icons);

}  // namespace bench
