// What the unit tests share besides the files: where the shipping folder is,
// scratch folders that clean up after themselves, pixels read through a
// 32-bit DIB, and a shell notifier that records instead.
#pragma once
#include <windows.h>
#include <cstdint>
#include <string>
#include <vector>
#include "platform/ShellNotifier.h"
#include "support/Files.h"

namespace testing_support {

std::string DistFolder();  // the shipping folder, with "\"

class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder() { DeleteTree(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::string& Path() const { return path_; }  // without a trailing "\"
  std::string operator/(const std::string& name) const { return path_ + "\\" + name; }

 private:
  std::string path_;
};

// A 32-bit top-down DIB section selected into a memory DC, so that pixels are
// read straight from memory after GdiFlush.
class DibSurface {
 public:
  DibSurface(int width, int height, COLORREF fill);
  ~DibSurface();
  DibSurface(const DibSurface&) = delete;
  DibSurface& operator=(const DibSurface&) = delete;
  HDC Dc() const { return dc_; }
  HBITMAP Bitmap() const { return bitmap_; }
  COLORREF Pixel(int x, int y) const;

 private:
  int width_;
  HDC dc_;
  HBITMAP bitmap_;
  HGDIOBJ original_;
  std::uint32_t* bits_ = nullptr;
};

// The colours of a bitmap, row by row from the top; empty when it cannot be read.
std::vector<COLORREF> ReadPixels(HBITMAP bitmap, int& width);

struct Notification {
  LONG event;
  std::string item;  // the first item: a path, a number, or "" for none
  bool operator==(const Notification&) const = default;
};

class RecordingNotifier : public platform::ShellNotifier {
 public:
  void NotifyPath(LONG event, const std::string& path) override;
  void NotifyNumber(LONG event, int number) override;
  void Notify(LONG event) override;
  std::vector<Notification> calls;
};

}  // namespace testing_support
