// The program's message pump.
#pragma once

namespace toolkit {

// Lets pending window messages run: paints, clicks and timer ticks queued so
// far are handled before the caller goes on.
void DoEvents();

// Runs until WM_QUIT.
void RunMessageLoop();

}  // namespace toolkit
