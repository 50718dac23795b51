#include "support/MessageBoxAnswerer.h"

#include <algorithm>
#include <chrono>

#include "support/TestSupport.h"

namespace testing_support {
namespace {

constexpr char kDialogClass[] = "#32770";
constexpr auto kPollInterval = std::chrono::milliseconds(10);

std::vector<HWND> VisibleDialogsOfThisProcess() {
  std::vector<HWND> found;
  ::EnumWindows(
      [](HWND window, LPARAM data) -> BOOL {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner == ::GetCurrentProcessId() && ::IsWindowVisible(window) &&
            ClassName(window) == kDialogClass) {
          reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

SeenMessageBox Read(HWND box) {
  SeenMessageBox seen;
  seen.title = WindowText(box);
  for (HWND child : Children(box)) {
    const std::string kind = ClassName(child);
    if (kind == "Button") {
      seen.buttons.push_back(::GetDlgCtrlID(child));
    } else if (kind == "Static") {
      if (auto icon = reinterpret_cast<HICON>(::SendMessageA(child, STM_GETICON, 0, 0))) {
        seen.icon = icon;
      } else {
        seen.text += WindowText(child);
      }
    }
  }
  std::sort(seen.buttons.begin(), seen.buttons.end());
  return seen;
}

}  // namespace

MessageBoxAnswerer::MessageBoxAnswerer(int answer) : MessageBoxAnswerer(std::vector<int>{answer}) {}

MessageBoxAnswerer::MessageBoxAnswerer(std::vector<int> answers)
    : answers_(std::move(answers)), watcher_([this] { Watch(); }) {}

MessageBoxAnswerer::~MessageBoxAnswerer() {
  stop_ = true;
  watcher_.join();
}

std::vector<SeenMessageBox> MessageBoxAnswerer::Seen() const {
  std::lock_guard lock(mutex_);
  return seen_;
}

void MessageBoxAnswerer::Watch() {
  std::vector<HWND> answered;
  while (!stop_) {
    for (HWND box : VisibleDialogsOfThisProcess()) {
      if (std::find(answered.begin(), answered.end(), box) != answered.end()) continue;
      SeenMessageBox seen = Read(box);
      size_t position = 0;
      {
        std::lock_guard lock(mutex_);
        position = seen_.size();
        seen_.push_back(std::move(seen));
      }
      answered.push_back(box);
      const int answer = answers_[std::min(position, answers_.size() - 1)];
      ::PostMessageA(box, WM_COMMAND, MAKEWPARAM(answer, BN_CLICKED), 0);
    }
    std::erase_if(answered, [](HWND box) { return !::IsWindow(box); });
    std::this_thread::sleep_for(kPollInterval);
  }
}

}  // namespace testing_support
