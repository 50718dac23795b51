// Hostile command lines, settings, libraries and faults met by the real
// Morvane.exe, run from its own copy of the shipping folder. Each run must
// end as designed within its limit, with exit code 0 and no crash dialog,
// and leave the user's files byte-for-byte as they were. One line per case
// goes to the output ("CASE | name | outcome | ms") for the report.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <memory>

#include "e2e/UserInput.h"
#include "frame/modINI.h"
#include "robustness/Hostile.h"
#include "support/TestSupport.h"
#include "ui/ControlIds.h"

namespace {

using namespace hostile;
using testing_support::ChildProcess;
using testing_support::ClassName;
using testing_support::ReadWholeFile;
using testing_support::WindowText;
using testing_support::WriteWholeFile;

constexpr auto kRunLimit = 20s;
constexpr char kFormClass[] = "MorvaneForm";
constexpr char kDialogClass[] = "#32770";
constexpr int kIconSpacing = 43;

// Wine's debugger shows this window when a program dies of an exception.
bool CrashDialogShown() {
  bool shown = false;
  ::EnumWindows(
      [](HWND window, LPARAM found) -> BOOL {
        if (::IsWindowVisible(window) && WindowText(window).find("Program Error") == 0) {
          *reinterpret_cast<bool*>(found) = true;
          ::PostMessageA(window, WM_CLOSE, 0, 0);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&shown));
  return shown;
}

template <typename Condition>
bool WaitUntil(Condition condition, std::chrono::milliseconds limit = kRunLimit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= deadline || CrashDialogShown()) return false;
    ::Sleep(20);
  }
  return true;
}

// A copy of the shipping folder and a place holding the target folder and a
// neighbouring file; the program's own font file is the one thing it may
// leave changed.
class Scene {
 public:
  Scene() : target(place.MakeFolder("target")) {
    WriteWholeFile(place / "target\\photo.jpg", Garbage(5000));
    WriteWholeFile(place / "beside.txt", "a neighbour's file");
  }
  std::string File(const std::string& name) const { return program.File(name); }
  Snapshot Files() const {
    Snapshot files = TakeSnapshot(program.Folder());
    files.erase("Morvane.ttf");
    for (auto& [path, bytes] : TakeSnapshot(place.Path())) files["place\\" + path] = bytes;
    return files;
  }

  // Starts the program with `arguments` after its name.
  void Start(const std::string& arguments) {
    std::string line;
    line.append("\"").append(program.Exe()).append("\"");
    if (!arguments.empty()) line.append(" ").append(arguments);
    child = std::make_unique<ChildProcess>(program.Exe(), line);
  }
  // The main window once start-up has ended (the splash is gone), or 0.
  HWND MainWindow() const {
    HWND main = nullptr;
    WaitUntil([&] {
      bool splash = false;
      for (HWND window : child->VisibleWindows()) {
        if (ClassName(window) != kFormClass) continue;
        const std::string title = WindowText(window);
        if (title == "frmSplash")
          splash = true;
        else if (title != "frmShadow")
          main = window;
      }
      return main && !splash;
    });
    return main;
  }
  HWND Element(HWND main, int id) const { return ::GetDlgItem(main, id); }
  // Ends with exit code 0 within the limit and no crash dialog.
  bool EndsCleanly() const {
    return WaitUntil([&] { return child->WaitForExit(0ms); }) && child->ExitCode() == 0;
  }

  testing_support::ScratchFolder place;  // first: the target lies in it
  testing_support::ProgramCopy program;
  std::string target;
  std::unique_ptr<ChildProcess> child;
};

enum class Ending { Silent, EmptyLineMessage, MainWindow };

struct StartCase {
  const char* name;
  std::function<void(Scene&)> prepare;
  std::function<std::string(const Scene&)> arguments;  // the target folder when empty
  Ending ending;
};

