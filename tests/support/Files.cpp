#include "support/Files.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace testing_support {

// The standard library's paths convert between UTF-8 and the system's UTF-16.
std::wstring Wide(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end())).wstring();
}

std::string Utf8(const std::wstring& text) {
  const std::u8string bytes = std::filesystem::path(text).u8string();
  return {bytes.begin(), bytes.end()};
}

std::string TestFolder() {
  wchar_t buffer[MAX_PATH * 4] = {};
  const std::string path = Utf8({buffer, ::GetModuleFileNameW(nullptr, buffer, MAX_PATH * 4)});
  return path.substr(0, path.find_last_of('\\') + 1);
}

std::string ReadFile(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(std::filesystem::path(Wide(path)), std::ios::binary).rdbuf();
  return bytes.str();
}

void WriteFile(const std::string& path, const std::string& bytes) {
  if (!(std::ofstream(std::filesystem::path(Wide(path)), std::ios::binary) << bytes))
    throw std::runtime_error("cannot write " + path);
}

std::string Utf16File(const std::string& text) {
  const std::wstring wide = Wide(text);
  return "\xFF\xFE" + std::string(reinterpret_cast<const char*>(wide.data()), wide.size() * 2);
}

DWORD Attributes(const std::string& path) {
  return ::GetFileAttributesW(Wide(path).c_str());
}

bool IsFile(const std::string& path) {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

void Walk(const std::string& folder, const std::function<void(const std::string&, bool)>& visit) {
  WIN32_FIND_DATAW entry;
  HANDLE search = ::FindFirstFileW(Wide(folder + "\\*").c_str(), &entry);
  for (bool more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileW(search, &entry)) {
    const std::string name = Utf8(entry.cFileName), path = folder + "\\" + name;
    const bool isFolder = entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    if (name == "." || name == "..") continue;
    if (isFolder) Walk(path, visit);
    visit(path, isFolder);
  }
  if (search != INVALID_HANDLE_VALUE) ::FindClose(search);
}

void DeleteTree(const std::string& folder) {
  // Hidden, system and read-only entries refuse deletion otherwise.
  auto remove = [](const std::string& path, bool isFolder) {
    ::SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_NORMAL);
    isFolder ? ::RemoveDirectoryW(Wide(path).c_str()) : ::DeleteFileW(Wide(path).c_str());
  };
  Walk(folder, remove);
  remove(folder, true);
}

std::map<std::string, std::string> Snapshot(const std::string& folder) {
  std::map<std::string, std::string> files;
  Walk(folder, [&](const std::string& path, bool isFolder) {
    files[path] = isFolder ? "\\" : ReadFile(path);
  });
  return files;
}

}  // namespace testing_support
