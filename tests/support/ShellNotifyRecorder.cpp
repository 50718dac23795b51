#include "support/ShellNotifyRecorder.h"

#include <shlobj.h>

namespace testing_support {

std::ostream& operator<<(std::ostream& out, const ShellNotification& call) {
  return out << std::hex << "{0x" << call.event << ", 0x" << call.flags << std::dec << ", \""
             << call.item1 << "\", \"" << call.item2 << "\"}";
}

void ShellNotifyRecorder::Notify(LONG event, UINT flags, const void* item1, const void* item2) {
  auto decode = [flags](const void* item) -> std::string {
    switch (flags & SHCNF_TYPE) {
      case SHCNF_DWORD: return std::to_string(reinterpret_cast<UINT_PTR>(item));
      case SHCNF_PATHA: return item ? static_cast<const char*>(item) : "";
      default: return item ? "(unexpected item)" : "";
    }
  };
  calls.push_back({event, flags, decode(item1), decode(item2)});
}

}  // namespace testing_support
