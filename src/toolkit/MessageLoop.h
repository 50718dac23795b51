// The program's message pump.
#pragma once

#include <windows.h>

namespace toolkit {

// Lets pending window messages run: paints, clicks and timer ticks queued so
// far are handled before the caller goes on.
void DoEvents();

// Runs until WM_QUIT.
void RunMessageLoop();

// Hands a message to its window. A key goes first to the top-level window it
// was typed in, as a dialog's keys do, so that Tab, Esc and access keys work
// whichever element has the focus.
void Dispatch(MSG& message);

// The message that carries the key (lParam: its MSG) to that window; any
// answer but 0 keeps the key from the element. Windows not of this program
// answer 0.
UINT KeyPreviewMessage();

}  // namespace toolkit
