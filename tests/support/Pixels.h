// Pixels of bitmaps, icons and pictures, read all at once through a 32-bit
// top-down DIB copy with the alpha channel kept; solid pictures to draw
// with, and a plain window to host elements under test.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "toolkit/Picture.h"

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
// The colour image of an icon (alpha included); empty once it is destroyed.
PixelGrid ReadIconPixels(HICON icon);
inline bool IconAlive(HICON icon) {
  return !ReadIconPixels(icon).bgra.empty();
}

// A pixel of a bitmap picture; CLR_INVALID outside it.
COLORREF PicturePixel(const toolkit::Picture& picture, int x, int y);
toolkit::Picture SolidPicture(int width, int height, COLORREF colour);

class TestWindow {
 public:
  TestWindow(int width = 200, int height = 150);
  ~TestWindow();
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;
  HWND Hwnd() const { return window_; }

 private:
  HWND window_;
};

}  // namespace testing_support
