#pragma once

#include <string>

#include "toolkit/PictureBox.h"

namespace ui {

// One line of text, centred, its top 4 pixels below the surface's top edge,
// in the surface's font and text colour, over whatever the surface shows.
void DrawCaption(toolkit::PictureBox& surface, const std::string& text);

}  // namespace ui
