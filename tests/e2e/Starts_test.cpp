// How a run of the real program ends, from ordinary starts to hostile
// settings, libraries, command lines and faults met while its window is
// open. One runner: each run must end as its row says, with exit code 0 and
// no crash window, and leave every file as it was except those the row names.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
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
  std::function<std::string(const ProgramRun&)> arguments;  // the target folder when empty
  Ending ending;
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
  return [=](ProgramRun& run) { ::CopyFileA((TestFolder() + testFile).c_str(), run.File(name).c_str(), 0); };
}
auto Line(std::function<std::string(const std::string&)> fromTarget) {
  return [=](const ProgramRun& run) { return fromTarget(run.Target()); };
}
const auto kNothing = [](ProgramRun&) {};

TEST(Start, EndsAsDesigned) {
  const Case cases[] = {
      {"no folder given", kNothing, Line([](auto) { return ""; }), Ending::Message},
      {"blanks only", kNothing, Line([](auto) { return "   "; }), Ending::Message},
      {"no Config.ini and no English: Spanish",
       [](ProgramRun& run) { Deletes("Config.ini")(run), Deletes("LANG_ENG.DLL")(run); },
       Line([](auto) { return ""; }), Ending::Message, {}, {}, "LANG_ESP.DLL"},
      {"a folder", kNothing, {}, Ending::Main},
      {"a folder with one trailing \\", kNothing, Line([](auto t) { return t + "\\"; }),
       Ending::Main},
      {"a folder with one trailing /", kNothing, Line([](auto t) { return t + "/"; }),
       Ending::Main},
      {"a missing folder", kNothing, Line([](auto t) { return t + "\\missing"; }), Ending::Quiet},
      {"a file", kNothing, Line([](auto t) { return t + "\\photo.jpg"; }), Ending::Quiet},
      {"two trailing \\", kNothing, Line([](auto t) { return t + "\\\\"; }), Ending::Quiet},
      {"in quotes", kNothing, Line([](auto t) { return "\"" + t + "\""; }), Ending::Quiet},
      {"leading blanks", kNothing, Line([](auto t) { return "  " + t; }), Ending::Quiet},
      {"a missing network folder", kNothing, Line([](auto) { return "\\\\nohost\\share"; }),
       Ending::Quiet},
      {"no picture library", Deletes("Resource.DLL"), {}, Ending::Orderly},
      {"a missing language configured", Writes("Config.ini", "[Config]\r\nLANGUAGE=LANG_XY.DLL"),
       {}, Ending::Orderly},
      {"no language library",
       [](ProgramRun& run) { Deletes("LANG_ENG.DLL")(run), Deletes("LANG_ESP.DLL")(run); },
       Line([](auto) { return ""; }), Ending::Orderly},
      {"the picture library without its font", Copies("NOFONT.DLL", "Resource.DLL"), {},
       Ending::Orderly},
  };
  for (const Case& c : cases) RunCase(c);
}

TEST(Start, ASecondCopyEndsAtOnceAndLeavesTheFirstAlone) {
  ProgramRun first;
  ASSERT_TRUE(first.Open());
  RunCase({"a second copy, no folder given", kNothing, Line([](auto) { return ""; }), Ending::Quiet});
  RunCase({"a second copy on a folder", kNothing, {}, Ending::Quiet});
  EXPECT_TRUE(::IsWindowVisible(first.main));
  EXPECT_TRUE(first.Close());
}

// Deterministic bytes with every value, NUL and line ends included.
std::string Garbage(std::size_t length) {
  std::string bytes(length, '\0');
  std::uint32_t state = 12345;
  for (char& byte : bytes) byte = static_cast<char>((state = state * 1103515245u + 12345u) >> 16);
  return bytes;
}

std::uint32_t Get(const std::string& bytes, std::size_t at, std::size_t size = 4) {
  std::uint32_t value = 0;
  if (at + size <= bytes.size()) std::memcpy(&value, bytes.data() + at, size);
  return value;
}
void Put(std::string& bytes, std::size_t at, std::uint32_t value) {
  if (at + 4 <= bytes.size()) std::memcpy(bytes.data() + at, &value, 4);
}

// Where a library's optional header holds the resource table's address.
std::size_t ResourceEntry(const std::string& image) {
  const std::size_t optional = Get(image, 0x3C) + 24;
  const bool is64 = Get(image, optional, 2) == 0x20B;
  return optional + (is64 ? 112 : 96) + 2 * 8;
}

std::string ResourceTablePastTheEnd(std::string image) {
  const std::uint32_t imageSize = Get(image, Get(image, 0x3C) + 24 + 56);
  Put(image, ResourceEntry(image), imageSize + 0x10000);
  return image;
}

std::string Utf16WithMark(const std::string& text) {
  std::string bytes = "\xFF\xFE";
  for (char c : text) bytes += std::string{c, '\0'};
  return bytes;
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
  constexpr int kSpacing = 43;
  Click(run.Element(ids::kIconList), {kSpacing * 4 + kSpacing / 2, kSpacing / 2});
  HWND apply = run.Element(ids::kApply);
  ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(apply); }));
  Click(apply, Centre(apply));
  HWND question = run.WaitForDialog();
  ASSERT_NE(question, nullptr);
  Answer(question, IDYES);
  ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(question); }));
}

