#include "toolkit/Screen.h"

#include <windows.h>

#include "platform/Dpi.h"

namespace toolkit::Screen {

int Dpi() {
  return platform::SystemDpi();
}

double TwipsPerPixel(int dpi) {
  return static_cast<double>(kTwipsPerInch) / dpi;
}

int Width(int dpi) {
  return PixelsToTwips(::GetSystemMetrics(SM_CXSCREEN), dpi);
}
int Height(int dpi) {
  return PixelsToTwips(::GetSystemMetrics(SM_CYSCREEN), dpi);
}

// MulDiv rounds halves away from zero, as the design's conversions did.
int TwipsToPixels(int twips, int dpi) {
  return ::MulDiv(twips, dpi, kTwipsPerInch);
}
int PixelsToTwips(int pixels, int dpi) {
  return ::MulDiv(pixels, kTwipsPerInch, dpi);
}

RECT ToPixels(const TwipsRect& twips, int dpi) {
  return RECT{TwipsToPixels(twips.left, dpi), TwipsToPixels(twips.top, dpi),
              TwipsToPixels(twips.left + twips.width, dpi),
              TwipsToPixels(twips.top + twips.height, dpi)};
}

}  // namespace toolkit::Screen
