// The main window used as a user uses it: the real Morvane.exe on a test
// folder, driven from this process with the mouse and keyboard of the
// virtual display.
#include <gtest/gtest.h>
#include <windows.h>

#include <thread>

#include "MorvaneWindow.h"
#include "UserInput.h"
#include "frame/modINI.h"
#include "support/TestSupport.h"
#include "ui/ControlIds.h"

namespace {

using testing_support::PathExists;
using testing_support::WindowText;
using namespace e2e;

constexpr int kShippedIcons = 31;
constexpr int kIconSpacing = 43;

class MainWindowTest : public MorvaneWindowTest {
 protected:
  // The centre of the icon at `position` (from 1) in the list's first row.
  POINT IconInFirstRow(int position) const {
    return {kIconSpacing * (position - 1) + kIconSpacing / 2, kIconSpacing / 2};
  }
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
  const DWORD hiddenSystem = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  EXPECT_EQ(::GetFileAttributesA((target_ / "Desktop.ini").c_str()) & hiddenSystem, hiddenSystem);
  EXPECT_TRUE(::GetFileAttributesA(target_.Path().c_str()) & FILE_ATTRIBUTE_SYSTEM);
  EXPECT_TRUE(::IsWindow(main_)) << "the window stays after applying from the button";
}

TEST_F(MainWindowTest, DoubleClickingAnIconAppliesWithoutAskingAndEnds) {
  DoubleClickAt(Element(ui::ids::lvwIconos), IconInFirstRow(2));
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
  DoubleClickAt(Element(ui::ids::picIconoDefaultFolder),
                Centre(Element(ui::ids::picIconoDefaultFolder)));
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

TEST_F(MainWindowTest, AFileOpenedInOneRunIsOfferedFirstInTheNext) {
  const std::string library = testing_support::TestFolder() + "ICONS120.DLL";
  ClickAt(Element(ui::ids::picBuscarArchivo), Centre(Element(ui::ids::picBuscarArchivo)));
  ASSERT_NE(WaitForMessageBox(), nullptr);
  Type(library);
  PressKey(VK_RETURN);
  ASSERT_TRUE(WaitUntil([this] { return Count() == 120; }));
  ASSERT_TRUE(Close());

  iconsToList_ = 31;
  Start();
  ClickAt(Element(ui::ids::cboARA), {20, 10});
  PressKey(VK_ESCAPE);
  PressKey(VK_DOWN);
  EXPECT_TRUE(WaitUntil([this] { return Count() == 120; }));
}

TEST_F(MainWindowTest, ASecondCopyEndsSilentlyAndLeavesTheRunAlone) {
  testing_support::ChildProcess second(program_.Exe(),
                                       "\"" + program_.Exe() + "\" " + target_.Path());
  ASSERT_TRUE(second.WaitForExit(kLimit));
  EXPECT_EQ(second.ExitCode(), 0u);
  EXPECT_TRUE(::IsWindowVisible(main_));
  EXPECT_TRUE(PathExists(program_.File("Morvane.ttf"))) << "the second copy must not clean up";
}

// The screen's pixels at the corners of a button: a raised frame is white at
// the top left and grey at the bottom right, a sunken one the other way round.
std::string Frame(HWND button) {
  RECT place{};
  ::GetWindowRect(button, &place);
  HDC screen = ::GetDC(nullptr);
  auto corner = [&](int x, int y) {
    COLORREF c = ::GetPixel(screen, x, y);
    return c == RGB(255, 255, 255) ? 'w' : c == RGB(128, 128, 128) ? 'g' : '.';
  };
  std::string seen{corner(place.left, place.top), corner(place.right - 1, place.bottom - 1)};
  ::ReleaseDC(nullptr, screen);
  return seen;
}

TEST_F(MainWindowTest, ButtonsRiseUnderThePointerSinkWhenPressedAndGoFlatOffThem) {
  HWND exit = Element(ui::ids::picSalir);
  HWND browse = Element(ui::ids::picBuscarArchivo);
  auto shows = [](HWND button, const char* frame) {
    return WaitUntil([&] { return Frame(button) == frame; }, 3s);
  };
  EXPECT_TRUE(shows(exit, ".."));
  PointAt(exit, Centre(exit));
  EXPECT_TRUE(shows(exit, "wg")) << Frame(exit);
  PointAt(main_, {259, 200});  // the background repaints every face flat
  EXPECT_TRUE(shows(exit, "..")) << Frame(exit);

  PointAt(browse, Centre(browse));
  INPUT press{};
  press.type = INPUT_MOUSE;
  press.mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  ::SendInput(1, &press, sizeof press);
  EXPECT_TRUE(shows(browse, "gw")) << Frame(browse);
  press.mi.dwFlags = MOUSEEVENTF_LEFTUP;
  ::SendInput(1, &press, sizeof press);
  HWND chooser = WaitForMessageBox();
  ASSERT_NE(chooser, nullptr);
  ::PostMessageA(chooser, WM_COMMAND, IDCANCEL, 0);
}

}  // namespace
