// Starts the real Morvane.exe from a copy of the shipping folder and watches
// from outside how it ends: the message it shows, the windows it opens, the
// files it leaves.
#include <gtest/gtest.h>

#include <chrono>

#include "frame/CResDll.h"
#include "resource_ids.h"
#include "support/TestSupport.h"

namespace {

using namespace std::chrono_literals;
using testing_support::ChildProcess;
using testing_support::ClassName;
using testing_support::PathExists;
using testing_support::ProgramCopy;
using testing_support::ScratchFolder;
using testing_support::WindowText;
using testing_support::WriteWholeFile;

constexpr auto kStartLimit = 15s;
constexpr char kDialogClass[] = "#32770";
constexpr char kFormClass[] = "MorvaneForm";

std::string StringOf(const std::string& library, int id) {
  frame::CResDll dll;
  dll.DllName(testing_support::DistFolder() + library);
  return dll.LoadDllString(id);
}

// What a standard message box shows, read from its controls.
struct MessageBoxView {
  std::string title, text;
  std::vector<std::string> buttons;
  bool showsIcon = false;
};

MessageBoxView Inspect(HWND box) {
  MessageBoxView view;
  view.title = WindowText(box);
  for (HWND child : testing_support::Children(box)) {
    if (!::IsWindowVisible(child)) continue;
    std::string kind = ClassName(child);
    LONG style = ::GetWindowLongA(child, GWL_STYLE);
    if (kind == "Button") {
      view.buttons.push_back(WindowText(child));
    } else if (kind == "Static" && (style & SS_TYPEMASK) == SS_ICON) {
      view.showsIcon = view.showsIcon || ::SendMessageA(child, STM_GETICON, 0, 0) != 0;
    } else if (kind == "Static") {
      view.text += WindowText(child);
    }
  }
  return view;
}

// Morvane run from its own copy of the shipping folder. A font file stands
// beside it: an orderly end deletes it, a sudden end leaves it.
class MorvaneRun : public ::testing::Test {
 protected:
  void SetUp() override { WriteWholeFile(FontFile(), "stale font"); }

  std::unique_ptr<ChildProcess> Start(const std::string& arguments) {
    // Built by appending: GCC 12 misreports "x" + string here (-Wrestrict).
    std::string commandLine;
    commandLine.append("\"").append(program_.Exe()).append("\"");
    if (!arguments.empty()) commandLine.append(" ").append(arguments);
    auto child = std::make_unique<ChildProcess>(program_.Exe(), commandLine);
    EXPECT_TRUE(child->Started());
    return child;
  }

  // Runs to the end, failing if a window other than the splash shows on the
  // way (the splash only when it may).
  void ExpectSilentEnd(const std::string& arguments, bool splashMayShow = false) {
    auto child = Start(arguments);
    auto deadline = std::chrono::steady_clock::now() + kStartLimit;
    while (!child->WaitForExit(20ms) && std::chrono::steady_clock::now() < deadline) {
      for (HWND window : child->VisibleWindows()) {
        ASSERT_TRUE(splashMayShow && WindowText(window) == "frmSplash")
            << WindowText(window) << " showed for: " << arguments;
      }
    }
    ASSERT_EQ(child->ExitCode(), 0u) << arguments;
  }

  std::string FontFile() const { return program_.File("Morvane.ttf"); }

