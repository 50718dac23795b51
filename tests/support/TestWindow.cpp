#include "support/TestWindow.h"

#include "support/Pixels.h"

#include "toolkit/MessageLoop.h"

namespace testing_support {

TestWindow::TestWindow(int width, int height)
    : window_(::CreateWindowExA(0, "STATIC", "test host", WS_POPUP | WS_VISIBLE, 10, 10, width,
                                height, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr)) {
  toolkit::DoEvents();
}

TestWindow::~TestWindow() {
  if (window_) ::DestroyWindow(window_);
  toolkit::DoEvents();
}

COLORREF BitmapPixel(HBITMAP bitmap, int x, int y) {
  PixelGrid grid = ReadPixels(bitmap);
  if (x < 0 || y < 0 || x >= grid.width || y >= grid.height) return CLR_INVALID;
  return grid.Colour(x, y);
}

COLORREF PicturePixel(const toolkit::Picture& picture, int x, int y) {
  return BitmapPixel(static_cast<HBITMAP>(picture.Handle()), x, y);
}

toolkit::Picture SolidPicture(int width, int height, COLORREF colour) {
  HDC screen = ::GetDC(nullptr);
  HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
  HDC memory = ::CreateCompatibleDC(screen);
  HGDIOBJ old = ::SelectObject(memory, bitmap);
  HBRUSH brush = ::CreateSolidBrush(colour);
  RECT all{0, 0, width, height};
  ::FillRect(memory, &all, brush);
  ::DeleteObject(brush);
  ::SelectObject(memory, old);
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  return toolkit::Picture::Adopt(toolkit::Picture::Kind::Bitmap, bitmap);
}

}  // namespace testing_support
