// Drives a modal dialog that blocks the test's own thread: a second thread
// waits for a visible dialog box (class "#32770") of this process and acts
// on it, as a user would.
#pragma once

#include <windows.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace testing_support {

class DialogWatcher {
 public:
  // `act` runs once, on the watcher's thread, with the first dialog found
  // within `limit`.
  explicit DialogWatcher(std::function<void(HWND dialog)> act,
                         std::chrono::milliseconds limit = std::chrono::seconds(20));
  // Stops waiting and joins the thread.
  ~DialogWatcher();
  DialogWatcher(const DialogWatcher&) = delete;
  DialogWatcher& operator=(const DialogWatcher&) = delete;

  bool Seen() const { return seen_; }
  // The dialog's caption when it was found.
  std::string Caption() const;

 private:
  void Watch(std::function<void(HWND)> act, std::chrono::milliseconds limit);

  std::atomic<bool> stop_{false};
  std::atomic<bool> seen_{false};
  mutable std::mutex mutex_;
  std::string caption_;
  std::thread thread_;
};

// A visible top-level dialog box of this process, or 0.
HWND FindOwnDialog();

// Presses a push button of a dialog the way a click does, from any thread.
void PressDialogButton(HWND dialog, int id);

// The text of a dialog's control, from any thread.
std::string ControlText(HWND dialog, int id);

}  // namespace testing_support
