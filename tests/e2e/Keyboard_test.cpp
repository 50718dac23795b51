// The user's roads with the keyboard alone: the focus moved with Tab, an
// icon picked with the arrows and applied with Enter, the buttons pressed
// with Enter and with their access keys, Esc and F1.
#include <gtest/gtest.h>

#include "Harness.h"

#include <commctrl.h>

#include "resource_ids.h"

namespace {

using namespace e2e;

// Presses `key` and waits for the keyboard focus to come to `element`.
bool Focus(HWND element, WORD key = VK_TAB, WORD held = 0) {
  PressKey(key, held);
  return WaitUntil([&] { return FocusWindow() == element; });
}

int Selected(const ProgramRun& run) {
  return static_cast<int>(
      ::SendMessageA(run.Element(ids::kIconList), LVM_GETNEXTITEM, -1, LVNI_SELECTED));
}

TEST(Keyboard, TabArrowsEnterTheChooserTheAboutWindowAndAltXWithoutTheMouse) {
  ProgramRun run;
  ASSERT_TRUE(run.Open());
  const std::string english = run.File("LANG_ENG.DLL");
  for (int element : {ids::kInfoTip, ids::kRecentFiles, ids::kIconList})
    ASSERT_TRUE(Focus(run.Element(element))) << element;
  PressKey(VK_RIGHT);
  ASSERT_TRUE(WaitUntil([&] { return Selected(run) == 0; })) << "the first key picks the first";
  PressKey(VK_RIGHT);
  ASSERT_TRUE(WaitUntil([&] { return Selected(run) == 1; }));
  EXPECT_TRUE(::IsWindowVisible(run.Element(ids::kApply))) << "as after a click";

  ASSERT_TRUE(Focus(run.Element(ids::kBrowse)));
  ASSERT_TRUE(Focus(run.Element(ids::kApply)));
  PressKey(VK_SPACE);
  HWND question = run.WaitForDialog();
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(Read(question).text, LibraryString(english, IDS_APPLY_PROMPT));
  PressKey(VK_RETURN);  // Yes
  EXPECT_TRUE(WaitUntil([&] { return run.Setting("IconIndex") == "1"; }));
  EXPECT_TRUE(WaitUntil([&] { return FocusWindow() == run.Element(ids::kApply); }));

  ASSERT_TRUE(Focus(run.Element(ids::kBrowse), VK_TAB, VK_SHIFT));
  PressKey(VK_RETURN);
  HWND chooser = run.WaitForDialog();
  ASSERT_NE(chooser, nullptr);
  EXPECT_EQ(Text(chooser), LibraryString(english, IDS_CHOOSER_TITLE));
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(chooser); }));
  EXPECT_TRUE(WaitUntil([&] { return FocusWindow() == run.Element(ids::kBrowse); }));

  PressKey(VK_F1);
  HWND about = run.WaitForWindow("MorvaneForm", "frmSplash");
  ASSERT_NE(about, nullptr);
  ASSERT_TRUE(Focus(::GetDlgItem(about, ids::kOk), VK_TAB, VK_SHIFT)) << "the last in the window";
  PressKey(VK_ESCAPE);
  ASSERT_TRUE(WaitUntil([&] { return !::IsWindowVisible(about); }));
  ASSERT_TRUE(WaitUntil([&] { return FocusWindow() == run.Element(ids::kBrowse); }))
      << "back where it was";

  PressKey('X', VK_MENU);
  ASSERT_TRUE(run.Ended());
  EXPECT_EQ(run.ExitCode(), 0u);
  EXPECT_FALSE(IsFile(run.File("Morvane.ttf"))) << "ended through the clean-up";
}

TEST(Keyboard, EnterOnAnIconAppliesWithoutAskingAndEndsAsTheDoubleClickDoes) {
  ProgramRun run;
  ASSERT_TRUE(run.Open());
  for (int element : {ids::kInfoTip, ids::kRecentFiles, ids::kIconList})
    ASSERT_TRUE(Focus(run.Element(element)));
  for (WORD key : {VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_LEFT}) PressKey(key);
  ASSERT_TRUE(WaitUntil([&] { return Selected(run) == 1; }));
  PressKey(VK_RETURN);
  ASSERT_TRUE(run.Ended()) << "a question would keep it open";
  EXPECT_EQ(run.Setting("IconIndex"), "1");
}

}  // namespace