TEST(Start, HostileInputEndsCleanlyAndKeepsEveryFile) {
  const std::string resource = ReadFile(TestFolder() + "..\\dist\\Resource.DLL");
  const std::string library = ReadFile(TestFolder() + "ICONS120.DLL");
  std::string claiming65535 = ReadFile(TestFolder() + "icons.ico");
  claiming65535[4] = claiming65535[5] = '\xFF';
  const Case cases[] = {
      {"Config.ini of garbage", Writes("Config.ini", Garbage(3000)), {}, Ending::Main},
      {"Config.ini without keys", Writes("Config.ini", "[Config]\r\n"), {}, Ending::Main},
      {"Config.ini missing", Deletes("Config.ini"), {}, Ending::Main},
      {"a folder named Config.ini", AFolderNamed("Config.ini"), {}, Ending::Main},
      {"LANGUAGE naming a text file", Writes("Config.ini", "[Config]\r\nLANGUAGE=Config.ini\r\n"),
       {}, Ending::Orderly},
      {"LANGUAGE naming a folder",
       [](ProgramRun& run) {
         AFolderNamed("LANG_XX.DLL")(run);
         WriteFile(run.File("Config.ini"), "[Config]\r\nLANGUAGE=LANG_XX.DLL\r\n");
       },
       {}, Ending::Orderly},
      {"Font of 300 characters", Writes("Config.ini", "[Config]\r\nFont=" + std::string(300, 'F')),
       {}, Ending::Main},
      {"ARA.INI of garbage", Writes("ARA.INI", Garbage(3000)), {}, Ending::Main},
      {"ARA.INI with ARA01, ARA03 and a line of 300 characters",
       Writes("ARA.INI", "[Recent]\r\nARA01=c:\\a.ico\r\nARA03=" + std::string(300, 'x')), {},
       Ending::Main},
      {"a folder named ARA.INI", AFolderNamed("ARA.INI"), {}, Ending::Main},
      {"Resource.DLL cut to its headers", Writes("Resource.DLL", resource.substr(0, 1024)), {},
       Ending::Orderly},
      {"Resource.DLL cut in half", Writes("Resource.DLL", resource.substr(0, resource.size() / 2)),
       {}, Ending::Orderly},
      {"Resource.DLL of text", Writes("Resource.DLL", "not a library\r\n"), {}, Ending::Orderly},
      {"a language library without strings", Copies("TESTRES.DLL", "LANG_ENG.DLL"), {},
       Ending::Main},
      {"a language library without strings, blank command line",
       Copies("TESTRES.DLL", "LANG_ENG.DLL"), Line([](auto) { return " "; }), Ending::Message},
      {"iconos.dll cut in half", Writes("iconos.dll", library.substr(0, library.size() / 2)), {},
       Ending::Main},
      {"iconos.dll with its resource table past the end",
       Writes("iconos.dll", ResourceTablePastTheEnd(library)), {}, Ending::Main},
      {"iconos.dll an .ico claiming 65535 images", Writes("iconos.dll", claiming65535), {},
       Ending::Main},
      {"iconos.dll of zero bytes", Writes("iconos.dll", ""), {}, Ending::Main},
      {"a folder named iconos.dll", AFolderNamed("iconos.dll"), {}, Ending::Main},
      {"Desktop.ini of garbage", InTarget(Garbage(4096)), {}, Ending::Main},
      {"Desktop.ini with a 1 MB line",
       InTarget("[.ShellClassInfo]\r\nInfoTip=" + std::string(1 << 20, 'x') + "\r\n"), {},
       Ending::Main},
      {"read-only, hidden and system Desktop.ini",
       InTarget("[.ShellClassInfo]\r\nIconIndex=2\r\n",
                FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM),
       {}, Ending::Main},
      {"UTF-16 Desktop.ini",
       InTarget(Utf16WithMark("[.ShellClassInfo]\r\nIconFile=C:\\x.ico\r\nIconIndex=1\r\n")), {},
       Ending::Main},
      {"a folder named Desktop.ini",
       [](ProgramRun& run) {
         ::CreateDirectoryA(run.Target("Desktop.ini").c_str(), nullptr);
         WriteFile(run.Target("Desktop.ini\\inside.txt"), "kept");
       },
       {}, Ending::Main},
      {"the font file cannot be written: a folder named Morvane.ttf", AFolderNamed("Morvane.ttf"),
       {}, Ending::Orderly},
      {"the target folder deleted before apply", kNothing, {}, Ending::Main,
       [](ProgramRun& run) {
         ::DeleteFileA(run.Target("photo.jpg").c_str());
         ::RemoveDirectoryA(run.Target().c_str());
         ApplyFifthIcon(run);
         EXPECT_EQ(::GetFileAttributesA(run.Target().c_str()), INVALID_FILE_ATTRIBUTES);
         EXPECT_TRUE(::IsWindow(run.main)) << "the window stays after applying";
       },
       {"target"}},
      {"the target folder made read-only before apply", kNothing, {}, Ending::Main,
       [](ProgramRun& run) {
         ::SetFileAttributesA(run.Target().c_str(), FILE_ATTRIBUTE_READONLY);
         ApplyFifthIcon(run);
       },
       {"target\\Desktop.ini"}},
      {"Desktop.ini locked by another process: apply, then remove",
       InTarget("[.ShellClassInfo]\r\nIconIndex=9\r\n"), {}, Ending::Main,
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
      {"the icon file deleted between listing and choosing", kNothing, {}, Ending::Main,
       [](ProgramRun& run) {
         ::DeleteFileA(run.File("iconos.dll").c_str());
         ApplyFifthIcon(run);
       },
       {"program\\iconos.dll", "target\\Desktop.ini"}},
  };
  for (const Case& c : cases) RunCase(c);
}

}  // namespace
