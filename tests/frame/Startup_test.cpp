#include "frame/Startup.h"

#include <gtest/gtest.h>

#include "support/TestSupport.h"

namespace {

TEST(CommandLine, ArgumentsAreEverythingAfterTheProgramNameAndOneBlankUnchanged) {
  const std::pair<std::string, std::string> cases[] = {
      {"\"C:\\Program Files\\Morvane.exe\" D:\\Photos", "D:\\Photos"},
      {"Morvane.exe D:\\My Photos", "D:\\My Photos"},
      {"Morvane.exe\tD:\\x", "D:\\x"},
      {"\"Morvane.exe\"D:\\x", "D:\\x"},
      {"Morvane.exe", ""},
      {"\"Morvane.exe\"", ""},
      {"\"unterminated D:\\x", ""},
      {"Morvane.exe \"D:\\My Photos\"", "\"D:\\My Photos\""},
      {"Morvane.exe   D:\\x  ", "  D:\\x  "},
      {"Morvane.exe    ", "   "},
  };
  for (const auto& [line, arguments] : cases) {
    EXPECT_EQ(frame::CommandLineArguments(line), arguments) << line;
  }
}

TEST(CommandLine, TheTargetFolderLosesOneTrailingSeparatorOnly) {
  const std::pair<std::string, std::string> cases[] = {
      {"D:\\Photos\\", "D:\\Photos"},
      {"D:\\Photos/", "D:\\Photos"},
      {"D:\\Photos\\\\", "D:\\Photos\\"},
      {"D:\\Photos", "D:\\Photos"},
      {"\\", ""},
      {"", ""},
  };
  for (const auto& [arguments, folder] : cases) {
    EXPECT_EQ(frame::TargetFolderFrom(arguments), folder) << arguments;
  }
}

TEST(ChooseLanguageFile, TheConfiguredLibraryElseEnglishElseSpanishElseNothing) {
  testing_support::ScratchFolder folder;
  const std::string path = folder.Path() + "\\";
  auto write = [&](const std::string& name, const std::string& text) {
    testing_support::WriteWholeFile(folder / name, text);
  };
  EXPECT_EQ(frame::ChooseLanguageFile(path), "");
  write("LANG_ESP.DLL", "x");
  EXPECT_EQ(frame::ChooseLanguageFile(path), "LANG_ESP.DLL");
  write("LANG_ENG.DLL", "x");
  write("Config.ini", "[Config]\r\nFont=Tahoma\r\n");
  EXPECT_EQ(frame::ChooseLanguageFile(path), "LANG_ENG.DLL");
  write("Config.ini", "[Config]\r\nLANGUAGE=LANG_ESP.DLL\r\n");
  EXPECT_EQ(frame::ChooseLanguageFile(path), "LANG_ESP.DLL");
  write("Config.ini", "[Config]\r\nLANGUAGE=LANG_XYZ.DLL\r\n");
  EXPECT_EQ(frame::ChooseLanguageFile(path), "LANG_XYZ.DLL") << "even one that is missing";
}

}  // namespace
