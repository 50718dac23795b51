#include "frame/Startup.h"

#include <gtest/gtest.h>

#include "support/TestSupport.h"

namespace {

using frame::ChooseLanguageFile;
using frame::CommandLineArguments;
using frame::TargetFolderFrom;
using testing_support::ScratchFolder;
using testing_support::WriteWholeFile;

TEST(CommandLineArguments, IsEverythingAfterTheProgramNameAndOneBlank) {
  EXPECT_EQ(CommandLineArguments("\"C:\\Program Files\\Morvane.exe\" D:\\Photos"), "D:\\Photos");
  EXPECT_EQ(CommandLineArguments("Morvane.exe D:\\My Photos"), "D:\\My Photos");
  EXPECT_EQ(CommandLineArguments("Morvane.exe\tD:\\x"), "D:\\x");
  EXPECT_EQ(CommandLineArguments("\"Morvane.exe\"D:\\x"), "D:\\x");
  EXPECT_EQ(CommandLineArguments("Morvane.exe"), "");
  EXPECT_EQ(CommandLineArguments("\"Morvane.exe\""), "");
  EXPECT_EQ(CommandLineArguments("\"unterminated D:\\x"), "");
}

TEST(CommandLineArguments, KeepsQuotesAndFurtherBlanks) {
  EXPECT_EQ(CommandLineArguments("Morvane.exe \"D:\\My Photos\""), "\"D:\\My Photos\"");
  EXPECT_EQ(CommandLineArguments("Morvane.exe   D:\\x  "), "  D:\\x  ");
  EXPECT_EQ(CommandLineArguments("Morvane.exe    "), "   ");
}

TEST(TargetFolderFrom, DropsOneTrailingSeparatorOnly) {
  EXPECT_EQ(TargetFolderFrom("D:\\Photos\\"), "D:\\Photos");
  EXPECT_EQ(TargetFolderFrom("D:\\Photos/"), "D:\\Photos");
  EXPECT_EQ(TargetFolderFrom("D:\\Photos\\\\"), "D:\\Photos\\");
  EXPECT_EQ(TargetFolderFrom("D:\\Photos"), "D:\\Photos");
  EXPECT_EQ(TargetFolderFrom("\\"), "");
  EXPECT_EQ(TargetFolderFrom(""), "");
}

class ChooseLanguageFileTest : public ::testing::Test {
 protected:
  std::string Folder() const { return folder_.Path() + "\\"; }
  void Touch(const std::string& name) { WriteWholeFile(folder_ / name, "x"); }
  ScratchFolder folder_;
};

TEST_F(ChooseLanguageFileTest, PrefersTheConfiguredLibrary) {
  Touch("LANG_ENG.DLL");
  Touch("LANG_ESP.DLL");
  WriteWholeFile(folder_ / "Config.ini", "[Config]\r\nLANGUAGE=LANG_ESP.DLL\r\nFont=Tahoma\r\n");
  EXPECT_EQ(ChooseLanguageFile(Folder()), "LANG_ESP.DLL");

  WriteWholeFile(folder_ / "Config.ini", "[Config]\r\nLANGUAGE=LANG_XYZ.DLL\r\n");
  EXPECT_EQ(ChooseLanguageFile(Folder()), "LANG_XYZ.DLL") << "even one that is missing";
}

TEST_F(ChooseLanguageFileTest, OtherwiseEnglishThenSpanishThenNothing) {
  EXPECT_EQ(ChooseLanguageFile(Folder()), "");
  Touch("LANG_ESP.DLL");
  EXPECT_EQ(ChooseLanguageFile(Folder()), "LANG_ESP.DLL");
  Touch("LANG_ENG.DLL");
  WriteWholeFile(folder_ / "Config.ini", "[Config]\r\nFont=Tahoma\r\n");
  EXPECT_EQ(ChooseLanguageFile(Folder()), "LANG_ENG.DLL");
}

}  // namespace
