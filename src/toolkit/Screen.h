// The display as the windows measure it: twips (1/1440 inch) and pixels at
// a window's DPI, and conversions between the two units. Each window works
// at the DPI of the monitor it stands on (platform/Dpi.h).
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

// The DPI of a window made now, before the system places it on a monitor.
int Dpi();

// Twips per pixel: 15 at 96 dpi, 10 at 144 dpi, 7.5 at 192 dpi.
double TwipsPerPixel(int dpi);

// The screen's size in twips.
int Width(int dpi);
int Height(int dpi);

// Rounded to the nearest pixel.
int TwipsToPixels(int twips, int dpi);
int PixelsToTwips(int pixels, int dpi);

// The pixel rectangle of a design rectangle; each edge rounded on its own.
RECT ToPixels(const TwipsRect& twips, int dpi);

// Without a DPI: at Dpi(), for code that has no window yet.
inline int PixelsToTwipsX(int pixels) {
  return PixelsToTwips(pixels, Dpi());
}
inline int PixelsToTwipsY(int pixels) {
  return PixelsToTwips(pixels, Dpi());
}

}  // namespace toolkit::Screen
