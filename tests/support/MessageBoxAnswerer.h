// Answers the standard message boxes the code under test shows, from a
// watcher thread, as a user would: reads what each box shows, then presses
// the given button.
#pragma once

#include <windows.h>

#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace testing_support {

struct SeenMessageBox {
  std::string title, text;
  std::vector<int> buttons;  // control ids: IDOK, IDYES, IDNO, ...
  HICON icon = nullptr;      // the system icon it shows; nullptr for none
};

class MessageBoxAnswerer {
 public:
  explicit MessageBoxAnswerer(int answer);  // IDYES, IDNO, IDOK
  // The n-th box gets answers[n]; later boxes get the last one.
  explicit MessageBoxAnswerer(std::vector<int> answers);
  ~MessageBoxAnswerer();
  MessageBoxAnswerer(const MessageBoxAnswerer&) = delete;
  MessageBoxAnswerer& operator=(const MessageBoxAnswerer&) = delete;

  std::vector<SeenMessageBox> Seen() const;

 private:
  void Watch();

  std::vector<int> answers_;
  std::atomic<bool> stop_{false};
  mutable std::mutex mutex_;
  std::vector<SeenMessageBox> seen_;
  std::thread watcher_;
};

}  // namespace testing_support
