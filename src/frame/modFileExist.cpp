#include "frame/modFileExist.h"

#include <windows.h>

#include "toolkit/ScopedHandle.h"

namespace frame {
namespace {

// Attributes of the first entry matching `path`, or nothing found.
bool FindFirst(const std::string& path, DWORD& attributes) {
  WIN32_FIND_DATAA data{};
  toolkit::ScopedFind search(::FindFirstFileA(path.c_str(), &data));
  if (!search) return false;
  attributes = data.dwFileAttributes;
  return true;
}

}  // namespace

bool FileExist(const std::string& path) {
  DWORD attributes = 0;
  return FindFirst(path, attributes);
}

bool FolderExist(const std::string& path) {
  DWORD attributes = 0;
  return FindFirst(path, attributes) && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace frame
