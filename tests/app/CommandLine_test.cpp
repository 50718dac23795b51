// How start-up reads its command line and picks its language library.
#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "support/TestSupport.h"

namespace {

TEST(CommandLine, TheFolderIsEverythingAfterTheProgramName) {
  struct Row {
    const char* full;
    const char* arguments;
    const char* folder;
    bool blank;
  } rows[] = {
      {"\"C:\\Program Files\\M.exe\" D:\\Holiday  Photos\\", "D:\\Holiday  Photos\\",
       "D:\\Holiday  Photos", false},
      {"M.exe  C:\\a/", " C:\\a/", " C:\\a", false},
      {"M.exe C:\\a\\\\", "C:\\a\\\\", "C:\\a\\", false},
      {"\"M.exe\"", "", "", true},
      {"M.exe    ", "   ", "   ", true},
      {"\"unclosed C:\\a", "", "", true},
  };
  for (const Row& row : rows) {
    const std::string arguments = app::CommandLineArguments(row.full);
    EXPECT_EQ(arguments, row.arguments) << row.full;
    EXPECT_EQ(app::TargetFolderFrom(arguments), row.folder) << row.full;
    EXPECT_EQ(app::IsBlankCommandLine(arguments), row.blank) << row.full;
  }
}

TEST(CommandLine, ConfigIniNamesTheLanguageElseTheFirstLibraryFound) {
  struct Row {
    const char* config;  // nullptr: no Config.ini
    std::vector<const char*> libraries;
    const char* chosen;
  } rows[] = {{"[Config]\r\nLANGUAGE=LANG_XYZ.DLL\r\n", {}, "LANG_XYZ.DLL"},
              {"[Config]\r\nLANGUAGE=\r\n", {"LANG_ESP.DLL", "LANG_ENG.DLL"}, "LANG_ENG.DLL"},
              {nullptr, {"LANG_ESP.DLL"}, "LANG_ESP.DLL"},
              {nullptr, {}, ""}};
  for (const Row& row : rows) {
    testing_support::ScratchFolder folder;
    if (row.config) testing_support::WriteWholeFile(folder / "Config.ini", row.config);
    for (const char* library : row.libraries) testing_support::WriteWholeFile(folder / library, "");
    EXPECT_EQ(app::ChooseLanguageFile(folder.Path() + "\\"), row.chosen);
  }
}

}  // namespace
