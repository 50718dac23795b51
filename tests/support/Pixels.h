// Pixels of bitmaps and icons, all at once through a 32-bit top-down DIB
// copy with the alpha channel kept; and whether an icon still exists.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace testing_support {

struct PixelGrid {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> bgra;  // row by row from the top

  std::uint32_t At(int x, int y) const { return bgra[static_cast<size_t>(y) * width + x]; }
  COLORREF Colour(int x, int y) const {
    std::uint32_t p = At(x, y);
    return RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF);
  }
  int Alpha(int x, int y) const { return static_cast<int>(At(x, y) >> 24); }
};

// Empty when the bitmap cannot be read.
PixelGrid ReadPixels(HBITMAP bitmap);

// The colour image of an icon (alpha included), and its size.
PixelGrid ReadIconPixels(HICON icon);

// True while the icon has not been destroyed.
bool IconAlive(HICON icon);

}  // namespace testing_support
