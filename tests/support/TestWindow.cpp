#include "support/TestWindow.h"

#include <vector>

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
  BITMAP info{};
  if (!::GetObjectA(bitmap, sizeof info, &info)) return CLR_INVALID;
  BITMAPINFO request{};
  request.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  request.bmiHeader.biWidth = info.bmWidth;
  request.bmiHeader.biHeight = -info.bmHeight;
  request.bmiHeader.biPlanes = 1;
  request.bmiHeader.biBitCount = 32;
  request.bmiHeader.biCompression = BI_RGB;
  std::vector<DWORD> pixels(static_cast<size_t>(info.bmWidth) * info.bmHeight);
  HDC screen = ::GetDC(nullptr);
  int lines =
      ::GetDIBits(screen, bitmap, 0, info.bmHeight, pixels.data(), &request, DIB_RGB_COLORS);
  ::ReleaseDC(nullptr, screen);
  if (lines != info.bmHeight) return CLR_INVALID;
  DWORD bgr = pixels[static_cast<size_t>(y) * info.bmWidth + x];
  return RGB((bgr >> 16) & 0xFF, (bgr >> 8) & 0xFF, bgr & 0xFF);
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
