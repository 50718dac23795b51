// EndProgram ends the process, so it runs in a child process of its own (a
// death test) and the parent checks what it left behind.
#include "frame/EndProgram.h"

#include <gtest/gtest.h>

#include "frame/RunState.h"
#include "support/TestSupport.h"
#include "toolkit/LoadedWindows.h"

namespace {

using testing_support::ReadWholeFile;
using testing_support::WriteWholeFile;

// Stands in for a loaded window: unloading appends its name to a log file.
class LoggedWindow : public toolkit::LoadedWindow {
 public:
  LoggedWindow(std::string name, std::string log, bool closing)
      : name_(std::move(name)), log_(std::move(log)), closing_(closing) {
    toolkit::RegisterLoadedWindow(this);
  }
  void Unload() override {
    WriteWholeFile(log_, ReadWholeFile(log_) + name_ + ";");
    toolkit::UnregisterLoadedWindow(this);
  }
  bool Closing() const override { return closing_; }

 private:
  std::string name_, log_;
  bool closing_;
};

TEST(EndProgram, RemovesTheFontFileUnloadsWindowsInOrderSkippingAClosingOneAndEndsWithZero) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  // Shared by name with the child process.
  testing_support::ScratchFolder folder("end-program");
  const std::string font = folder / "Morvane.ttf", log = folder / "unloaded.txt";
  WriteWholeFile(font, "left by an earlier run");
  WriteWholeFile(log, "");
  auto unloadThreeAndEnd = [&] {
    frame::programFolder = folder.Path() + "\\";
    LoggedWindow main("main", log, false);
    LoggedWindow closing("closing", log, true);
    LoggedWindow about("about", log, false);
    frame::EndProgram(false);
  };
  EXPECT_EXIT(unloadThreeAndEnd(), ::testing::ExitedWithCode(0), "");
  EXPECT_FALSE(testing_support::PathExists(font));
  EXPECT_EQ(ReadWholeFile(log), "main;about;");
}

}  // namespace
