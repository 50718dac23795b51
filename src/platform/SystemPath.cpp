#include "platform/SystemPath.h"

#include <windows.h>

#include "platform/Utf8.h"

namespace platform {
namespace {

constexpr std::wstring_view kExtended = L"\\\\?\\";
constexpr std::wstring_view kExtendedShare = L"\\\\?\\UNC\\";
constexpr std::wstring_view kDevice = L"\\\\.\\";
constexpr std::wstring_view kShare = L"\\\\";

bool StartsWith(std::wstring_view text, std::wstring_view start) {
  return text.substr(0, start.size()) == start;
}

std::wstring FullPath(const std::wstring& path) {
  const DWORD size = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  if (size == 0) return path;
  std::wstring full(size, L'\0');
  const DWORD length = ::GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
  if (length == 0 || length >= size) return path;
  full.resize(length);
  return full;
}

std::wstring Extended(const std::wstring& full) {
  if (StartsWith(full, kExtended) || StartsWith(full, kDevice)) return full;
  if (StartsWith(full, kShare)) return std::wstring(kExtendedShare) + full.substr(kShare.size());
  return std::wstring(kExtended) + full;
}

std::wstring Unextended(const std::wstring& path) {
  if (StartsWith(path, kExtendedShare)) {
    return std::wstring(kShare) + path.substr(kExtendedShare.size());
  }
  return StartsWith(path, kExtended) ? path.substr(kExtended.size()) : path;
}

// The short form of an extended path, as far as it exists.
std::wstring ShortForm(const std::wstring& extended) {
  const DWORD size = ::GetShortPathNameW(extended.c_str(), nullptr, 0);
  if (size != 0) {
    std::wstring shortPath(size, L'\0');
    const DWORD length = ::GetShortPathNameW(extended.c_str(), shortPath.data(), size);
    if (length != 0 && length < size) {
      shortPath.resize(length);
      return Unextended(shortPath);
    }
  }
  const auto lastSeparator = extended.find_last_of(L'\\');
  if (lastSeparator == std::wstring::npos || lastSeparator < kExtendedShare.size()) {
    return Unextended(extended);
  }
  return ShortForm(extended.substr(0, lastSeparator)) + extended.substr(lastSeparator);
}

}  // namespace

std::wstring FilePath(const std::string& path) {
  std::wstring wide = Wide(path);
  const std::wstring full = FullPath(wide);
  return full.size() < MAX_PATH ? wide : Extended(full);
}

std::wstring ShellPath(const std::string& path) {
  std::wstring wide = Wide(path);
  const std::wstring full = FullPath(wide);
  if (full.size() < MAX_PATH) return wide;
  const std::wstring shortPath = ShortForm(Extended(full));
  return shortPath.size() < MAX_PATH ? shortPath : Extended(full);
}

}  // namespace platform
