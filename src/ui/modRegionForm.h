#pragma once

#include "toolkit/Form.h"

namespace ui {

// Hands the window to the system's own move loop, as a press on a caption
// bar would; returns when the mouse button is released.
void DragWindow(toolkit::Form& window);

}  // namespace ui
