#include "ui/modLine3D.h"

#include <cmath>

#include "toolkit/Screen.h"
#include "ui/modDrawBorder.h"

namespace ui {

void Line3D(toolkit::Canvas& window, float& x1, float& y1, float& x2, float& y2) {
  const int savedWidth = window.DrawWidth();
  const toolkit::ScaleMode savedMode = window.Scale();
  const int tppX = toolkit::Screen::TwipsPerPixelX();
  const int tppY = toolkit::Screen::TwipsPerPixelY();
  if (savedMode == toolkit::ScaleMode::kPixels) {
    x1 = std::floor(x1 * tppX);
    y1 = std::floor(y1 * tppY);
    x2 = std::floor(x2 * tppX);
    y2 = std::floor(y2 * tppY);
  }
  window.SetScaleMode(toolkit::ScaleMode::kTwips);
  window.SetDrawWidth(1);
  window.DrawLine(x1, y1, x2, y2, kShadowColour);
  window.DrawLine(x1 + tppX, y1 + tppY, x2 + tppX, y2 + tppY, kHighlightColour);
  window.SetDrawWidth(savedWidth);
  window.SetScaleMode(savedMode);
}

}  // namespace ui
