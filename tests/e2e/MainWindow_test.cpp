// The main window used as a user uses it: the real Morvane.exe on a test
// folder, driven from this process with the mouse and keyboard of the
// virtual display.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <chrono>
#include <thread>

#include "frame/modINI.h"
#include "support/TestSupport.h"
#include "ui/ControlIds.h"

namespace {

using namespace std::chrono_literals;
using testing_support::ChildProcess;
using testing_support::PathExists;
using testing_support::ProgramCopy;
using testing_support::ScratchFolder;
using testing_support::WindowText;

constexpr auto kLimit = 20s;
constexpr int kShippedIcons = 31;
constexpr int kIconSpacing = 43;

// Presses and releases the left button at a point of `window`'s client area.
void ClickAt(HWND window, POINT client, bool twice = false) {
  ::ClientToScreen(window, &client);
  ::SetCursorPos(client.x, client.y);
  std::this_thread::sleep_for(100ms);
  for (int n = 0; n < (twice ? 2 : 1); ++n) {
    INPUT press[2] = {};
    press[0].type = press[1].type = INPUT_MOUSE;
    press[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    press[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    ::SendInput(2, press, sizeof(INPUT));
  }
  std::this_thread::sleep_for(300ms);
}

void Type(const std::string& text) {
  for (char c : text) {
    INPUT key[2] = {};
    key[0].type = key[1].type = INPUT_KEYBOARD;
    key[0].ki.wScan = key[1].ki.wScan = static_cast<WORD>(static_cast<unsigned char>(c));
    key[0].ki.dwFlags = KEYEVENTF_UNICODE;
    key[1].ki.dwFlags = KEYEVENTF_UNICODE | KEYEVENTF_KEYUP;
    ::SendInput(2, key, sizeof(INPUT));
  }
  std::this_thread::sleep_for(300ms);
}

void PressKey(WORD virtualKey) {
  INPUT key[2] = {};
  key[0].type = key[1].type = INPUT_KEYBOARD;
  key[0].ki.wVk = key[1].ki.wVk = virtualKey;
  key[1].ki.dwFlags = KEYEVENTF_KEYUP;
  ::SendInput(2, key, sizeof(INPUT));
  std::this_thread::sleep_for(300ms);
}

POINT Centre(HWND window) {
  RECT client{};
  ::GetClientRect(window, &client);
  return {client.right / 2, client.bottom / 2};
}

class MainWindowTest : public ::testing::Test {
 protected:
  void SetUp() override { Start(); }
  void Start() {
    child_ = std::make_unique<ChildProcess>(program_.Exe(),
                                            "\"" + program_.Exe() + "\" " + target_.Path());
    // The shadow is a window of the same class; the main window has the title.
    main_ = child_->WaitForWindow("MorvaneForm", kLimit, "Morvane");
    ASSERT_NE(main_, nullptr);
    // Wait for the listing to end: the list holds all icons.
    auto deadline = std::chrono::steady_clock::now() + kLimit;
    while (Count() < kShippedIcons && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::sleep_for(50ms);
    }
  }
  void TearDown() override {
    if (main_ && ::IsWindow(main_)) ::PostMessageA(main_, WM_CLOSE, 0, 0);
    if (child_) child_->WaitForExit(kLimit);
  }
  HWND Element(int id) const { return ::GetDlgItem(main_, id); }
  int Count() const {
    return static_cast<int>(::SendMessageA(Element(ui::ids::lvwIconos), LVM_GETITEMCOUNT, 0, 0));
  }
  // The centre of the icon at `position` (from 1) in the list's first row.
  POINT IconInFirstRow(int position) const {
    return {kIconSpacing * (position - 1) + kIconSpacing / 2, kIconSpacing / 2};
  }
  HWND WaitForMessageBox() const { return child_->WaitForWindow("#32770", kLimit); }
  std::string Settings(const std::string& key) const {
    return frame::ReadIniValue(".ShellClassInfo", key, target_ / "Desktop.ini");
  }

  ProgramCopy program_;
  ScratchFolder target_;
  std::unique_ptr<ChildProcess> child_;
  HWND main_ = nullptr;
};

TEST_F(MainWindowTest, ListsTheShippedIconsAndCountsThemOnceTheMouseMoves) {
  EXPECT_EQ(Count(), kShippedIcons);
  ClickAt(main_, {259, 200});  // the window's background, between the info tip and the list
  EXPECT_EQ(WindowText(Element(ui::ids::picStatus)), "31 icons");
  EXPECT_FALSE(::IsWindowVisible(Element(ui::ids::picAplicar)));
}

TEST_F(MainWindowTest, ApplyingTheFifthIconAsksWritesTheFileAndKeepsTheWindow) {
  ClickAt(Element(ui::ids::lvwIconos), IconInFirstRow(5));
  ASSERT_TRUE(::IsWindowVisible(Element(ui::ids::picAplicar)));

  ClickAt(Element(ui::ids::picAplicar), Centre(Element(ui::ids::picAplicar)));
  HWND question = WaitForMessageBox();
  ASSERT_NE(question, nullptr);
  ::PostMessageA(question, WM_COMMAND, IDNO, 0);
  std::this_thread::sleep_for(300ms);
  EXPECT_FALSE(PathExists(target_ / "Desktop.ini")) << "No writes nothing";

  ClickAt(Element(ui::ids::picAplicar), Centre(Element(ui::ids::picAplicar)));
  question = WaitForMessageBox();
  ASSERT_NE(question, nullptr);
  ::PostMessageA(question, WM_COMMAND, IDYES, 0);
  std::this_thread::sleep_for(500ms);
  EXPECT_EQ(Settings("IconIndex"), "4");
  EXPECT_EQ(Settings("IconFile"), program_.Folder() + "iconos.dll");
  EXPECT_TRUE(::IsWindow(main_)) << "the window stays after applying from the button";
}

TEST_F(MainWindowTest, DoubleClickingAnIconAppliesWithoutAskingAndEnds) {
  ClickAt(Element(ui::ids::lvwIconos), IconInFirstRow(2), true);
  ASSERT_TRUE(child_->WaitForExit(kLimit));
  EXPECT_EQ(Settings("IconIndex"), "1");
  EXPECT_FALSE(PathExists(program_.File("Morvane.ttf")));
}

TEST_F(MainWindowTest, TypingAnInfoTipShowsApplyAndTheFileHoldsTheWholeText) {
  ClickAt(Element(ui::ids::txtInfoCarpeta), {20, 10});
  Type("Photos of our summer, 2026");
  ASSERT_TRUE(::IsWindowVisible(Element(ui::ids::picAplicar)));
  ClickAt(Element(ui::ids::picAplicar), Centre(Element(ui::ids::picAplicar)));
  HWND question = WaitForMessageBox();
  ASSERT_NE(question, nullptr);
  ::PostMessageA(question, WM_COMMAND, IDYES, 0);
  std::this_thread::sleep_for(500ms);
  EXPECT_EQ(Settings("InfoTip"), "Photos of our summer, 2026");
}

TEST_F(MainWindowTest, DoubleClickingTheDefaultIconAsksRemovesAndEnds) {
  testing_support::WriteWholeFile(target_ / "Desktop.ini", "[.ShellClassInfo]\r\nIconIndex=3\r\n");
  ClickAt(Element(ui::ids::picIconoDefaultFolder), Centre(Element(ui::ids::picIconoDefaultFolder)),
          true);
  HWND question = WaitForMessageBox();
  ASSERT_NE(question, nullptr);
  ::PostMessageA(question, WM_COMMAND, IDYES, 0);
  ASSERT_TRUE(child_->WaitForExit(kLimit));
  EXPECT_FALSE(PathExists(target_ / "Desktop.ini"));
}

TEST_F(MainWindowTest, TheWindowRefusesToCloseWhileTheFileChooserIsOpen) {
  ClickAt(Element(ui::ids::picBuscarArchivo), Centre(Element(ui::ids::picBuscarArchivo)));
  HWND chooser = WaitForMessageBox();
  ASSERT_NE(chooser, nullptr);
  ::PostMessageA(main_, WM_CLOSE, 0, 0);
  EXPECT_FALSE(child_->WaitForExit(1s)) << "refused while the chooser is open";
  ::PostMessageA(chooser, WM_COMMAND, IDCANCEL, 0);
  std::this_thread::sleep_for(500ms);
  ::PostMessageA(main_, WM_CLOSE, 0, 0);
  EXPECT_TRUE(child_->WaitForExit(kLimit));
}

TEST_F(MainWindowTest, ChoosingARecentFileLoadsItsIcons) {
  ::PostMessageA(main_, WM_CLOSE, 0, 0);
  ASSERT_TRUE(child_->WaitForExit(kLimit));
  const std::string library = testing_support::TestFolder() + "ICONS120.DLL";
  frame::WriteIniValue("Recent", "ARA01", library, program_.File("ARA.INI"));
  Start();
  ClickAt(Element(ui::ids::cboARA), {20, 10});
  PressKey(VK_ESCAPE);
  PressKey(VK_DOWN);
  auto deadline = std::chrono::steady_clock::now() + kLimit;
  while (Count() != 120 && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(50ms);
  }
  EXPECT_EQ(Count(), 120);
}

}  // namespace
