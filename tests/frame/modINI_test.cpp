#include "frame/modINI.h"

#include <gtest/gtest.h>

#include "support/TestSupport.h"

namespace {

using frame::ReadIniValue;
using frame::WriteIniValue;
using testing_support::WriteWholeFile;

TEST(ReadIniValue, MatchesWithoutRegardToCaseReadsMissingAsEmptyAndCutsLongValues) {
  testing_support::ScratchFolder folder;
  const std::string file = folder / "Config.ini";
  EXPECT_EQ(ReadIniValue("Config", "Font", file), "");
  const std::string fits(29999, 'v'), tooLong(30000, 'w');
  WriteWholeFile(file, "[config]\r\nlanguage=LANG_ESP.DLL\r\nEmpty=\r\nfits=" + fits +
                           "\r\nlong=" + tooLong + "\r\n");
  EXPECT_EQ(ReadIniValue("Config", "LANGUAGE", file), "LANG_ESP.DLL");
  EXPECT_EQ(ReadIniValue("Other", "LANGUAGE", file), "");
  EXPECT_EQ(ReadIniValue("Config", "Font", file), "");
  EXPECT_EQ(ReadIniValue("Config", "Empty", file), "");
  // The buffer holds 30000 characters, its terminator included.
  EXPECT_EQ(ReadIniValue("Config", "fits", file), fits);
  EXPECT_EQ(ReadIniValue("Config", "long", file), tooLong.substr(0, 29999));
}

TEST(WriteIniValue, CreatesFileSectionAndKeyKeepsTheRestAndReportsARefusal) {
  testing_support::ScratchFolder folder;
  const std::string file = folder / "ARA.INI";
  ASSERT_TRUE(WriteIniValue("Recent", "ARA01", "c:\\icons\\a.ico", file));
  ASSERT_TRUE(WriteIniValue("Other", "Key", "x", file));
  ASSERT_TRUE(WriteIniValue("Recent", "ARA01", "c:\\icons\\b.ico", file));
  EXPECT_EQ(ReadIniValue("Recent", "ARA01", file), "c:\\icons\\b.ico");
  EXPECT_EQ(ReadIniValue("Other", "Key", file), "x");

  EXPECT_FALSE(WriteIniValue("S", "k", "v", folder / "missing\\file.ini"));
  // Running as root under Wine, a read-only file is still writable, so the
  // refusal is shown with a folder standing where the file should be.
  const std::string folderInPlace = folder.MakeFolder("Desktop.ini");
  EXPECT_FALSE(WriteIniValue("S", "k", "new", folderInPlace));
  EXPECT_EQ(ReadIniValue("S", "k", folderInPlace), "");
}

}  // namespace
