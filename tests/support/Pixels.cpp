#include "support/Pixels.h"

#include "toolkit/MessageLoop.h"

namespace testing_support {

PixelGrid ReadPixels(HBITMAP bitmap) {
  BITMAP info{};
  if (!::GetObjectA(bitmap, sizeof info, &info)) return {};
  BITMAPINFO request{};
  request.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  request.bmiHeader.biWidth = info.bmWidth;
  request.bmiHeader.biHeight = -info.bmHeight;
  request.bmiHeader.biPlanes = 1;
  request.bmiHeader.biBitCount = 32;
  request.bmiHeader.biCompression = BI_RGB;
  PixelGrid grid{info.bmWidth, info.bmHeight,
                 std::vector<std::uint32_t>(static_cast<size_t>(info.bmWidth) * info.bmHeight)};
  HDC screen = ::GetDC(nullptr);
  int lines =
      ::GetDIBits(screen, bitmap, 0, info.bmHeight, grid.bgra.data(), &request, DIB_RGB_COLORS);
  ::ReleaseDC(nullptr, screen);
  return lines == info.bmHeight ? grid : PixelGrid{};
}

PixelGrid ReadIconPixels(HICON icon) {
  ICONINFO info{};
  if (!::GetIconInfo(icon, &info)) return {};
  PixelGrid grid = ReadPixels(info.hbmColor);
  // GetIconInfo hands out copies of the icon's bitmaps.
  ::DeleteObject(info.hbmColor);
  ::DeleteObject(info.hbmMask);
  return grid;
}

COLORREF PicturePixel(const toolkit::Picture& picture, int x, int y) {
  PixelGrid grid = ReadPixels(static_cast<HBITMAP>(picture.Handle()));
  if (x < 0 || y < 0 || x >= grid.width || y >= grid.height) return CLR_INVALID;
  return grid.Colour(x, y);
}

toolkit::Picture SolidPicture(int width, int height, COLORREF colour) {
  HDC screen = ::GetDC(nullptr);
  HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
  HDC memory = ::CreateCompatibleDC(screen);
  HGDIOBJ old = ::SelectObject(memory, bitmap);
  ::SetDCBrushColor(memory, colour);
  RECT all{0, 0, width, height};
  ::FillRect(memory, &all, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
  ::SelectObject(memory, old);
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  return toolkit::Picture::Adopt(toolkit::Picture::Kind::Bitmap, bitmap);
}

TestWindow::TestWindow(int width, int height)
    : window_(::CreateWindowExA(0, "STATIC", "test host", WS_POPUP | WS_VISIBLE, 10, 10, width,
                                height, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr)) {
  toolkit::DoEvents();
}

TestWindow::~TestWindow() {
  if (window_) ::DestroyWindow(window_);
  toolkit::DoEvents();
}

}  // namespace testing_support
