#include "platform/FileSystem.h"

#include "platform/ScopedHandle.h"
#include "platform/SystemPath.h"

namespace platform {
namespace {

// Attributes of the first entry matching `path`, or nothing found.
bool FindFirst(const std::string& path, DWORD& attributes) {
  WIN32_FIND_DATAW data{};
  ScopedFind search(::FindFirstFileW(FilePath(path).c_str(), &data));
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

std::optional<DWORD> ReadAttributes(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(FilePath(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
  return attributes;
}

bool WriteAttributes(const std::string& path, DWORD attributes) {
  return ::SetFileAttributesW(FilePath(path).c_str(), attributes) != 0;
}

bool RemoveFile(const std::string& path) {
  return ::DeleteFileW(FilePath(path).c_str()) != 0;
}

}  // namespace platform
