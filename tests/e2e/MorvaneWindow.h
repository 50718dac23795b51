// A run of the real Morvane.exe on a scratch folder, from its own copy of the
// shipping folder, with its main window open and its icons listed.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <memory>
#include <string>

#include "support/TestSupport.h"

namespace e2e {

using namespace std::chrono_literals;

inline constexpr auto kLimit = 20s;
inline constexpr char kFormClass[] = "MorvaneForm";
inline constexpr char kDialogClass[] = "#32770";

class MorvaneWindowTest : public ::testing::Test {
 protected:
  void SetUp() override { Start(); }
  void TearDown() override;

  // Starts the program and waits for its window, the end of the listing and
  // the end of start-up.
  void Start();
  // Asks the program to close and waits for its end.
  bool Close();

  HWND Element(int id) const { return ::GetDlgItem(main_, id); }
  int Count() const;
  // The other top-level window of the main window's class.
  HWND Shadow() const;
  HWND WaitForMessageBox() const { return child_->WaitForWindow(kDialogClass, kLimit); }
  std::string Settings(const std::string& key) const;

  testing_support::ProgramCopy program_;
  testing_support::ScratchFolder target_;
  std::unique_ptr<testing_support::ChildProcess> child_;
  HWND main_ = nullptr;
  int iconsToList_ = 31;  // those of the shipped icon library
};

// Waits until `condition` holds or `limit` passes; returns the last answer.
template <typename Condition>
bool WaitUntil(Condition condition, std::chrono::milliseconds limit = kLimit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= deadline) return false;
    ::Sleep(5);
  }
  return true;
}

}  // namespace e2e
