// A plain top-level window to host elements under test.
#pragma once

#include <windows.h>

#include "toolkit/Picture.h"

namespace testing_support {

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

// The colour of pixel (x, y) of a bitmap, read through a 32-bit DIB copy.
COLORREF BitmapPixel(HBITMAP bitmap, int x, int y);
COLORREF PicturePixel(const toolkit::Picture& picture, int x, int y);

// A solid-colour bitmap picture.
toolkit::Picture SolidPicture(int width, int height, COLORREF colour);

}  // namespace testing_support
