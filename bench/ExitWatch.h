// The main window's close sequence ends the process as its last step. To
// see what that sequence leaves allocated, the benchmark runs a callback at
// that moment: ExitProcess, as this program imports it, is redirected to a
// function that runs the callback and then ends the process as asked.
#pragma once

namespace bench {

// False when ExitProcess is not among this program's imports.
bool RunBeforeProcessExit(void (*callback)());

}  // namespace bench
