#include "support/DialogWatcher.h"

#include <cstring>

namespace testing_support {
namespace {

constexpr char kDialogClass[] = "#32770";
constexpr auto kPollInterval = std::chrono::milliseconds(20);
constexpr int kTextLimit = 1024;

BOOL CALLBACK MatchOwnDialog(HWND window, LPARAM found) {
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  char className[sizeof kDialogClass + 1] = {};
  ::GetClassNameA(window, className, sizeof className);
  if (process == ::GetCurrentProcessId() && std::strcmp(className, kDialogClass) == 0 &&
      ::IsWindowVisible(window)) {
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  }
  return TRUE;
}

std::string WindowCaption(HWND window) {
  char text[kTextLimit] = {};
  int length = ::GetWindowTextA(window, text, sizeof text);
  return std::string(text, length > 0 ? length : 0);
}

}  // namespace

HWND FindOwnDialog() {
  HWND found = nullptr;
  ::EnumWindows(MatchOwnDialog, reinterpret_cast<LPARAM>(&found));
  return found;
}

void PressDialogButton(HWND dialog, int id) {
  // Posted, so that the dialog's thread handles it inside its own loop.
  ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

std::string ControlText(HWND dialog, int id) {
  return WindowCaption(::GetDlgItem(dialog, id));
}

DialogWatcher::DialogWatcher(std::function<void(HWND)> act, std::chrono::milliseconds limit)
    : thread_(&DialogWatcher::Watch, this, std::move(act), limit) {}

DialogWatcher::~DialogWatcher() {
  stop_ = true;
  thread_.join();
}

std::string DialogWatcher::Caption() const {
  std::lock_guard<std::mutex> lock(mutex_);
  return caption_;
}

void DialogWatcher::Watch(std::function<void(HWND)> act, std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!stop_ && std::chrono::steady_clock::now() < deadline) {
    if (HWND dialog = FindOwnDialog()) {
      {
        std::lock_guard<std::mutex> lock(mutex_);
        caption_ = WindowCaption(dialog);
      }
      seen_ = true;
      act(dialog);
      return;
    }
    std::this_thread::sleep_for(kPollInterval);
  }
}

}  // namespace testing_support
