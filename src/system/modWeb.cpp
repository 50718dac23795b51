#include "system/modWeb.h"

#include <objbase.h>
#include <shellapi.h>

#include <cstdio>

#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "resource_ids.h"

namespace integration {
namespace {
constexpr int kShowMaximised = SW_SHOWMAXIMIZED;
}

std::string WebPageAddress(std::int32_t code, const std::string& clientParameter) {
  return std::string("http://") + kMakerHost + "/cgi-bin/morvane/" +
         "redir.cgi?redir=" + clientParameter + "&url=" + std::to_string(code) +
         "&lang=" + frame::LanguageLibrary().LoadDllString(IDS_LANGUAGE_CODE);
}

// A fresh random identifier: it tells requests apart without saying anything
// about the user.
std::string NewClientParameter() {
  GUID id{};
  if (FAILED(::CoCreateGuid(&id))) return {};
  char text[33];
  std::snprintf(text, sizeof text, "%08lx%04x%04x%02x%02x%02x%02x%02x%02x%02x%02x",
                static_cast<unsigned long>(id.Data1), id.Data2, id.Data3, id.Data4[0], id.Data4[1],
                id.Data4[2], id.Data4[3], id.Data4[4], id.Data4[5], id.Data4[6], id.Data4[7]);
  return text;
}

void OpenWebPage(std::int32_t code, HWND owner) {
  const std::string address = WebPageAddress(code, NewClientParameter());
  ::ShellExecuteA(owner, "Open", address.c_str(), "", frame::programFolder.c_str(), kShowMaximised);
}

}  // namespace integration
