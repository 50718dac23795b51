#include "folder/FolderSettings.h"

#include "FolderFixture.h"

namespace {

using folder::FolderSettings;
using testing_support::ReadWholeFile;
using testing_support::WriteWholeFile;

using FolderSettingsTest = FolderFixture;

TEST_F(FolderSettingsTest, ANewFileGetsTheDefaultsTheComposedTipAndTheMark) {
  FolderSettings = {7, 5, "C:\\icons\\set.dll", -3, "   "};
  folder::WriteFolderSettings();
  const std::string expected =
      "[.ShellClassInfo]\r\n"
      "ConfirmFileOp=1\r\n"
      "NoSharing=0\r\n"
      "IconFile=C:\\icons\\set.dll\r\n"
      "IconIndex=-3\r\n"
      "InfoTip=Folder customized with Morvane - Folder icons and info tips.  \xA9 2026 Morvane "
      "Software\r\n"
      "[Morvane]\r\n"
      "Mark=-1\r\n";
  EXPECT_EQ(ReadWholeFile(SettingsFile()), expected);

  // The file still counts as new for the rest of the run.
  FolderSettings.noSharing = 9;
  folder::WriteFolderSettings();
  EXPECT_EQ(ReadWholeFile(SettingsFile()), expected);
}

TEST_F(FolderSettingsTest, AnExistingFileKeepsItsPlacesAndOtherSectionsAndRepairsNumbers) {
  WriteWholeFile(SettingsFile(),
                 "[.ShellClassInfo]\r\nIconIndex=abc\r\nIconFile=C:\\old.ico\r\n"
                 "[ViewState]\r\nFolderType=Pictures\r\n[Morvane]\r\nMark=-1\r\n");
  folder::settingsFileExisted = true;
  FolderSettings.confirmFileOp = 4;
  folder::ReadFolderSettings();
  EXPECT_EQ(FolderSettings.iconIndex, 0);
  EXPECT_EQ(FolderSettings.confirmFileOp, 4) << "a missing number leaves its field";
  EXPECT_EQ(FolderSettings.iconFile, "C:\\old.ico");

  FolderSettings.confirmFileOp = 0;
  FolderSettings.infoTip = "typed";
  folder::WriteFolderSettings();
  EXPECT_EQ(ReadWholeFile(SettingsFile()),
            "[.ShellClassInfo]\r\nIconIndex=0\r\nIconFile=C:\\old.ico\r\nConfirmFileOp=0\r\n"
            "NoSharing=0\r\nInfoTip=typed\r\n"
            "[ViewState]\r\nFolderType=Pictures\r\n[Morvane]\r\nMark=-1\r\n");
}

TEST_F(FolderSettingsTest, AnInfoTipWithALineBreakIsWrittenWholeAndReadToTheBreak) {
  folder::settingsFileExisted = true;
  FolderSettings = {1, 0, "C:\\a.ico", 12, "first line\r\nsecond line"};
  folder::WriteFolderSettings();
  EXPECT_NE(ReadWholeFile(SettingsFile()).find("InfoTip=first line\r\nsecond line\r\n"),
            std::string::npos);

  FolderSettings = {};
  folder::ReadFolderSettings();
  EXPECT_EQ(FolderSettings.infoTip, "first line");
  EXPECT_EQ(FolderSettings.iconIndex, 12);
  EXPECT_EQ(FolderSettings.confirmFileOp, 1);
}

}  // namespace
