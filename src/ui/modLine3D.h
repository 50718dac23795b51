#pragma once

#include "toolkit/Canvas.h"

namespace ui {

// An etched line: grey, with a white line one pixel right and below. The
// window draws it in twips; coordinates given in pixels are converted, and
// the caller's variables keep the converted values.
void Line3D(toolkit::Canvas& window, float& x1, float& y1, float& x2, float& y2);

}  // namespace ui
