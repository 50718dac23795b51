#include "MorvaneWindow.h"

#include <commctrl.h>

#include "frame/modINI.h"
#include "ui/ControlIds.h"

namespace e2e {

void MorvaneWindowTest::Start() {
  child_ = std::make_unique<testing_support::ChildProcess>(
      program_.Exe(), "\"" + program_.Exe() + "\" " + target_.Path());
  // The shadow is a window of the same class; the main window has the title.
  main_ = child_->WaitForWindow(kFormClass, kLimit, "Morvane");
  ASSERT_NE(main_, nullptr);
  WaitUntil([this] { return Count() >= iconsToList_; });
  // Start-up ends by closing the splash, which stands in front until then.
  WaitUntil([this] { return child_->WaitForWindow(kFormClass, 0ms, "frmSplash") == nullptr; });
}

void MorvaneWindowTest::TearDown() {
  if (child_) Close();
}

bool MorvaneWindowTest::Close() {
  if (main_ && ::IsWindow(main_)) ::PostMessageA(main_, WM_CLOSE, 0, 0);
  return child_->WaitForExit(kLimit);
}

int MorvaneWindowTest::Count() const {
  return static_cast<int>(::SendMessageA(Element(ui::ids::lvwIconos), LVM_GETITEMCOUNT, 0, 0));
}

HWND MorvaneWindowTest::Shadow() const {
  for (HWND window : child_->VisibleWindows()) {
    if (window != main_ && testing_support::ClassName(window) == kFormClass &&
        testing_support::WindowText(window) == "frmShadow") {
      return window;
    }
  }
  return nullptr;
}

std::string MorvaneWindowTest::Settings(const std::string& key) const {
  return frame::ReadIniValue(".ShellClassInfo", key, target_ / "Desktop.ini");
}

}  // namespace e2e