// Runs one start and watches how it ends; returns what was seen.
std::string RunStart(Scene& scene, const StartCase& c) {
  scene.Start(c.arguments ? c.arguments(scene) : scene.target);
  if (!scene.child->Started()) return "did not start";
  switch (c.ending) {
    case Ending::Silent: {
      bool windowShown = false;
      WaitUntil([&] {
        for (HWND window : scene.child->VisibleWindows()) {
          windowShown = windowShown || WindowText(window) != "frmSplash";
        }
        return scene.child->WaitForExit(0ms);
      });
      EXPECT_FALSE(windowShown) << "a window other than the splash showed";
      return "ends silently";
    }
    case Ending::EmptyLineMessage: {
      HWND box = scene.child->WaitForWindow(kDialogClass, kRunLimit);
      EXPECT_NE(box, nullptr);
      const std::string title = box ? WindowText(box) : "";
      if (box) ::PostMessageA(box, WM_COMMAND, IDOK, 0);
      return "message box \"" + title + "\", then ends";
    }
    case Ending::MainWindow: {
      HWND main = scene.MainWindow();
      EXPECT_NE(main, nullptr) << "no main window";
      if (!main) return "no main window";
      const auto icons =
          ::SendMessageA(scene.Element(main, ui::ids::lvwIconos), LVM_GETITEMCOUNT, 0, 0);
      ::PostMessageA(main, WM_CLOSE, 0, 0);
      return "main window with " + std::to_string(icons) + " icons listed, closes";
    }
  }
  return {};
}

void Report(const std::string& name, const std::string& outcome,
            std::chrono::steady_clock::time_point start) {
  const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(
      std::chrono::steady_clock::now() - start);
  std::printf("CASE | %s | %s | %lld\n", name.c_str(), outcome.c_str(),
              static_cast<long long>(ms.count()));
}

auto Writes(const std::string& name, std::string bytes) {
  return [=](Scene& s) { WriteWholeFile(s.File(name), bytes); };
}
auto FolderNamed(const std::string& name) {
  return [=](Scene& s) {
    ::DeleteFileA(s.File(name).c_str());
    ::CreateDirectoryA(s.File(name).c_str(), nullptr);
    WriteWholeFile(s.File(name) + "\\inside.txt", "kept");
  };
}
auto InTarget(const std::string& bytes, DWORD attributes = 0) {
  return [=](Scene& s) {
    WriteWholeFile(s.target + "\\Desktop.ini", bytes);
    if (attributes) ::SetFileAttributesA((s.target + "\\Desktop.ini").c_str(), attributes);
  };
}
auto Args(std::function<std::string(const std::string&)> from) {
  return [=](const Scene& s) { return from(s.target); };
}

