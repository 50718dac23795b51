// A user's whole road (an icon file chosen, chosen again from the recent list
// in the next run, applied with an info tip, removed) for folders and icon
// files of every script and for a path longer than MAX_PATH. The launcher
// handing such names on is the Linux desktop test's (desktop_test.sh).
#include <gtest/gtest.h>

#include <algorithm>

#include "Harness.h"

namespace {

using namespace e2e;

constexpr DWORD kHiddenSystem = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
constexpr POINT kFolderLabel{90, 62};  // in the main window's client area

struct Road {
  const char* name;
  std::string folder, lowerFolder;      // repeated until the path is `length` long
  std::string iconFile, lowerIconFile;  // in that folder, as typed and as stored
  std::string tip;
  bool ansi = false;  // whether the ANSI code page holds every name and the tip
  size_t length = 0;
};

std::string Lower(std::string ascii) {
  std::transform(ascii.begin(), ascii.end(), ascii.begin(), ::tolower);
  return ascii;
}

// Written by the program before it spoke Unicode; "{root}": the scratch folder.
std::string Fixture(const std::string& name, const ProgramRun& run) {
  std::string text = ReadFile(TestFolder() + "fixtures\\" + name);
  const std::string mark = "{root}";
  return text.replace(text.find(mark), mark.size(), Lower(run.Root()));
}

void Travel(const Road& road) {
  SCOPED_TRACE(road.name);
  ProgramRun run;
  std::string folder = run.Root(), stored = Lower(run.Root());
  do {
    folder += "\\" + road.folder;
    stored += "\\" + road.lowerFolder;
    ASSERT_TRUE(::CreateDirectoryW(Wide(folder).c_str(), nullptr)) << ::GetLastError();
  } while (Wide(folder).size() < road.length);
  const std::string iconFile = folder + "\\" + road.iconFile;
  stored += "\\" + road.lowerIconFile;
  ASSERT_TRUE(::CopyFileW(Wide(TestFolder() + "ICONS2.DLL").c_str(), Wide(iconFile).c_str(), 1));
  std::string recent = "[Recent]\r\nARA01=" + stored + "\r\n";
  for (int n = 2; n <= 10; ++n) recent += (n < 10 ? "ARA0" : "ARA") + std::to_string(n) + "=\r\n";
  // Wine's file dialog faults on a typed path beyond MAX_PATH: use the list.
  if (road.length) WriteFile(run.File("ARA.INI"), Utf16File(recent));

  ASSERT_TRUE(run.Open(2, folder));
  EXPECT_EQ(TipAt(run.main, kFolderLabel), folder);
  if (road.length) {
    ASSERT_TRUE(ChooseFirstRecentFile(run));
  } else {
    HWND chooser = ClickForBox(run, ids::kBrowse);
    ASSERT_TRUE(WaitUntil([&] { return ::GetAncestor(FocusWindow(), GA_ROOT) == chooser; }));
    Type(iconFile);
    PressKey(VK_RETURN);
  }
  ASSERT_TRUE(WaitUntil([&] { return run.IconCount() == 2; }));
  ASSERT_TRUE(run.Close());
  EXPECT_EQ(ReadFile(run.File("ARA.INI")),
            road.ansi ? Fixture("ansi-ARA.INI", run) : Utf16File(recent));

  ASSERT_TRUE(run.Open(2, folder));
  ASSERT_TRUE(ChooseFirstRecentFile(run));
  ASSERT_TRUE(WaitUntil([&] { return run.IconCount() == 2; }));
  ASSERT_TRUE(Pick(run, 2));
  HWND tipBox = run.Element(ids::kInfoTip);
  Click(tipBox, Centre(tipBox));
  ASSERT_TRUE(WaitUntil([&] { return FocusWindow() == tipBox; }));
  Type(road.tip);
  const std::string settings = folder + "\\Desktop.ini";
  for (int answer : {IDNO, IDYES}) {
    // Clicked aside the second time, so that the two clicks make no double-click.
    HWND apply = run.Element(ids::kApply);
    Click(apply, {Centre(apply).x + (answer == IDYES) * 3 * ::GetSystemMetrics(SM_CXDOUBLECLK),
                  Centre(apply).y});
    HWND question = run.WaitForDialog();
    ASSERT_NE(question, nullptr);
    EXPECT_FALSE(IsFile(settings)) << "No writes nothing";
    Answer(question, answer);
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(question); }));
  }
  ASSERT_TRUE(WaitUntil([&] {
    return (Attributes(settings) & kHiddenSystem) == kHiddenSystem &&
           (Attributes(folder) & FILE_ATTRIBUTE_SYSTEM);
  }));
  const std::string written =
      "[.ShellClassInfo]\r\nConfirmFileOp=1\r\nNoSharing=0\r\nIconFile=" + stored +
      "\r\nIconIndex=1\r\nInfoTip=" + road.tip + "\r\n[Morvane]\r\nMark=-1\r\n";
  EXPECT_EQ(ReadFile(settings), road.ansi ? Fixture("ansi-Desktop.ini", run) : Utf16File(written));

  Answer(ClickForBox(run, ids::kDefaultFolderIcon, 2), IDYES);
  ASSERT_TRUE(run.Ended());
  EXPECT_FALSE(IsFile(settings));
  EXPECT_EQ(Attributes(folder), DWORD{FILE_ATTRIBUTE_DIRECTORY});
}

TEST(EveryName, AUsersRoadKeepsTheNamesAndTheTip) {
  const std::string deep = "Ελλάδα " + std::string(40, 'd');
  const Road roads[] = {
      {"ANSI letters", "Fotos de café, año 2024", "fotos de café, año 2024", "ÍCONOS Ñ.DLL",
       "íconos ñ.dll", "Año nuevo en el café", true},
      {"Chinese", "写真 2024", "写真 2024", "图标.DLL", "图标.dll", "家庭照片 2024"},
      {"Cyrillic", "Фото", "фото", "ИКОНКИ.DLL", "иконки.dll", "Летние фотографии"},
      {"Greek", "Ελλάδα", "ελλάδα", "ΕΙΚΟΝΙΔΙΑ.DLL", "εικονιδια.dll", "Διακοπές στην Ελλάδα"},
      {"an emoji", "Café ☕ 😀", "café ☕ 😀", "Icons 😀.DLL", "icons 😀.dll", "Coffee ☕ 😀"},
      {"a path of 300 characters", deep, "ελλάδα " + std::string(40, 'd'), "ΕΙΚΟΝΙΔΙΑ.DLL",
       "εικονιδια.dll", "Μακρύς δρόμος", false, 300},
  };
  for (const Road& road : roads) Travel(road);
}

}  // namespace
