#include "platform/WebPage.h"

#include <objbase.h>
#include <shellapi.h>

#include <cstdio>

#include "platform/SystemPath.h"
#include "platform/Utf8.h"

namespace platform {
namespace {
constexpr int kShowMaximised = SW_SHOWMAXIMIZED;
}

std::string WebPageAddress(std::int32_t code, const std::string& clientParameter,
                           const std::string& languageCode) {
  return std::string("http://") + kMakerHost + "/cgi-bin/morvane/" +
         "redir.cgi?redir=" + clientParameter + "&url=" + std::to_string(code) +
         "&lang=" + languageCode;
}

std::string NewClientParameter() {
  GUID id{};
  if (FAILED(::CoCreateGuid(&id))) return {};
  char text[33];
  std::snprintf(text, sizeof text, "%08lx%04x%04x%02x%02x%02x%02x%02x%02x%02x%02x",
                static_cast<unsigned long>(id.Data1), id.Data2, id.Data3, id.Data4[0], id.Data4[1],
                id.Data4[2], id.Data4[3], id.Data4[4], id.Data4[5], id.Data4[6], id.Data4[7]);
  return text;
}

void OpenWebPage(std::int32_t code, const std::string& languageCode, HWND owner,
                 const std::string& workingFolder) {
  const std::string address = WebPageAddress(code, NewClientParameter(), languageCode);
  ::ShellExecuteW(owner, L"Open", Wide(address).c_str(), L"", ShellPath(workingFolder).c_str(),
                  kShowMaximised);
}

}  // namespace platform
