// The user's roads through the main window: applying and removing by
// double-click, the recent icon files and the icon browser's status. The
// road through the apply button is every name's (Unicode_test.cpp).
#include <gtest/gtest.h>

#include "Harness.h"
#include "resource_ids.h"

namespace {

using namespace e2e;

constexpr DWORD kHiddenSystem = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

std::string English(const ProgramRun& run, int id) {
  return LibraryString(run.File("LANG_ENG.DLL"), id);
}

TEST(MainWindow, DoubleClickingAnIconOrThePreviewAppliesWithoutAskingAndEnds) {
  struct Row {
    const char* name;
    int picked;
    bool onPreview;
  };
  for (const Row& row : {Row{"an icon of the list", 2, false}, Row{"the preview", 3, true}}) {
    SCOPED_TRACE(row.name);
    ProgramRun run;
    ASSERT_TRUE(run.Open());
    if (row.onPreview) {
      ASSERT_TRUE(Pick(run, row.picked));
      Click(run.Element(ids::kPreview), Centre(run.Element(ids::kPreview)), false, 2);
    } else {
      Click(run.Element(ids::kIconList), IconAt(row.picked), false, 2);
    }
    ASSERT_TRUE(run.Ended()) << "a question would keep it open";
    EXPECT_EQ(run.ExitCode(), 0u);
    EXPECT_EQ(run.Setting("IconIndex"), std::to_string(row.picked - 1));
    EXPECT_FALSE(IsFile(run.File("Morvane.ttf"))) << "ended through the clean-up";
  }
}

// Yes is every name's road (Unicode_test.cpp).
TEST(MainWindow, DoubleClickingTheDefaultIconAsksToRemoveAndEndsOnNoToo) {
  const std::string settings = "[.ShellClassInfo]\r\nIconIndex=3\r\n";
  ProgramRun run;
  WriteFile(run.Target("Desktop.ini"), settings);
  ::SetFileAttributesA(run.Target("Desktop.ini").c_str(), kHiddenSystem);
  ::SetFileAttributesA(run.Target().c_str(), FILE_ATTRIBUTE_SYSTEM);
  ASSERT_TRUE(run.Open());
  HWND question = ClickForBox(run, ids::kDefaultFolderIcon, 2);
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(Read(question).text, English(run, IDS_REMOVE_PROMPT));
  Answer(question, IDNO);
  ASSERT_TRUE(run.Ended());
  EXPECT_EQ(run.ExitCode(), 0u);
  EXPECT_EQ(Attributes(run.Target()) & FILE_ATTRIBUTE_SYSTEM, DWORD{FILE_ATTRIBUTE_SYSTEM});
  EXPECT_EQ(ReadFile(run.Target("Desktop.ini")), settings);
}

// A deep path on a share that has gone away makes a long line; ARA.INI
// holds lines of up to 29999 characters.
TEST(RecentFiles, ChoosingAMissingFileOfAnyLengthWarnsAndKeepsTheList) {
  for (size_t length : {8, 600, 29999}) {
    SCOPED_TRACE(length);
    ProgramRun run;
    const std::string missing = run.Target(std::string(length, 'g') + ".ico");
    WriteFile(run.File("ARA.INI"), "[Recent]\r\nARA01=" + missing + "\r\n");
    ASSERT_TRUE(run.Open());
    const int listed = run.IconCount();
    ASSERT_TRUE(ChooseFirstRecentFile(run));
    HWND warning = run.WaitForDialog();
    ASSERT_NE(warning, nullptr);
    const MessageBoxView view = Read(warning);
    EXPECT_EQ(view.title, English(run, IDS_MISSING_FILE_TITLE));
    EXPECT_EQ(view.text, English(run, IDS_MISSING_FILE_PROMPT));
    EXPECT_EQ(view.buttons, std::vector<std::string>{"OK"});
    ASSERT_NE(view.icon, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return ShowsSystemIcon(view.icon, IDI_EXCLAMATION); }, 5s));
    Answer(warning, IDOK);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(warning); }));
    EXPECT_EQ(run.IconCount(), listed);
    EXPECT_TRUE(WaitUntil([&] { return FocusWindow() == run.Element(ids::kRecentFiles); }, 5s))
        << "the keyboard focus is back in the box";
    EXPECT_TRUE(run.Close());
  }
}

// Every count beyond one reads alike: two icons, and a long load whose
// progress is drawn at most once a frame.
TEST(IconBrowser, StatusShowsTheLastProgressThenTheCount) {
  for (const int icons : {1, 2, 1234}) {
    SCOPED_TRACE(icons);
    ProgramRun run;
    const std::string n = std::to_string(icons);
    WriteFile(run.File("ARA.INI"), "[Recent]\r\nARA01=" + TestFolder() + "ICONS" + n + ".DLL\r\n");
    ASSERT_TRUE(run.Open());
    // Chosen with the pointer on the recent files box, away from the list,
    // whose mouse moves would repaint the strip.
    ASSERT_TRUE(ChooseFirstRecentFile(run));
    ASSERT_TRUE(WaitUntil([&] { return run.IconCount() == icons; }));
    HWND status = run.Element(ids::kStatus);
    EXPECT_EQ(Text(status), English(run, IDS_STATUS_LOADING) + " " + n + "/" + n);
    MovePointer(run.Element(ids::kIconList), IconAt(1));
    const std::string idle = icons > 1 ? n + " " + English(run, IDS_STATUS_ICON_COUNT)
                                       : English(run, IDS_STATUS_FEW_ICONS);
    EXPECT_TRUE(WaitUntil([&] { return Text(status) == idle; })) << Text(status);
    EXPECT_TRUE(run.Close());
  }
}

// Each kind of window the tips are given to: a picture surface, two of the
// system's controls and a label drawn on the form itself.
TEST(MainWindow, ToolTipsShowWhereThePointerRests) {
  ProgramRun run;
  ASSERT_TRUE(run.Open());
  for (auto [id, tip] : {std::pair{ids::kPreview, IDS_TIP_NEW_ICON},
                         {ids::kRecentFiles, IDS_TIP_RECENT}, {ids::kIconList, IDS_TIP_ICON_LIST}}) {
    EXPECT_EQ(TipAt(run.Element(id), {4, 4}), English(run, tip)) << id;
  }
  EXPECT_EQ(TipAt(run.main, {90, 62}), run.Target());
  EXPECT_TRUE(run.Close());
}

}  // namespace
