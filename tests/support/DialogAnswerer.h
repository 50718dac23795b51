// Answers the dialog boxes and message boxes that block the test's own
// thread, as a user would: a watcher thread reads each visible dialog box
// (class "#32770") of this process once, then acts on it.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace testing_support {

struct SeenDialog {
  std::string title, text;   // caption; the texts of its static controls
  std::vector<int> buttons;  // control ids of its buttons, sorted: IDOK, IDYES, ...
  HICON icon = nullptr;      // the system icon a message box shows
};

class DialogAnswerer {
 public:
  // `act` runs on the watcher's thread for every new dialog.
  explicit DialogAnswerer(std::function<void(HWND dialog)> act);
  // Presses answers[n] on the n-th dialog; later ones get the last answer.
  explicit DialogAnswerer(std::vector<int> answers);
  explicit DialogAnswerer(int answer) : DialogAnswerer(std::vector<int>{answer}) {}
  ~DialogAnswerer();
  DialogAnswerer(const DialogAnswerer&) = delete;
  DialogAnswerer& operator=(const DialogAnswerer&) = delete;

  std::vector<SeenDialog> Seen() const;

 private:
  void Watch();

  std::function<void(HWND, size_t position)> act_;
  std::atomic<bool> stop_{false};
  mutable std::mutex mutex_;
  std::vector<SeenDialog> seen_;
  std::thread watcher_;
};

// Presses a dialog's push button the way a click does, from any thread.
void PressButton(HWND dialog, int id);

}  // namespace testing_support
