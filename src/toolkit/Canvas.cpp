#include "toolkit/Canvas.h"

#include <cmath>

#include "platform/ScopedHandle.h"
#include "toolkit/Screen.h"

namespace toolkit {
namespace {

constexpr double kTwipsPerPoint = 20.0;

double TwipsPerUnit(ScaleMode mode) {
  switch (mode) {
    case ScaleMode::kTwips: return 1.0;
    case ScaleMode::kPoints: return kTwipsPerPoint;
    case ScaleMode::kInches: return Screen::kTwipsPerInch;
    default: return 0.0;
  }
}

double PerPixel(ScaleMode mode, double twipsPerPixel) {
  if (mode == ScaleMode::kPixels) return 1.0;
  double twips = TwipsPerUnit(mode);
  return twips > 0 ? twipsPerPixel / twips : 0.0;
}

}  // namespace

double Canvas::UnitsPerPixelX() const {
  return PerPixel(Scale(), Screen::TwipsPerPixel(DrawingDpi()));
}
double Canvas::UnitsPerPixelY() const {
  return PerPixel(Scale(), Screen::TwipsPerPixel(DrawingDpi()));
}

void Canvas::DrawLine(double x1, double y1, double x2, double y2, COLORREF colour) const {
  double perX = UnitsPerPixelX(), perY = UnitsPerPixelY();
  HDC dc = hDC();
  if (!dc || perX <= 0 || perY <= 0) return;
  auto px = [perX](double x) { return static_cast<int>(std::floor(x / perX + 0.5)); };
  auto py = [perY](double y) { return static_cast<int>(std::floor(y / perY + 0.5)); };
  platform::ScopedPen pen(::CreatePen(PS_SOLID, DrawWidth(), colour));
  platform::ScopedSelect select(dc, pen.get());
  POINT previous;
  ::MoveToEx(dc, px(x1), py(y1), &previous);
  ::LineTo(dc, px(x2), py(y2));
  ::MoveToEx(dc, previous.x, previous.y, nullptr);
  Drawn();
}

}  // namespace toolkit
