#include "support/TestSupport.h"

#include <shlobj.h>

#include <stdexcept>

namespace testing_support {

std::string DistFolder() {
  return TestFolder() + "..\\dist\\";
}

ScratchFolder::ScratchFolder() {
  char temp[MAX_PATH] = {}, name[MAX_PATH] = {};
  ::GetTempPathA(MAX_PATH, temp);
  // A unique name, taken as a file and turned into a folder.
  ::GetTempFileNameA(temp, "mvt", 0, name);
  ::DeleteFileA(name);
  if (!::CreateDirectoryA(name, nullptr)) throw std::runtime_error("no scratch folder");
  path_ = name;
}

DibSurface::DibSurface(int width, int height, COLORREF fill)
    : width_(width), dc_(::CreateCompatibleDC(nullptr)) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  bits_ = static_cast<std::uint32_t*>(bits);
  original_ = ::SelectObject(dc_, bitmap_);
  RECT all{0, 0, width, height};
  ::SetDCBrushColor(dc_, fill);
  ::FillRect(dc_, &all, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

DibSurface::~DibSurface() {
  ::SelectObject(dc_, original_);
  ::DeleteObject(bitmap_);
  ::DeleteDC(dc_);
}

COLORREF DibSurface::Pixel(int x, int y) const {
  ::GdiFlush();
  const std::uint32_t p = bits_[static_cast<size_t>(y) * width_ + x];
  return RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF);
}

std::vector<COLORREF> ReadPixels(HBITMAP bitmap, int& width) {
  BITMAP shape{};
  width = 0;
  if (!::GetObjectW(bitmap, sizeof shape, &shape)) return {};
  DibSurface copy(shape.bmWidth, shape.bmHeight, 0);
  HDC source = ::CreateCompatibleDC(nullptr);
  HGDIOBJ old = ::SelectObject(source, bitmap);
  ::BitBlt(copy.Dc(), 0, 0, shape.bmWidth, shape.bmHeight, source, 0, 0, SRCCOPY);
  ::SelectObject(source, old);
  ::DeleteDC(source);
  std::vector<COLORREF> pixels;
  for (int y = 0; y < shape.bmHeight; ++y) {
    for (int x = 0; x < shape.bmWidth; ++x) pixels.push_back(copy.Pixel(x, y));
  }
  width = shape.bmWidth;
  return pixels;
}

void RecordingNotifier::NotifyPath(LONG event, const std::string& path) {
  calls.push_back({event, path});
}
void RecordingNotifier::NotifyNumber(LONG event, int number) {
  calls.push_back({event, std::to_string(number)});
}
void RecordingNotifier::Notify(LONG event) {
  calls.push_back({event, ""});
}

}  // namespace testing_support
