// The program's decisions, called with plain parameters on scratch folders.
#include <gtest/gtest.h>
#include <shlobj.h>

#include "core/DefaultFolderIcon.h"
#include "core/FolderCustomisation.h"
#include "core/IconBrowser.h"
#include "core/RecentIconFiles.h"
#include "platform/IniFile.h"
#include "platform/ResourceLibrary.h"
#include "platform/ShellIcon.h"
#include "platform/Utf8.h"
#include "support/TestSupport.h"

namespace {

using testing_support::Attributes;
using testing_support::Notification;
using testing_support::ReadFile;
using testing_support::WriteFile;

// The bytes of a profile file holding `text`: UTF-16 after a byte-order
// mark, or ANSI.
std::string ProfileBytes(const std::string& text, bool unicode) {
  if (unicode) return testing_support::Utf16File(text);
  const std::wstring wide = platform::Wide(text);
  std::string bytes(wide.size() * 2, '\0');
  bytes.resize(::WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()),
                                     bytes.data(), static_cast<int>(bytes.size()), nullptr,
                                     nullptr));
  return bytes;
}

class FolderTest : public ::testing::Test {
 protected:
  void SetUp() override { language_.Open(testing_support::DistFolder() + "LANG_ENG.DLL"); }
  std::string Folder() const { return scratch_.Path(); }
  std::string SettingsFile() const { return core::SettingsFilePath(Folder()); }
  platform::ResourceLibrary language_;
  testing_support::ScratchFolder scratch_;
  testing_support::RecordingNotifier shell_;
};

TEST_F(FolderTest, ANewDesktopIniGetsTheDefaultsTheTipAndTheMark) {
  core::FolderSettings settings{7, 7, "C:\\icons\\set.dll", 2, "  "};
  core::WriteFolderSettings(Folder(), settings, true, language_);
  EXPECT_EQ(ReadFile(SettingsFile()),
            "[.ShellClassInfo]\r\nConfirmFileOp=1\r\nNoSharing=0\r\nIconFile=C:\\icons\\set.dll\r\n"
            "IconIndex=2\r\nInfoTip=Folder customized with Morvane - Folder icons and info tips."
            "  \xA9 2026 Morvane Software\r\n[Morvane]\r\nMark=-1\r\n");
  EXPECT_EQ(settings.confirmFileOp, 1);
  EXPECT_EQ(settings.infoTip.substr(0, 22), "Folder customized with");
}

// An existing file keeps its other sections and keys, and a key its place;
// it becomes UTF-16 only when a text needs it, as Explorer keeps such files.
TEST_F(FolderTest, AnExistingDesktopIniKeepsWhatItHeldAndTurnsUnicodeOnlyWhenNeeded) {
  const std::string before =
      "[ViewState]\r\nMode=café\r\n[.ShellClassInfo]\r\nIconResource=x,-3\r\n";
  struct Row {
    const char* name;
    bool unicodeBefore;
    std::string iconFile, tip;
    bool unicodeAfter;
  } rows[] = {{"ANSI file and text", false, "c:\\café.ico", "año", false},
              {"a Chinese icon path", false, "c:\\写真\\a.ico", "año", true},
              {"a Greek info tip", false, "c:\\a.ico", "Ελλάδα", true},
              {"a Unicode file stays so", true, "c:\\a.ico", "año", true}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    WriteFile(SettingsFile(), ProfileBytes(before + "InfoTip=old\r\n", row.unicodeBefore));
    core::FolderSettings settings{5, 1, row.iconFile, 2, row.tip};
    core::WriteFolderSettings(Folder(), settings, false, language_);
    const std::string after = before + "InfoTip=" + row.tip +
                              "\r\nConfirmFileOp=5\r\nNoSharing=1\r\n" +
                              "IconFile=" + row.iconFile + "\r\nIconIndex=2\r\n";
    EXPECT_EQ(ReadFile(SettingsFile()), ProfileBytes(after, row.unicodeAfter))
        << "no mark in a file that existed";
    core::FolderSettings read;
    core::ReadFolderSettings(Folder(), read);
    EXPECT_EQ(read.iconFile + read.infoTip, row.iconFile + row.tip) << "read in either form";
  }
}

TEST_F(FolderTest, ApplyMarksFileAndFolderAndAnnouncesBothInOrder) {
  WriteFile(SettingsFile(), "[.ShellClassInfo]\r\n");
  ::SetFileAttributesA(SettingsFile().c_str(), FILE_ATTRIBUTE_READONLY);
  ::SetFileAttributesA(Folder().c_str(), FILE_ATTRIBUTE_HIDDEN);
  core::FolderSettings settings{0, 0, "C:\\x.ico", 0, "tip"};
  core::ApplyFolderIcon(Folder(), settings, false, language_, shell_);
  // The file's own read-only bit goes: it takes the folder's word. Wine
  // reports every plain file as archived.
  EXPECT_EQ(Attributes(SettingsFile()),
            DWORD{FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE});
  EXPECT_EQ(Attributes(Folder()),
            DWORD{FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_HIDDEN});
  const std::string image = std::to_string(platform::SystemIconIndex(Folder()));
  EXPECT_EQ(shell_.calls, (std::vector<Notification>{{SHCNE_ATTRIBUTES, SettingsFile()},
                                                     {SHCNE_ATTRIBUTES, Folder()},
                                                     {SHCNE_UPDATEIMAGE, image},
                                                     {SHCNE_ASSOCCHANGED, ""}}));
}