  ProgramCopy program_;
  ScratchFolder target_;
};

TEST_F(MorvaneRun, EmptyCommandLineShowsTheMessageThenEnds) {
  auto child = Start("");
  HWND box = child->WaitForWindow(kDialogClass, kStartLimit);
  ASSERT_NE(box, nullptr);
  MessageBoxView view = Inspect(box);
  EXPECT_EQ(view.title, "Morvane");
  EXPECT_EQ(view.text, StringOf("LANG_ENG.DLL", IDS_EMPTY_COMMAND_LINE));
  EXPECT_EQ(view.buttons, std::vector<std::string>{"OK"});
  EXPECT_FALSE(view.showsIcon);

  ::PostMessageA(box, WM_COMMAND, IDOK, 0);
  ASSERT_TRUE(child->WaitForExit(kStartLimit));
  EXPECT_EQ(child->ExitCode(), 0u);
  EXPECT_FALSE(PathExists(FontFile())) << "ended through the orderly end";
}

TEST_F(MorvaneRun, BlanksOnlyCountAsAnEmptyCommandLineInTheConfiguredLanguage) {
  WriteWholeFile(program_.File("Config.ini"),
                 "[Config]\r\nLANGUAGE=LANG_ESP.DLL\r\nFont=Tahoma\r\n");
  auto child = Start("   ");
  HWND box = child->WaitForWindow(kDialogClass, kStartLimit);
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(Inspect(box).text, StringOf("LANG_ESP.DLL", IDS_EMPTY_COMMAND_LINE));
  ::PostMessageA(box, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(child->WaitForExit(kStartLimit));
}

TEST_F(MorvaneRun, WithoutConfigEnglishIsChosenAndWithOnlySpanishSpanish) {
  ::DeleteFileA(program_.File("Config.ini").c_str());
  {
    auto child = Start("");
    HWND box = child->WaitForWindow(kDialogClass, kStartLimit);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(Inspect(box).text, StringOf("LANG_ENG.DLL", IDS_EMPTY_COMMAND_LINE));
  }
  ::DeleteFileA(program_.File("LANG_ENG.DLL").c_str());
  auto child = Start("");
  HWND box = child->WaitForWindow(kDialogClass, kStartLimit);
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(Inspect(box).text, StringOf("LANG_ESP.DLL", IDS_EMPTY_COMMAND_LINE));
}

TEST_F(MorvaneRun, AMissingLibraryEndsSilentlyThroughTheOrderlyEnd) {
  ::DeleteFileA(program_.File("Resource.DLL").c_str());
  ExpectSilentEnd("");
  EXPECT_FALSE(PathExists(FontFile()));
}

TEST_F(MorvaneRun, AnUnloadableLanguageEndsSilently) {
  for (const char* config :
       {"[Config]\r\nLANGUAGE=LANG_XYZ.DLL\r\n", "[Config]\r\nLANGUAGE=Config.ini\r\n"}) {
    WriteWholeFile(program_.File("Config.ini"), config);
    ExpectSilentEnd(target_.Path());
  }
  WriteWholeFile(program_.File("Config.ini"), "[Config]\r\n");
  ::DeleteFileA(program_.File("LANG_ENG.DLL").c_str());
  ::DeleteFileA(program_.File("LANG_ESP.DLL").c_str());
  ExpectSilentEnd("");
}

// Resource.DLL without the font: the main window gives up before it shows.
TEST_F(MorvaneRun, WithoutItsFontTheProgramEndsSilentlyAndInOrder) {
  ASSERT_TRUE(::CopyFileA((testing_support::TestFolder() + "NOFONT.DLL").c_str(),
                          program_.File("Resource.DLL").c_str(), FALSE));
  ExpectSilentEnd(target_.Path(), true);
  EXPECT_FALSE(PathExists(FontFile())) << "ended through the close sequence";
}

TEST_F(MorvaneRun, AReadOnlyFontFileFromAnEarlierRunIsUsed) {
  frame::CResDll pictures;
  pictures.DllName(program_.File("Resource.DLL"));
  WriteWholeFile(FontFile(), pictures.LoadDllData(6000));
  ASSERT_TRUE(::SetFileAttributesA(FontFile().c_str(), FILE_ATTRIBUTE_READONLY));
  auto child = Start(target_.Path());
  HWND main = child->WaitForWindow(kFormClass, kStartLimit, "Morvane");
  ASSERT_NE(main, nullptr);
  ::PostMessageA(main, WM_CLOSE, 0, 0);
  EXPECT_TRUE(child->WaitForExit(kStartLimit));
}

TEST_F(MorvaneRun, ATargetThatIsNoFolderEndsAtOnceWithoutCleanUp) {
  WriteWholeFile(target_ / "file.txt", "x");
  for (const std::string& arguments :
       {target_ / "missing", target_ / "file.txt", target_.Path() + "\\\\",
        "\"" + target_.Path() + "\"", " " + target_.Path(), std::string("\\\\nohost\\share")}) {
    ExpectSilentEnd(arguments);
    EXPECT_TRUE(PathExists(FontFile())) << arguments;
  }
}

TEST_F(MorvaneRun, AFolderWithOneTrailingSeparatorOpensTheMainWindow) {
  for (const std::string& arguments :
       {target_.Path(), target_.Path() + "\\", target_.Path() + "/"}) {
    WriteWholeFile(FontFile(), "stale font");
    auto child = Start(arguments);
    HWND main = child->WaitForWindow(kFormClass, kStartLimit, "Morvane");
    ASSERT_NE(main, nullptr) << arguments;
    EXPECT_EQ(WindowText(main), StringOf("LANG_ENG.DLL", IDS_PRODUCT_NAME) + " - " +
                                    StringOf("LANG_ENG.DLL", IDS_PRODUCT_TAGLINE));
    ::PostMessageA(main, WM_CLOSE, 0, 0);
    ASSERT_TRUE(child->WaitForExit(kStartLimit));
    EXPECT_EQ(child->ExitCode(), 0u);
    EXPECT_FALSE(PathExists(FontFile())) << "closed through the orderly end: " << arguments;
  }
}

TEST_F(MorvaneRun, ASecondCopyEndsAtOnceWhileTheFirstRuns) {
  auto first = Start("");
  HWND box = first->WaitForWindow(kDialogClass, kStartLimit);
  ASSERT_NE(box, nullptr);

  for (const std::string& arguments : {std::string(), target_.Path()}) {
    WriteWholeFile(FontFile(), "stale font");
    ExpectSilentEnd(arguments);
    EXPECT_TRUE(PathExists(FontFile())) << "the second copy must not clean up";
  }

  ::PostMessageA(box, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(first->WaitForExit(kStartLimit));
}

}  // namespace
