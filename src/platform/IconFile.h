// The icons stored in one file: an icon file, a program or a library. The
// file's tables are looked at once, when the object is made, so that a file
// the system would fault on counts as holding no icons.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace platform {

class IconFile {
 public:
  explicit IconFile(std::string path);

  const std::string& Path() const { return path_; }

  // The number of icons; 0 for a missing, unreadable or empty path and for a
  // file that holds no icons.
  std::int32_t Count() const;

  // The icon at 0-based position `index`, `size` pixels square (the image of
  // that size the file holds, else one made from the nearest), or 0; the
  // caller owns it (ReleaseIcon, or hand it to a picture). -1 and positions
  // at or past the count give 0; other negative values name an icon by its
  // resource identifier.
  HICON Extract(std::int32_t index, int size) const;

 private:
  std::string path_;
  std::wstring systemPath_;  // the form the extraction accepts
  bool intact_;
};

// Destroys an extracted icon; 0 is allowed and does nothing.
void ReleaseIcon(HICON icon);

}  // namespace platform
