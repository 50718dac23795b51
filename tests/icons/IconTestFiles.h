// The icon files built beside the test programs (tests/data/make_icon_files.py).
#pragma once

#include <string>

#include "support/TestSupport.h"

namespace icon_files {

inline std::string Path(const std::string& name) {
  return testing_support::TestFolder() + name;
}

// One icon whose 32 pixel image is a checkerboard of opaque and fully
// transparent 4 x 4 squares.
inline const std::string kIconFile = "icons.ico";
inline const std::string kTextFile = "notes.txt";
inline const std::string kLibraryWithoutIcons = "NOICONS.DLL";

// Libraries of numbered icons: the icon at position i has identifier i + 1
// and its centre pixel reads RGB(i % 256, i / 256, 0).
struct NumberedLibrary {
  const char* name;
  int count;
};
inline constexpr NumberedLibrary kNumberedLibraries[] = {
    {"ICONS1.DLL", 1}, {"ICONS120.DLL", 120}, {"ICONS1234.DLL", 1234}};
inline constexpr NumberedLibrary kLargestLibrary = {"ICONS5000.DLL", 5000};
inline constexpr int kNumberPixel = 16;

}  // namespace icon_files
