#include "support/TestSupport.h"

#include <shlobj.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "platform/SystemPath.h"
#include "platform/Utf8.h"

namespace testing_support {

using platform::FilePath;
using platform::Utf8;

std::string TestFolder() {
  wchar_t buffer[MAX_PATH * 4] = {};
  const std::string path = Utf8({buffer, ::GetModuleFileNameW(nullptr, buffer, MAX_PATH * 4)});
  return path.substr(0, path.find_last_of('\\') + 1);
}

std::string DistFolder() {
  return TestFolder() + "..\\dist\\";
}

std::string ReadWholeFile(const std::string& path) {
  std::ifstream in(std::filesystem::path(FilePath(path)), std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

void WriteWholeFile(const std::string& path, const std::string& bytes) {
  std::ofstream out(std::filesystem::path(FilePath(path)), std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out) throw std::runtime_error("cannot write " + path);
}

void DeleteTree(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(FilePath(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return;
  // Hidden, system and read-only entries refuse deletion otherwise.
  ::SetFileAttributesW(FilePath(path).c_str(), FILE_ATTRIBUTE_NORMAL);
  if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
    ::DeleteFileW(FilePath(path).c_str());
    return;
  }
  WIN32_FIND_DATAW entry;
  HANDLE search = ::FindFirstFileW(FilePath(path + "\\*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::string name = Utf8(entry.cFileName);
      if (name != "." && name != "..") DeleteTree(path + "\\" + name);
    } while (::FindNextFileW(search, &entry));
    ::FindClose(search);
  }
  ::RemoveDirectoryW(FilePath(path).c_str());
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
