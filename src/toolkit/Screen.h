// The display as the windows measure it: twips (1/1440 inch) per pixel from
// the display's real DPI, and conversions between the two units.
#pragma once

#include <windows.h>

namespace toolkit {

// Position and size of an element as designed, in twips.
struct TwipsRect {
  int left;
  int top;
  int width;
  int height;
};

}  // namespace toolkit

namespace toolkit::Screen {

inline constexpr int kTwipsPerInch = 1440;

// Whole twips per pixel: 15 at 96 dpi, 12 at 120 dpi.
int TwipsPerPixelX();
int TwipsPerPixelY();

// The screen's size in twips.
int Width();
int Height();

// Rounded to the nearest pixel.
int TwipsToPixelsX(int twips);
int TwipsToPixelsY(int twips);
inline int PixelsToTwipsX(int pixels) {
  return pixels * TwipsPerPixelX();
}
inline int PixelsToTwipsY(int pixels) {
  return pixels * TwipsPerPixelY();
}

// The pixel rectangle of a design rectangle; each edge rounded on its own.
RECT ToPixels(const TwipsRect& twips);

}  // namespace toolkit::Screen
