// How a run of the real program ends, from ordinary starts to hostile
// settings, libraries, command lines and faults met while its window is
// open. One runner: each run must end as its row says, with exit code 0 and
// no crash window, and leave every file as it was except those the row names.
#include <gtest/gtest.h>

#include <functional>

#include "Harness.h"
#include "resource_ids.h"

namespace {

using namespace e2e;

// Message: the empty-command-line message, then an orderly end. Quiet: an
// end without clean-up. Orderly: a silent end through the clean-up, the
// splash at most shown. Main: the main window opens; the row's action runs,
// then the window is closed.
enum class Ending { Message, Quiet, Orderly, Main };

struct Case {
  const char* name;
  std::function<void(ProgramRun&)> prepare;
  Ending ending;
  std::function<std::string(const ProgramRun&)> arguments = {};  // the target folder when empty
  std::function<void(ProgramRun&)> action = {};
  std::vector<std::string> mayChange = {};  // paths under the scratch folder
  const char* language = "LANG_ENG.DLL";
};

void RunCase(const Case& c) {
  SCOPED_TRACE(c.name);
  ProgramRun run;
  WriteFile(run.File("Morvane.ttf"), "stale font");  // the clean-up removes it
  WriteFile(run.Target("photo.jpg"), "a user's photo");
  WriteFile(run.Root() + "\\beside.txt", "a neighbour's file");
  c.prepare(run);
  run.Remember();
  run.Start(c.arguments ? c.arguments(run) : run.Target());
  if (c.ending == Ending::Message) {
    HWND box = run.WaitForDialog();
    ASSERT_NE(box, nullptr);
    const MessageBoxView view = Read(box);
    EXPECT_EQ(view.title, "Morvane");
    EXPECT_EQ(view.text, LibraryString(run.File(c.language), IDS_EMPTY_COMMAND_LINE));
    EXPECT_EQ(view.buttons, std::vector<std::string>{"OK"});
    EXPECT_EQ(view.icon, nullptr);
    Answer(box, IDOK);
  } else if (c.ending == Ending::Main) {
    ASSERT_NE(run.WaitForMain(), nullptr);
    if (c.action) c.action(run);
    run.Close();
  } else {
    std::string shown;
    WaitUntil([&] {
      for (HWND window : run.Windows()) shown += Text(window) == "frmSplash" ? "" : Text(window);
      return run.HasEnded();
    });
    EXPECT_EQ(shown, "") << "windows shown on a silent end";
  }
  ASSERT_TRUE(run.Ended()) << "hung or crashed";
  EXPECT_EQ(run.ExitCode(), 0u);
  EXPECT_EQ(IsFile(run.File("Morvane.ttf")), c.ending == Ending::Quiet) << "clean-up";
  EXPECT_EQ(run.Changes(c.mayChange), "");
}

auto Writes(const std::string& name, const std::string& bytes) {
  return [=](ProgramRun& run) { WriteFile(run.File(name), bytes); };
}
auto Deletes(const std::string& name) {
  return [=](ProgramRun& run) { ::DeleteFileA(run.File(name).c_str()); };
}
auto Copies(const std::string& testFile, const std::string& name) {
  return [=](ProgramRun& run) {
    ::CopyFileA((TestFolder() + testFile).c_str(), run.File(name).c_str(), 0);
  };
}
auto Line(std::function<std::string(const std::string&)> fromTarget) {
  return [=](const ProgramRun& run) { return fromTarget(run.Target()); };
}
const auto kNothing = [](ProgramRun&) {};

TEST(Start, EndsAsDesigned) {
  const Case cases[] = {
      {"no folder given", kNothing, Ending::Message, Line([](auto) { return ""; })},
      {"blanks only", kNothing, Ending::Message, Line([](auto) { return "   "; })},
      {"no Config.ini and no English: Spanish",
       [](ProgramRun& run) { Deletes("Config.ini")(run), Deletes("LANG_ENG.DLL")(run); },
       Ending::Message,
       Line([](auto) { return ""; }),
       {},
       {},
       "LANG_ESP.DLL"},
      {"a folder", kNothing, Ending::Main},
      {"a folder with one trailing \\", kNothing, Ending::Main,
       Line([](auto t) { return t + "\\"; })},
      {"a missing folder", kNothing, Ending::Quiet, Line([](auto t) { return t + "\\missing"; })},
      {"a file", kNothing, Ending::Quiet, Line([](auto t) { return t + "\\photo.jpg"; })},
      {"two trailing \\", kNothing, Ending::Quiet, Line([](auto t) { return t + "\\\\"; })},
      {"in quotes", kNothing, Ending::Quiet, Line([](auto t) { return "\"" + t + "\""; })},
      {"a missing network folder", kNothing, Ending::Quiet,
       Line([](auto) { return "\\\\nohost\\share"; })},
      {"no picture library", Deletes("Resource.DLL"), Ending::Orderly},
      {"a missing language configured", Writes("Config.ini", "[Config]\r\nLANGUAGE=LANG_XY.DLL"),
       Ending::Orderly},
      {"no language library",
       [](ProgramRun& run) { Deletes("LANG_ENG.DLL")(run), Deletes("LANG_ESP.DLL")(run); },
       Ending::Orderly, Line([](auto) { return ""; })},
      {"the picture library without its font", Copies("NOFONT.DLL", "Resource.DLL"),
       Ending::Orderly},
  };
  for (const Case& c : cases) RunCase(c);
}

TEST(Start, ASecondCopyEndsAtOnceAndLeavesTheFirstAlone) {
  ProgramRun first;
  ASSERT_TRUE(first.Open());
  RunCase(
      {"a second copy, no folder given", kNothing, Ending::Quiet, Line([](auto) { return ""; })});
  RunCase({"a second copy on a folder", kNothing, Ending::Quiet});
  EXPECT_TRUE(::IsWindowVisible(first.main));
  EXPECT_TRUE(first.Close());
}

auto AFolderNamed(const std::string& name) {
  return [=](ProgramRun& run) {
    ::DeleteFileA(run.File(name).c_str());
    ::CreateDirectoryA(run.File(name).c_str(), nullptr);
    WriteFile(run.File(name) + "\\inside.txt", "kept");
  };
}
auto InTarget(const std::string& bytes, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
  return [=](ProgramRun& run) {
    WriteFile(run.Target("Desktop.ini"), bytes);
    ::SetFileAttributesA(run.Target("Desktop.ini").c_str(), attributes);
  };
}

// The user picks the fifth icon, applies and answers Yes.
void ApplyFifthIcon(ProgramRun& run) {
  ASSERT_TRUE(Pick(run, 5));
  HWND apply = run.Element(ids::kApply);
  Click(apply, Centre(apply));
  HWND question = run.WaitForDialog();
  ASSERT_NE(question, nullptr);
  Answer(question, IDYES);
  ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(question); }));
}

