#include "ui/modDrawBorder.h"

#include "toolkit/Canvas.h"
#include "toolkit/Screen.h"

namespace ui {
namespace {

struct Edges {
  double left, top, right, bottom;
};

}  // namespace

void DrawBorder(toolkit::Element& control, int thickness, int distance, int sunken,
                bool onControl) {
  toolkit::Canvas* parent = control.Parent();
  if (!parent) return;
  double px = 0, py = 0;
  switch (parent->Scale()) {
    case toolkit::ScaleMode::kPixels: px = py = 1; break;
    case toolkit::ScaleMode::kTwips:
      px = toolkit::Screen::TwipsPerPixelX();
      py = toolkit::Screen::TwipsPerPixelY();
      break;
    default: return;
  }
  toolkit::Canvas* target = onControl ? dynamic_cast<toolkit::Canvas*>(&control) : parent;
  if (!target) return;

  // The control's position and size in its parent's unit.
  RECT pixels = control.Bounds();
  double left = pixels.left * px, top = pixels.top * py;
  double width = (pixels.right - pixels.left) * px, height = (pixels.bottom - pixels.top) * py;
  Edges e = onControl ? Edges{0, 0, width - 1, height - 1}
                      : Edges{left - px, top - py, left + width, top + height};

  for (int i = distance; i < distance + thickness; ++i) {
    double dx = i * px, dy = i * py;
    double l = e.left - dx, t = e.top - dy, r = e.right + dx, b = e.bottom + dy;
    if (sunken != 0) {
      target->DrawLine(l, t, r, t, kShadowColour);
      target->DrawLine(l, t, l, b, kShadowColour);
      target->DrawLine(l, b, r + px, b, kHighlightColour);
      target->DrawLine(r, t, r, b, kHighlightColour);
    } else {
      target->DrawLine(r, b, r, t, kShadowColour);
      target->DrawLine(r, b, l, b, kShadowColour);
      target->DrawLine(r, t, l - px, t, kHighlightColour);
      target->DrawLine(l, b, l, t, kHighlightColour);
    }
  }
}

}  // namespace ui
