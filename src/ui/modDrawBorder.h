#pragma once

#include "toolkit/Element.h"

namespace ui {

inline constexpr COLORREF kShadowColour = RGB(128, 128, 128);
inline constexpr COLORREF kHighlightColour = RGB(255, 255, 255);

// A 3-D frame of `thickness` one-pixel rings, `distance` pixels out from the
// control's edge: raised when `sunken` is 0, sunken otherwise. With
// `onControl` the frame is drawn inside the control's own surface, else on
// its parent around it. Draws nothing where the parent measures in neither
// pixels nor twips.
void DrawBorder(toolkit::Element& control, int thickness, int distance, int sunken, bool onControl);

}  // namespace ui