TEST(ProgramRuns, HostileStartsEndAsDesignedAndKeepEveryFile) {
  const std::string dist = testing_support::DistFolder();
  const std::string tests = testing_support::TestFolder();
  const std::string resource = ReadWholeFile(dist + "Resource.DLL");
  const std::string library = ReadWholeFile(tests + "ICONS120.DLL");
  const auto none = [](Scene&) {};
  const StartCase cases[] = {
      {"command line in quotes", none, Args([](auto t) { return "\"" + t + "\""; }),
       Ending::Silent},
      {"command line with one trailing \\", none, Args([](auto t) { return t + "\\"; }),
       Ending::MainWindow},
      {"command line with one trailing /", none, Args([](auto t) { return t + "/"; }),
       Ending::MainWindow},
      {"command line with two trailing \\", none, Args([](auto t) { return t + "\\\\"; }),
       Ending::Silent},
      {"command line of blanks only", none, Args([](auto) { return std::string("   "); }),
       Ending::EmptyLineMessage},
      {"command line with leading blanks", none, Args([](auto t) { return "  " + t; }),
       Ending::Silent},
      {"command line naming a file", none, Args([](auto t) { return t + "\\photo.jpg"; }),
       Ending::Silent},
      {"command line naming a missing network folder", none,
       Args([](auto) { return std::string("\\\\nohost\\share\\folder"); }), Ending::Silent},
      {"Config.ini of garbage", Writes("Config.ini", Garbage(3000)), {}, Ending::MainWindow},
      {"Config.ini without its keys", Writes("Config.ini", "[Config]\r\n"), {}, Ending::MainWindow},
      {"Config.ini missing",
       [](Scene& s) { ::DeleteFileA(s.File("Config.ini").c_str()); },
       {},
       Ending::MainWindow},
      {"a folder named Config.ini", FolderNamed("Config.ini"), {}, Ending::MainWindow},
      {"LANGUAGE naming a text file",
       Writes("Config.ini", "[Config]\r\nLANGUAGE=notes.txt\r\n"),
       {},
       Ending::Silent},
      {"LANGUAGE naming a folder",
       [](Scene& s) {
         FolderNamed("LANG_XX.DLL")(s);
         WriteWholeFile(s.File("Config.ini"), "[Config]\r\nLANGUAGE=LANG_XX.DLL\r\n");
       },
       {},
       Ending::Silent},
      {"Font of 300 characters",
       Writes("Config.ini", "[Config]\r\nFont=" + std::string(300, 'F')),
       {},
       Ending::MainWindow},
      {"ARA.INI of garbage", Writes("ARA.INI", Garbage(3000)), {}, Ending::MainWindow},
      {"a folder named ARA.INI", FolderNamed("ARA.INI"), {}, Ending::MainWindow},
      {"Resource.DLL cut to its headers",
       Writes("Resource.DLL", Truncated(resource, 1024)),
       {},
       Ending::Silent},
      {"Resource.DLL cut in half",
       Writes("Resource.DLL", Truncated(resource, resource.size() / 2)),
       {},
       Ending::Silent},
      {"Resource.DLL of text", Writes("Resource.DLL", "not a library\r\n"), {}, Ending::Silent},
      {"Resource.DLL with bitmaps of size 0",
       Writes("Resource.DLL", ZeroSizeBitmaps(resource)),
       {},
       Ending::MainWindow},
      {"language library without the strings",
       Writes("LANG_ENG.DLL", ReadWholeFile(tests + "TESTRES.DLL")),
       {},
       Ending::MainWindow},
      {"language library without the strings, blank command line",
       Writes("LANG_ENG.DLL", ReadWholeFile(tests + "TESTRES.DLL")),
       Args([](auto) { return std::string(" "); }), Ending::EmptyLineMessage},
      {"iconos.dll cut in half",
       Writes("iconos.dll", Truncated(library, library.size() / 2)),
       {},
       Ending::MainWindow},
      {"iconos.dll with its resource table past the end",
       Writes("iconos.dll", ResourceTablePastTheEnd(library)),
       {},
       Ending::MainWindow},
      {"iconos.dll an .ico claiming 65535 images",
       Writes("iconos.dll", IconClaiming65535(ReadWholeFile(tests + "icons.ico"))),
       {},
       Ending::MainWindow},
      {"iconos.dll of zero bytes", Writes("iconos.dll", ""), {}, Ending::MainWindow},
      {"a folder named iconos.dll", FolderNamed("iconos.dll"), {}, Ending::MainWindow},
      {"Desktop.ini of garbage at start", InTarget(Garbage(4096)), {}, Ending::MainWindow},
      {"Desktop.ini with a 1 MB line at start",
       InTarget("[.ShellClassInfo]\r\nInfoTip=" + std::string(1 << 20, 'x') + "\r\n"),
       {},
       Ending::MainWindow},
      {"read-only, hidden and system Desktop.ini at start",
       InTarget("[.ShellClassInfo]\r\nIconIndex=2\r\n",
                FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM),
       {},
       Ending::MainWindow},
      {"UTF-16 Desktop.ini at start",
       InTarget(Utf16WithMark(L"[.ShellClassInfo]\r\nIconFile=C:\\x.ico\r\nIconIndex=1\r\n")),
       {},
       Ending::MainWindow},
      {"program folder read-only",
       [](Scene& s) { ::SetFileAttributesA(s.program.Folder().c_str(), FILE_ATTRIBUTE_READONLY); },
       {},
       Ending::MainWindow},
      {"font file cannot be written: a folder named Morvane.ttf",
       FolderNamed("Morvane.ttf"),
       {},
       Ending::Silent},
      {"a folder named Desktop.ini at start",
       [](Scene& s) {
         ::CreateDirectoryA((s.target + "\\Desktop.ini").c_str(), nullptr);
         WriteWholeFile(s.target + "\\Desktop.ini\\inside.txt", "kept");
       },
       {},
       Ending::MainWindow},
  };
  for (const StartCase& c : cases) {
    SCOPED_TRACE(c.name);
    Scene scene;
    c.prepare(scene);
    const Snapshot before = scene.Files();
    const auto start = std::chrono::steady_clock::now();
    std::string outcome = RunStart(scene, c);
    EXPECT_TRUE(scene.EndsCleanly())
        << "crashed, hung or failed: exit code " << scene.child->ExitCode();
    EXPECT_EQ(Differences(before, scene.Files()), "");
    Report(c.name, outcome, start);
  }
}

