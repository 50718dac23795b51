// The display as the windows measure it: twips (1/1440 inch) per pixel from
// the display's real DPI, and conversions between the two units.
#pragma once

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

}  // namespace toolkit::Screen
