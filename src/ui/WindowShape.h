// The skinned windows' shape and movement: cut to a letter of the program's
// font, zoomed open and closed, dragged by their background.
#pragma once

#include "toolkit/Form.h"

namespace ui {

// Cuts the window to the outline of the letter "A" of the program's face at
// 240 points, drawn at the client origin. The system owns the region once it
// is set; the returned handle is for information only.
HRGN ApplyWindowShape(toolkit::Form& window);

// The system's zoom animation between the start-up square (`startRect`, at
// the mouse when the program started) and the window: into the square when
// `closing`, out of it otherwise.
void ZoomWindow(toolkit::Form& window, bool closing, const RECT& startRect);

// Hands the window to the system's own move loop, as a press on a caption
// bar would; returns when the mouse button is released.
void DragWindow(toolkit::Form& window);

}  // namespace ui
