// Something that can be drawn on in its own measuring unit: a form, or a
// picture surface. Lines are one-pixel wide unless the canvas says
// otherwise, and leave their end point undrawn.
#pragma once

#include <windows.h>

namespace toolkit {

enum class ScaleMode { kUser = 0, kTwips = 1, kPoints = 2, kPixels = 3, kInches = 5 };

class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual ScaleMode Scale() const = 0;
  virtual void SetScaleMode(ScaleMode mode) = 0;
  virtual HDC hDC() const = 0;
  virtual int DrawWidth() const = 0;
  virtual void SetDrawWidth(int pixels) = 0;
  // The DPI its pixels stand for.
  virtual int DrawingDpi() const = 0;

  // Coordinates in the canvas's unit.
  void DrawLine(double x1, double y1, double x2, double y2, COLORREF colour) const;
  // Units of this canvas per pixel, horizontally and vertically; 0 for a
  // unit that has no fixed size (kUser).
  double UnitsPerPixelX() const;
  double UnitsPerPixelY() const;

 protected:
  // Called after each line: a surface that draws into a persistent image
  // shows the change at its next repaint.
  virtual void Drawn() const {}
};

}  // namespace toolkit
