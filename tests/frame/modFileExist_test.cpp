#include "frame/modFileExist.h"

#include <gtest/gtest.h>

#include "frame/Modulo.h"
#include "support/TestSupport.h"

namespace {

using frame::FileExist;
using frame::FolderExist;
using testing_support::ScratchFolder;

TEST(FileExist, FindsFilesFoldersAndPatterns) {
  ScratchFolder folder;
  testing_support::WriteWholeFile(folder / "icons.dll", "x");
  const std::string sub = folder.MakeFolder("sub");

  EXPECT_TRUE(FileExist(folder / "icons.dll"));
  EXPECT_TRUE(FileExist(sub));
  EXPECT_TRUE(FileExist(folder / "*.dll"));
  EXPECT_FALSE(FileExist(folder / "*.exe"));
  EXPECT_FALSE(FileExist(folder / "missing.ini"));
  EXPECT_FALSE(FileExist(""));
}

TEST(FolderExist, IsTrueOnlyForAFolderNamedWithoutTrailingSeparator) {
  ScratchFolder folder;
  testing_support::WriteWholeFile(folder / "file.txt", "x");
  const std::string sub = folder.MakeFolder("sub");

  EXPECT_TRUE(FolderExist(sub));
  EXPECT_FALSE(FolderExist(sub + "\\"));
  EXPECT_FALSE(FolderExist(folder / "file.txt"));
  EXPECT_FALSE(FolderExist(folder / "missing"));
  EXPECT_FALSE(FolderExist(""));
}

TEST(FolderExist, HoldsForACustomisedFolder) {
  // Customised folders carry the system attribute and must still count.
  ScratchFolder folder;
  const std::string sub = folder.MakeFolder("custom");
  ::SetFileAttributesA(sub.c_str(), FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
  EXPECT_TRUE(FolderExist(sub));
  ::SetFileAttributesA(sub.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(TextBeforeNul, ReturnsTheTextUpToTheFirstNulOrNothing) {
  using frame::TextBeforeNul;
  EXPECT_EQ(TextBeforeNul("no terminator"), "");
  EXPECT_EQ(TextBeforeNul(std::string("\0abc", 4)), "");
  EXPECT_EQ(TextBeforeNul(std::string("abc\0def\0", 8)), "abc");
}

}  // namespace
