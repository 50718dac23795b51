#include "frame/modINI.h"

#include <gtest/gtest.h>

#include "support/TestSupport.h"

namespace {

using frame::ReadIniValue;
using frame::WriteIniValue;
using testing_support::ScratchFolder;
using testing_support::WriteWholeFile;

TEST(ReadIniValue, MissingFileSectionOrKeyReadsEmpty) {
  ScratchFolder folder;
  const std::string file = folder / "Config.ini";
  EXPECT_EQ(ReadIniValue("Config", "Font", file), "");
  WriteWholeFile(file, "[Config]\r\nFont=Verdana\r\nEmpty=\r\n");
  EXPECT_EQ(ReadIniValue("Other", "Font", file), "");
  EXPECT_EQ(ReadIniValue("Config", "LANGUAGE", file), "");
  EXPECT_EQ(ReadIniValue("Config", "Empty", file), "");
}

TEST(ReadIniValue, MatchesSectionAndKeyWithoutRegardToCase) {
  ScratchFolder folder;
  const std::string file = folder / "Config.ini";
  WriteWholeFile(file, "[config]\r\nlanguage=LANG_ESP.DLL\r\n");
  EXPECT_EQ(ReadIniValue("Config", "LANGUAGE", file), "LANG_ESP.DLL");
}

TEST(ReadIniValue, CutsValuesToTheBufferLessItsTerminator) {
  ScratchFolder folder;
  const std::string file = folder / "long.ini";
  const std::string fits(29999, 'v');
  const std::string tooLong(30000, 'w');
  WriteWholeFile(file, "[S]\r\nfits=" + fits + "\r\nlong=" + tooLong + "\r\n");
  EXPECT_EQ(ReadIniValue("S", "fits", file), fits);
  EXPECT_EQ(ReadIniValue("S", "long", file), tooLong.substr(0, 29999));
}

TEST(WriteIniValue, CreatesFileSectionAndKeyAndKeepsTheRest) {
  ScratchFolder folder;
  const std::string file = folder / "ARA.INI";
  ASSERT_TRUE(WriteIniValue("Recent", "ARA01", "c:\\icons\\a.ico", file));
  ASSERT_TRUE(WriteIniValue("Other", "Key", "x", file));
  ASSERT_TRUE(WriteIniValue("Recent", "ARA01", "c:\\icons\\b.ico", file));
  EXPECT_EQ(ReadIniValue("Recent", "ARA01", file), "c:\\icons\\b.ico");
  EXPECT_EQ(ReadIniValue("Other", "Key", file), "x");
}

TEST(WriteIniValue, ReportsARefusedWrite) {
  ScratchFolder folder;
  EXPECT_FALSE(WriteIniValue("S", "k", "v", folder / "missing\\file.ini"));

  // Running as root under Wine, a read-only file is still writable, so the
  // refusal is shown with a folder standing where the file should be.
  const std::string folderInPlace = folder.MakeFolder("Desktop.ini");
  EXPECT_FALSE(WriteIniValue("S", "k", "new", folderInPlace));
  EXPECT_EQ(ReadIniValue("S", "k", folderInPlace), "");
}

}  // namespace
