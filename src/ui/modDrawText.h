#pragma once

#include <string>

#include "toolkit/PictureBox.h"

namespace ui {

// Whether a caption also becomes the surface's window text, which screen
// readers and tests read. Setting it is a trip to the Wine server, so text
// that changes faster than anyone reads it can leave it.
enum class WindowText { kSet, kLeave };

// One line of text, centred, its top 4 pixels below the surface's top edge,
// in the surface's font and text colour, over whatever the surface shows.
void DrawCaption(toolkit::PictureBox& surface, const std::string& text,
                 WindowText windowText = WindowText::kSet);

}  // namespace ui
