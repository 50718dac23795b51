#include "support/DialogAnswerer.h"

#include <algorithm>
#include <chrono>

#include "support/TestSupport.h"

namespace testing_support {
namespace {

constexpr auto kPollInterval = std::chrono::milliseconds(10);

SeenDialog Read(HWND dialog) {
  SeenDialog seen;
  seen.title = WindowText(dialog);
  for (HWND child : Children(dialog)) {
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

void PressButton(HWND dialog, int id) {
  // Posted, so that the dialog's thread handles it inside its own loop.
  ::PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

DialogAnswerer::DialogAnswerer(std::function<void(HWND)> act)
    : act_([act = std::move(act)](HWND dialog, size_t) { act(dialog); }),
      watcher_([this] { Watch(); }) {}

DialogAnswerer::DialogAnswerer(std::vector<int> answers)
    : act_([answers = std::move(answers)](HWND dialog, size_t position) {
        PressButton(dialog, answers[std::min(position, answers.size() - 1)]);
      }),
      watcher_([this] { Watch(); }) {}

DialogAnswerer::~DialogAnswerer() {
  stop_ = true;
  watcher_.join();
}

std::vector<SeenDialog> DialogAnswerer::Seen() const {
  std::lock_guard lock(mutex_);
  return seen_;
}

void DialogAnswerer::Watch() {
  std::vector<HWND> answered;
  while (!stop_) {
    for (HWND dialog : VisibleWindowsOf(::GetCurrentProcessId())) {
      if (ClassName(dialog) != "#32770" ||
          std::find(answered.begin(), answered.end(), dialog) != answered.end()) {
        continue;
      }
      answered.push_back(dialog);
      SeenDialog seen = Read(dialog);
      size_t position = 0;
      {
        std::lock_guard lock(mutex_);
        position = seen_.size();
        seen_.push_back(std::move(seen));
      }
      act_(dialog, position);
    }
    std::erase_if(answered, [](HWND dialog) { return !::IsWindow(dialog); });
    std::this_thread::sleep_for(kPollInterval);
  }
}

}  // namespace testing_support
