#include "platform/IniFile.h"

#include <windows.h>

#include "platform/SystemPath.h"
#include "platform/Utf8.h"

namespace platform {
namespace {

constexpr DWORD kIniBufferLength = 30000;
}  // namespace

std::string ReadIniValue(const std::string& section, const std::string& key,
                         const std::string& file) {
  std::wstring buffer(kIniBufferLength, L' ');
  DWORD count =
      ::GetPrivateProfileStringW(Wide(section).c_str(), Wide(key).c_str(), L"", buffer.data(),
                                 kIniBufferLength, ShellPath(file).c_str());
  if (count < 1) return {};
  buffer.resize(count);
  return Utf8(buffer);
}

bool WriteIniValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file) {
  return ::WritePrivateProfileStringW(Wide(section).c_str(), Wide(key).c_str(), Wide(value).c_str(),
                                      ShellPath(file).c_str()) != 0;
}

}  // namespace platform
