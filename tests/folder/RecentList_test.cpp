#include "folder/RecentList.h"

#include <gtest/gtest.h>

#include "folder/TextRules.h"
#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "frame/modINI.h"
#include "resource_ids.h"
#include "support/DialogAnswerer.h"
#include "support/TestSupport.h"
#include "toolkit/ScopedHandle.h"

namespace {

using testing_support::ReadWholeFile;
using testing_support::ScratchFolder;
using testing_support::WriteWholeFile;
using Lines = std::vector<std::string>;

// The drop-down box: selecting a line raises its choose event, as the real
// box does for the main window.
class RecordingBox : public folder::RecentBox {
 public:
  void Clear() override {
    lines.clear();
    selected = -1;
    log.push_back("clear");
  }
  void AddItem(const std::string& text) override { lines.push_back(text); }
  void SetListIndex(int index) override {
    selected = index;
    log.push_back("select " + std::to_string(index));
    list->OnChoose();
  }
  std::string Text() const override {
    return selected >= 0 && selected < static_cast<int>(lines.size()) ? lines[selected] : "";
  }

  folder::RecentList* list = nullptr;
  Lines lines, log;
  int selected = -1;
};

class RecordingLoader : public folder::IconFileLoader {
 public:
  void CargarIconosdeArchivo() override { loaded.push_back(frame::currentIconFile); }
  Lines loaded;
};

class RecentListTest : public ::testing::Test {
 protected:
  void SetUp() override {
    frame::programFolder = program_.Path() + "\\";
    frame::currentIconFile.clear();
    box_.list = &list_;
  }
  void TearDown() override { frame::programFolder.clear(); }

  // An existing icon file, named in capitals; returned as the list stores it.
  std::string IconFile(const std::string& name) {
    WriteWholeFile(icons_ / name, "icon");
    return folder::LowerCase(icons_ / name);
  }
  std::string RecentFile() const { return program_ / "ARA.INI"; }
  std::string Stored(int position) const {
    char key[8];
    std::snprintf(key, sizeof key, "ARA%02d", position);
    return frame::ReadIniValue("Recent", key, RecentFile());
  }
  void Open(std::string path) { list_.OpenIconFile(path); }

  ScratchFolder program_, icons_;
  RecordingBox box_;
  RecordingLoader loader_;
  folder::RecentList list_{box_, loader_};
};

TEST_F(RecentListTest, OpensATrimmedLowerCasePathOnceAndSelectsItsLine) {
  const std::string path = IconFile("TOOLS.ICO");
  std::string typed = "  " + icons_ / "TOOLS.ICO" + " ";
  list_.OpenIconFile(typed);

  EXPECT_EQ(typed, path);
  EXPECT_EQ(Stored(1), path);
  EXPECT_EQ(box_.lines, Lines({path, "", "", "", "", "", "", "", "", ""}));
  // The selection's choose event came back and stopped: one fill, one load.
  EXPECT_EQ(box_.log, Lines({"clear", "select 0"}));
  EXPECT_EQ(loader_.loaded, Lines{path});
  EXPECT_EQ(frame::currentIconFile, path);

  const std::string bytes = ReadWholeFile(RecentFile());
  Open(path);
  EXPECT_EQ(box_.log.size(), 2u);
  EXPECT_EQ(loader_.loaded.size(), 1u);
  EXPECT_EQ(ReadWholeFile(RecentFile()), bytes);
}

TEST_F(RecentListTest, AnEleventhFileDropsTheOldestAndAListedFileKeepsItsPlace) {
  Lines files;
  for (int n = 1; n <= 11; ++n) files.push_back(IconFile(std::to_string(n) + "TH.ICO"));
  for (const std::string& file : files) Open(file);
  EXPECT_EQ(Stored(1), files[10]);
  EXPECT_EQ(Stored(10), files[1]);
  EXPECT_EQ(list_.List().back(), files[1]);

  Open(files[4]);  // listed at position 7
  EXPECT_EQ(Stored(7), files[4]);
  EXPECT_EQ(box_.selected, 6);
  EXPECT_EQ(loader_.loaded.back(), files[4]);
  EXPECT_EQ(list_.LastOpenedPosition(), 7);
}

TEST_F(RecentListTest, AnUnwritableRecentFileLeavesTheListAsItWas) {
  const std::string old = IconFile("OLD.ICO"), added = IconFile("NEW.ICO");
  WriteWholeFile(RecentFile(), "[Recent]\r\nARA01=" + old + "\r\n");
  list_.LeerARA();
  // Running as root under Wine, permissions do not stop a write; a handle
  // that shares reading only does.
  {
    toolkit::ScopedKernelHandle held(::CreateFileA(
        RecentFile().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_NE(held.get(), INVALID_HANDLE_VALUE);
    Open(added);
  }

  EXPECT_EQ(ReadWholeFile(RecentFile()), "[Recent]\r\nARA01=" + old + "\r\n");
  EXPECT_EQ(box_.lines[0], old);
  EXPECT_EQ(box_.lines[1], "");
  EXPECT_EQ(loader_.loaded, Lines{added});
  EXPECT_EQ(box_.selected, -1);
  EXPECT_EQ(frame::currentIconFile, "");
}

TEST_F(RecentListTest, AMissingFileIsReportedAndChangesNothing) {
  frame::LanguageLibrary().DllName(testing_support::DistFolder() + "LANG_ENG.DLL");
  testing_support::DialogAnswerer user(IDOK);
  Open(icons_ / "gone.ico");

  auto seen = user.Seen();
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(seen[0].text, frame::LanguageLibrary().LoadDllString(IDS_MISSING_FILE_PROMPT));
  EXPECT_EQ(seen[0].title, frame::LanguageLibrary().LoadDllString(IDS_MISSING_FILE_TITLE));
  EXPECT_EQ(seen[0].buttons, std::vector<int>{IDOK});
  EXPECT_EQ(seen[0].icon, ::LoadIconA(nullptr, IDI_EXCLAMATION));
  EXPECT_FALSE(testing_support::PathExists(RecentFile()));
  EXPECT_TRUE(box_.log.empty());
  EXPECT_TRUE(loader_.loaded.empty());
  frame::ReleaseLibraries();
}

}  // namespace