// Faults that strike while the main window is open: the user picks the
// fifth icon and applies (or removes) after the fault.
class FaultDuringRun : public ::testing::Test {
 protected:
  void SetUp() override {
    scene_.Start(scene_.target);
    main_ = scene_.MainWindow();
    ASSERT_NE(main_, nullptr);
    start_ = std::chrono::steady_clock::now();
  }
  void PickFifthIcon() const {
    e2e::ClickAt(Element(ui::ids::lvwIconos), {kIconSpacing * 4 + kIconSpacing / 2, 21});
  }
  // Clicks apply and answers Yes; false when no question came.
  bool ApplyWithYes() const {
    HWND apply = Element(ui::ids::picAplicar);
    if (!::IsWindowVisible(apply)) return false;
    e2e::ClickAt(apply, e2e::Centre(apply));
    HWND question = scene_.child->WaitForWindow(kDialogClass, kRunLimit);
    if (!question) return false;
    ::PostMessageA(question, WM_COMMAND, IDYES, 0);
    return WaitUntil([&] { return !::IsWindow(question); });
  }
  bool CloseCleanly() const {
    ::PostMessageA(main_, WM_CLOSE, 0, 0);
    return scene_.EndsCleanly();
  }
  HWND Element(int id) const { return ::GetDlgItem(main_, id); }
  std::string Settings(const std::string& key) const {
    return frame::ReadIniValue(".ShellClassInfo", key, scene_.target + "\\Desktop.ini");
  }
  std::string Desktop() const { return scene_.target + "\\Desktop.ini"; }
  void Report(const std::string& name, const std::string& outcome) const {
    ::Report(name, outcome, start_);
  }

  Scene scene_;
  HWND main_ = nullptr;
  std::chrono::steady_clock::time_point start_;
};

TEST_F(FaultDuringRun, TargetDeletedBeforeApply) {
  PickFifthIcon();
  testing_support::DeleteTree(scene_.target);
  EXPECT_TRUE(ApplyWithYes());
  EXPECT_FALSE(testing_support::PathExists(scene_.target)) << "nothing recreated";
  EXPECT_TRUE(::IsWindow(main_));
  EXPECT_TRUE(CloseCleanly());
  Report("target folder deleted before apply", "writes step over; window stays; ends cleanly");
}

TEST_F(FaultDuringRun, TargetMadeReadOnlyBeforeApply) {
  PickFifthIcon();
  ::SetFileAttributesA(scene_.target.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_TRUE(ApplyWithYes());
  const std::string index = Settings("IconIndex");
  EXPECT_TRUE(CloseCleanly());
  Report("target folder made read-only before apply",
         "IconIndex written: \"" + index + "\"; ends cleanly");
}

// Another process holds Desktop.ini open without sharing: apply and remove
// fail to touch it, and it stays whole.
TEST_F(FaultDuringRun, LockedDesktopIniIsLeftWholeByApplyAndRemove) {
  const std::string bytes = "[.ShellClassInfo]\r\nIconIndex=9\r\n";
  WriteWholeFile(Desktop(), bytes);
  HANDLE lock = ::CreateFileA(Desktop().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(lock, INVALID_HANDLE_VALUE);
  PickFifthIcon();
  EXPECT_TRUE(ApplyWithYes());
  EXPECT_TRUE(::IsWindow(main_));

  HWND defaultIcon = Element(ui::ids::picIconoDefaultFolder);
  e2e::DoubleClickAt(defaultIcon, e2e::Centre(defaultIcon));
  HWND question = scene_.child->WaitForWindow(kDialogClass, kRunLimit);
  ASSERT_NE(question, nullptr);
  ::PostMessageA(question, WM_COMMAND, IDYES, 0);
  EXPECT_TRUE(scene_.EndsCleanly());
  ::CloseHandle(lock);
  EXPECT_EQ(ReadWholeFile(Desktop()), bytes);
  Report("Desktop.ini locked by another process: apply, then remove",
         "both step over the file, which stays whole; ends cleanly");
}

TEST_F(FaultDuringRun, IconFileDeletedBetweenListingAndSelection) {
  ASSERT_TRUE(::DeleteFileA(scene_.File("iconos.dll").c_str()));
  PickFifthIcon();
  const bool applied = ApplyWithYes();
  const std::string file = Settings("IconFile"), index = Settings("IconIndex");
  EXPECT_TRUE(CloseCleanly());
  Report("icon file deleted between listing and selection",
         applied ? "apply writes IconFile \"" + file + "\", IconIndex " + index
                 : std::string("selection ignored, nothing to apply"));
}

}  // namespace
