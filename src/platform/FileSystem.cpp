#include "platform/FileSystem.h"

#include <windows.h>

#include "platform/ScopedHandle.h"

namespace platform {
namespace {

// Attributes of the first entry matching `path`, or nothing found.
bool FindFirst(const std::string& path, DWORD& attributes) {
  WIN32_FIND_DATAA data{};
  ScopedFind search(::FindFirstFileA(path.c_str(), &data));
  if (!search) return false;
  attributes = data.dwFileAttributes;
  return true;
}

}  // namespace

bool FileExists(const std::string& path) {
  DWORD attributes = 0;
  return FindFirst(path, attributes);
}

bool FolderExists(const std::string& path) {
  DWORD attributes = 0;
  return FindFirst(path, attributes) && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace platform
