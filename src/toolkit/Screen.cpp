#include "toolkit/Screen.h"

#include <windows.h>

#include "platform/ScopedHandle.h"

namespace toolkit::Screen {
namespace {

int Dpi(int axis) {
  platform::WindowDC screen(nullptr);
  int dpi = screen ? ::GetDeviceCaps(screen.get(), axis) : USER_DEFAULT_SCREEN_DPI;
  return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

int Round(int value, int divisor) {
  return (value >= 0 ? value + divisor / 2 : value - divisor / 2) / divisor;
}

}  // namespace

int TwipsPerPixelX() {
  return kTwipsPerInch / Dpi(LOGPIXELSX);
}
int TwipsPerPixelY() {
  return kTwipsPerInch / Dpi(LOGPIXELSY);
}

int Width() {
  return ::GetSystemMetrics(SM_CXSCREEN) * TwipsPerPixelX();
}
int Height() {
  return ::GetSystemMetrics(SM_CYSCREEN) * TwipsPerPixelY();
}

int TwipsToPixelsX(int twips) {
  return Round(twips, TwipsPerPixelX());
}
int TwipsToPixelsY(int twips) {
  return Round(twips, TwipsPerPixelY());
}

RECT ToPixels(const TwipsRect& twips) {
  return RECT{TwipsToPixelsX(twips.left), TwipsToPixelsY(twips.top),
              TwipsToPixelsX(twips.left + twips.width), TwipsToPixelsY(twips.top + twips.height)};
}

}  // namespace toolkit::Screen
