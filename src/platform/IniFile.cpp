#include "platform/IniFile.h"

#include <windows.h>

namespace platform {
namespace {
constexpr DWORD kIniBufferLength = 30000;
}

std::string ReadIniValue(const std::string& section, const std::string& key,
                         const std::string& file) {
  std::string buffer(kIniBufferLength, ' ');
  DWORD count = ::GetPrivateProfileStringA(section.c_str(), key.c_str(), "", buffer.data(),
                                           kIniBufferLength, file.c_str());
  if (count < 1) return {};
  buffer.resize(count);
  return buffer;
}

bool WriteIniValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file) {
  return ::WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), file.c_str()) !=
         0;
}

}  // namespace platform
