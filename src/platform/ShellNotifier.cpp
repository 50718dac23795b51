#include "platform/ShellNotifier.h"

#include <shlobj.h>

#include "platform/SystemPath.h"

namespace platform {
namespace {
constexpr UINT kPathHandled = SHCNF_PATHW | SHCNF_FLUSH;
constexpr UINT kNoItems = 0;
}  // namespace

void SystemShellNotifier::NotifyPath(LONG event, const std::string& path) {
  ::SHChangeNotify(event, kPathHandled, ShellPath(path).c_str(), nullptr);
}

void SystemShellNotifier::NotifyNumber(LONG event, int number) {
  // A number item travels in the pointer itself.
  ::SHChangeNotify(event, SHCNF_DWORD, reinterpret_cast<const void*>(static_cast<INT_PTR>(number)),
                   nullptr);
}

void SystemShellNotifier::Notify(LONG event) {
  ::SHChangeNotify(event, kNoItems, nullptr, nullptr);
}

}  // namespace platform