TEST_F(FolderTest, RemovalDeletesOnlyItsFilesAndUnmarksTheFolder) {
  WriteFile(SettingsFile(), "[.ShellClassInfo]\r\n");
  ::SetFileAttributesA(SettingsFile().c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_SYSTEM);
  WriteFile(scratch_ / "morvane.ico", "icon");
  WriteFile(scratch_ / "other.ico", "icon");
  ::SetFileAttributesA(Folder().c_str(), FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_HIDDEN);
  core::DeleteCustomisationFiles(Folder());
  core::UnmarkFolder(Folder(), shell_);
  EXPECT_EQ(Attributes(SettingsFile()), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(Attributes(scratch_ / "morvane.ico"), INVALID_FILE_ATTRIBUTES);
  EXPECT_NE(Attributes(scratch_ / "other.ico"), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(Attributes(Folder()), DWORD{FILE_ATTRIBUTE_DIRECTORY});
  const std::string image = std::to_string(platform::SystemIconIndex(Folder()));
  EXPECT_EQ(shell_.calls, (std::vector<Notification>{{SHCNE_ATTRIBUTES, Folder()},
                                                     {SHCNE_UPDATEIMAGE, image},
                                                     {SHCNE_ASSOCCHANGED, ""}}));
}

TEST_F(FolderTest, RecentFilesGoOnTopOnceAndAreSavedUnderTheirNumbers) {
  const std::string ini = scratch_ / core::kRecentFileName;
  WriteFile(ini, "[Recent]\r\nARA01=c:\\a.ico\r\nARA03=c:\\c.ico\r\n");
  core::RecentIconFiles recent(ini);
  recent.Load();
  EXPECT_EQ(recent.List()[1], "");
  EXPECT_EQ(recent.PositionOf("c:\\c.ico"), 3);
  recent.Remember("c:\\c.ico");
  EXPECT_EQ(recent.List()[0], "c:\\a.ico") << "a listed path does not move";
  for (int n = 1; n <= 12; ++n) recent.Remember("c:\\" + std::to_string(n) + ".ico");
  core::RecentIconFiles reread(ini);
  reread.Load();
  EXPECT_EQ(reread.List(), recent.List());
  EXPECT_EQ(reread.List()[0], "c:\\12.ico");
  EXPECT_EQ(reread.PositionOf("c:\\a.ico"), 0);
  EXPECT_EQ(platform::ReadIniValue("Recent", "ARA10", ini), "c:\\3.ico");
}

TEST(IconBrowserTexts, PathsToOpenAreTrimmedLoweredAndNeverTheLastOne) {
  struct Row {
    const char* typed;
    const char* last;
    std::optional<std::string> expected;
  } rows[] = {{"  C:\\Icons\\A.ICO ", "", "c:\\icons\\a.ico"},
              {"C:\\Icons\\A.ICO", "c:\\icons\\a.ico", std::nullopt},
              {"   ", "", std::nullopt},
              {"\tx.dll", "", "\tx.dll"}};
  for (const Row& row : rows) {
    EXPECT_EQ(core::IconPathToOpen(row.typed, row.last), row.expected) << row.typed;
  }
}

TEST(DefaultFolderIcon, LocationsSplitAtTheFirstComma) {
  struct Row {
    const char* location;
    const char* file;
    std::optional<std::int32_t> index;
  } rows[] = {{"shell32.dll,3", "shell32.dll", 3},
              {"c:\\x.ico", "c:\\x.ico", 0},
              {"a.dll,-4", "a.dll", -4},
              {"c:\\a,b\\x.dll,2", "c:\\a", std::nullopt},
              {"x.dll, 5 ", "x.dll", 5}};
  for (const Row& row : rows) {
    EXPECT_EQ(core::IconLocationFile(row.location), row.file) << row.location;
    EXPECT_EQ(core::IconLocationIndex(row.location), row.index) << row.location;
  }
  // The shell's override comes first; the system stores it with its NUL.
  const core::RegistryPlace place = core::ShellFolderIconPlace();
  HKEY key = nullptr;
  ASSERT_EQ(::RegCreateKeyA(place.hive, place.keyName.c_str(), &key), ERROR_SUCCESS);
  const char location[] = "c:\\icons\\f.dll,-7";
  ::RegSetValueExA(key, place.valueName.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(location),
                   sizeof location);
  EXPECT_EQ(core::DefaultFolderIcon(), (core::IconLocation{"c:\\icons\\f.dll", -7}));
  ::RegDeleteValueA(key, place.valueName.c_str());
  ::RegCloseKey(key);
}

}  // namespace
