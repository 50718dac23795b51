// A user's whole road (an icon file chosen, chosen again from the recent list
// in the next run, applied with an info tip, removed) for folders and icon
// files of every script.
#include <gtest/gtest.h>

#include <algorithm>

#include "Harness.h"

namespace {

using namespace e2e;

constexpr DWORD kHiddenSystem = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

struct Road {
  const char* name;
  std::string folder, lowerFolder;      // under the scratch folder
  std::string iconFile, lowerIconFile;  // in that folder, as typed and as stored
  std::string tip;
};

DWORD Attributes(const std::string& path) {
  return ::GetFileAttributesW(Wide(path).c_str());
}

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
  const std::string folder = run.Root() + "\\" + road.folder;
  ASSERT_TRUE(::CreateDirectoryW(Wide(folder).c_str(), nullptr)) << ::GetLastError();
  const std::string iconFile = folder + "\\" + road.iconFile;
  ASSERT_TRUE(::CopyFileW(Wide(TestFolder() + "ICONS2.DLL").c_str(), Wide(iconFile).c_str(), 1));

  ASSERT_TRUE(run.Open(2, folder));
  HWND chooser = ClickForBox(run, ids::kBrowse);
  ASSERT_TRUE(WaitUntil([&] { return ::GetAncestor(FocusWindow(), GA_ROOT) == chooser; }));
  Type(iconFile);
  PressKey(VK_RETURN);
  ASSERT_TRUE(WaitUntil([&] { return run.IconCount() == 2; }));
  ASSERT_TRUE(run.Close());
  EXPECT_EQ(ReadFile(run.File("ARA.INI")), Fixture("ansi-ARA.INI", run));

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
  EXPECT_EQ(IniValue(settings, ".ShellClassInfo", "InfoTip"), road.tip);
  EXPECT_EQ(ReadFile(settings), Fixture("ansi-Desktop.ini", run));

  Answer(ClickForBox(run, ids::kDefaultFolderIcon, 2), IDYES);
  ASSERT_TRUE(run.Ended());
  EXPECT_FALSE(IsFile(settings));
  EXPECT_EQ(Attributes(folder), DWORD{FILE_ATTRIBUTE_DIRECTORY});
}

TEST(EveryName, AUsersRoadKeepsTheNamesAndTheTip) {
  const Road roads[] = {
      {"ANSI letters", "Fotos de café, año 2024", "fotos de café, año 2024", "ÍCONOS Ñ.DLL",
       "íconos ñ.dll", "Año nuevo en el café"},
  };
  for (const Road& road : roads) Travel(road);
}

}  // namespace