TEST(Start, HostileInputEndsCleanlyAndKeepsEveryFile) {
  const std::string resource = ReadFile(TestFolder() + "..\\dist\\Resource.DLL");
  const Case cases[] = {
      {"Config.ini of garbage", Writes("Config.ini", resource.substr(0, 3000)), Ending::Main},
      {"a folder named Config.ini", AFolderNamed("Config.ini"), Ending::Main},
      {"LANGUAGE naming a folder",
       [](ProgramRun& run) {
         AFolderNamed("LANG_XX.DLL")(run);
         WriteFile(run.File("Config.ini"), "[Config]\r\nLANGUAGE=LANG_XX.DLL\r\n");
       },
       Ending::Orderly},
      {"Resource.DLL cut in half", Writes("Resource.DLL", resource.substr(0, resource.size() / 2)),
       Ending::Orderly},
      {"a language library without strings", Copies("TESTRES.DLL", "LANG_ENG.DLL"), Ending::Main},
      {"a folder named iconos.dll", AFolderNamed("iconos.dll"), Ending::Main},
      {"read-only, hidden and system Desktop.ini",
       InTarget("[.ShellClassInfo]\r\nIconIndex=2\r\n",
                FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM),
       Ending::Main},
      {"a folder named Desktop.ini",
       [](ProgramRun& run) {
         ::CreateDirectoryA(run.Target("Desktop.ini").c_str(), nullptr);
         WriteFile(run.Target("Desktop.ini\\inside.txt"), "kept");
       },
       Ending::Main},
      {"the font file cannot be written: a folder named Morvane.ttf", AFolderNamed("Morvane.ttf"),
       Ending::Orderly},
      {"the target folder deleted before apply",
       kNothing,
       Ending::Main,
       {},
       [](ProgramRun& run) {
         ::DeleteFileA(run.Target("photo.jpg").c_str());
         ::RemoveDirectoryA(run.Target().c_str());
         ApplyFifthIcon(run);
         EXPECT_EQ(::GetFileAttributesA(run.Target().c_str()), INVALID_FILE_ATTRIBUTES);
         EXPECT_TRUE(::IsWindow(run.main)) << "the window stays after applying";
       },
       {"target"}},
      {"the target folder made read-only before apply",
       kNothing,
       Ending::Main,
       {},
       [](ProgramRun& run) {
         ::SetFileAttributesA(run.Target().c_str(), FILE_ATTRIBUTE_READONLY);
         ApplyFifthIcon(run);
       },
       {"target\\Desktop.ini"}},
      {"Desktop.ini locked by another process: apply, then remove",
       InTarget("[.ShellClassInfo]\r\nIconIndex=9\r\n"),
       Ending::Main,
       {},
       [](ProgramRun& run) {
         HANDLE lock = ::CreateFileA(run.Target("Desktop.ini").c_str(), GENERIC_READ, 0, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
         ApplyFifthIcon(run);
         HWND defaultIcon = run.Element(ids::kDefaultFolderIcon);
         Click(defaultIcon, Centre(defaultIcon), false, 2);
         if (HWND question = run.WaitForDialog()) Answer(question, IDYES);
         EXPECT_TRUE(run.Ended());
         ::CloseHandle(lock);
       }},
      {"the icon file deleted between listing and choosing",
       kNothing,
       Ending::Main,
       {},
       [](ProgramRun& run) {
         ::DeleteFileA(run.File("iconos.dll").c_str());
         ApplyFifthIcon(run);
       },
       {"program\\iconos.dll", "target\\Desktop.ini"}},
  };
  for (const Case& c : cases) RunCase(c);
}

// Texts from outside meet the program at its command line, Config.ini, a
// language library, Desktop.ini, ARA.INI and its own text box read back.
TEST(Start, OverLongAndMalformedTextsEndAsDesigned) {
  const std::string deep = std::string(600, 'd'), huge = std::string(30000, 'h');
  // Binary bytes of every value, NULs and line ends among them.
  const std::string garbage = ReadFile(TestFolder() + "..\\dist\\Resource.DLL").substr(4096, 3000);
  std::string tip = "A tip";
  while (tip.size() < 30006) tip += " word";  // one long word would wrap in seconds
  const Case cases[] = {
      {"a missing path of 600 characters", kNothing, Ending::Quiet,
       Line([=](auto t) { return t + "\\" + deep; })},
      {"a command line of 30000 characters", kNothing, Ending::Quiet,
       Line([=](auto) { return huge; })},
      {"wildcards and a stream colon", kNothing, Ending::Quiet,
       Line([](auto t) { return t + "\\*?<>|:x"; })},
      {"LANGUAGE of 5000 characters",
       Writes("Config.ini", "[Config]\r\nLANGUAGE=" + std::string(5000, 'L') + "\r\n"),
       Ending::Orderly},
      {"a type face of 5000 characters",
       Writes("Config.ini", "[Config]\r\nFont=" + std::string(5000, 'F') + "\r\n"), Ending::Main},
      {"a language library of garbage", Writes("LANG_ENG.DLL", garbage), Ending::Orderly},
      {"IconFile of 600 characters, missing",
       InTarget("[.ShellClassInfo]\r\nIconFile=C:\\" + deep + ".ico\r\nIconIndex=0\r\n"),
       Ending::Main},
      {"IconFile of 30000 characters and an index of 30 digits",
       InTarget("[.ShellClassInfo]\r\nIconFile=" + huge + "\r\nIconIndex=" + std::string(30, '9') +
                "\r\n"),
       Ending::Main},
      {"ARA.INI with lines of 30000 characters, of garbage and without a key",
       Writes("ARA.INI", "[Recent]\r\nARA01=" + huge + "\r\nARA02=" + garbage.substr(0, 500) +
                             "\r\nno key here\r\n" + std::string(40000, '=') + "\r\n"),
       Ending::Main},
      {"an info tip of 30010 characters: read as its first 29999 and shown whole",
       InTarget("[.ShellClassInfo]\r\nInfoTip=" + tip + "\r\n"),
       Ending::Main,
       {},
       [=](ProgramRun& run) {
         const std::string cut = tip.substr(0, 29999);
         EXPECT_TRUE(WaitUntil([&] { return ControlText(run.Element(ids::kInfoTip)) == cut; }));
       }},
  };
  for (const Case& c : cases) RunCase(c);
}

}  // namespace
