#include "support/Pixels.h"

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

bool IconAlive(HICON icon) {
  ICONINFO info{};
  if (!::GetIconInfo(icon, &info)) return false;
  ::DeleteObject(info.hbmColor);
  ::DeleteObject(info.hbmMask);
  return true;
}

}  // namespace testing_support
