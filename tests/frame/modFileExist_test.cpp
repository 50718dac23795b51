#include "frame/modFileExist.h"

#include <gtest/gtest.h>

#include "frame/Modulo.h"
#include "support/TestSupport.h"

namespace {

using frame::FileExist;
using frame::FolderExist;

TEST(FileExist, FindsFilesFoldersAndPatternsAndFolderExistOnlyFolders) {
  testing_support::ScratchFolder folder;
  testing_support::WriteWholeFile(folder / "icons.dll", "x");
  const std::string sub = folder.MakeFolder("sub");
  // Customised folders carry the system attribute and must still count.
  const std::string customised = folder.MakeFolder("custom");
  ::SetFileAttributesA(customised.c_str(), FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);

  EXPECT_TRUE(FileExist(folder / "icons.dll"));
  EXPECT_TRUE(FileExist(sub));
  EXPECT_TRUE(FileExist(folder / "*.dll"));
  EXPECT_FALSE(FileExist(folder / "*.exe"));
  EXPECT_FALSE(FileExist(folder / "missing.ini"));
  EXPECT_FALSE(FileExist(""));

  EXPECT_TRUE(FolderExist(sub));
  EXPECT_TRUE(FolderExist(customised));
  EXPECT_FALSE(FolderExist(sub + "\\"));
  EXPECT_FALSE(FolderExist(folder / "icons.dll"));
  EXPECT_FALSE(FolderExist(folder / "missing"));
  EXPECT_FALSE(FolderExist(""));
}

TEST(TextBeforeNul, ReturnsTheTextUpToTheFirstNulOrNothing) {
  EXPECT_EQ(frame::TextBeforeNul("no terminator"), "");
  EXPECT_EQ(frame::TextBeforeNul(std::string("\0abc", 4)), "");
  EXPECT_EQ(frame::TextBeforeNul(std::string("abc\0def\0", 8)), "abc");
}

}  // namespace
