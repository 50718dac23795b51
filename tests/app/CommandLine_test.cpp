// How start-up reads its command line; the language library it picks is the
// end-to-end start table's.
#include <gtest/gtest.h>

#include "app/CommandLine.h"

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

}  // namespace
