// The one orderly way out of the program.
#pragma once

namespace frame {

// Removes the program's font, unloads the windows still loaded (the main
// window's own close comes back here and ends the process at that point),
// releases both libraries, optionally asks Windows to restart, and ends the
// process. Never returns.
[[noreturn]] void EndProgram(bool restartWindows);

// Ends the process at once: no clean-up, no further window event.
[[noreturn]] void EndProcessNow();

}  // namespace frame
