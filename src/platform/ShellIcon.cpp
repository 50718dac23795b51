#include "platform/ShellIcon.h"

#include <objbase.h>
#include <shellapi.h>

#include <memory>
#include <utility>

#include "platform/SystemPath.h"

namespace platform {
namespace {

constexpr UINT kLargeIconFlags = SHGFI_ICON | SHGFI_LARGEICON;
constexpr UINT kSmallIconFlags = SHGFI_ICON | SHGFI_SMALLICON;
// No attributes are given, so the shell looks at the path itself and a path
// that does not exist gets no icon.
constexpr DWORD kNoFileAttributes = 0;

UINT IconFlags(std::int32_t size) {
  return size == kLargeShellIcon ? kLargeIconFlags : kSmallIconFlags;
}

HICON AskShell(const std::wstring& path, UINT flags) {
  SHFILEINFOW info{};
  // After a failed call the record may hold junk, so its handle is not read.
  if (!::SHGetFileInfoW(path.c_str(), kNoFileAttributes, &info, sizeof info, flags)) {
    return nullptr;
  }
  return info.hIcon;
}

struct Question {
  std::wstring path;
  UINT flags;
  HICON answer = nullptr;
  HANDLE thread = nullptr;
};
// Owned here until collected; a process that ends first simply ends.
Question* asked = nullptr;

DWORD WINAPI AskOnItsOwnThread(void* parameter) {
  auto& question = *static_cast<Question*>(parameter);
  const HRESULT com = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  question.answer = AskShell(question.path, question.flags);
  if (SUCCEEDED(com)) ::CoUninitialize();
  return 0;
}

}  // namespace

void AskShellIconAhead(const std::string& path, std::int32_t size) {
  if (asked) return;
  auto question = std::make_unique<Question>(Question{ShellPath(path), IconFlags(size)});
  question->thread = ::CreateThread(nullptr, 0, &AskOnItsOwnThread, question.get(), 0, nullptr);
  if (question->thread) asked = question.release();
}

Picture ShellIconPicture(const std::string& path, std::int32_t size) {
  const std::wstring shellPath = ShellPath(path);
  const UINT flags = IconFlags(size);
  if (asked && asked->path == shellPath && asked->flags == flags) {
    const std::unique_ptr<Question> question(std::exchange(asked, nullptr));
    ::WaitForSingleObject(question->thread, INFINITE);
    ::CloseHandle(question->thread);
    return IconToPicture(question->answer);
  }
  return IconToPicture(AskShell(shellPath, flags));
}

Picture IconToPicture(HICON icon) {
  // From here on the picture owns the icon.
  return Picture::Adopt(Picture::Kind::Icon, icon);
}

int SystemIconIndex(const std::string& path) {
  SHFILEINFOW info{};
  // The record is larger in a 64-bit build than the 352 bytes of a 32-bit
  // one; the system must be told the size it writes into.
  ::SHGetFileInfoW(ShellPath(path).c_str(), kNoFileAttributes, &info, sizeof info,
                   SHGFI_SYSICONINDEX);
  return info.iIcon;
}

}  // namespace platform
