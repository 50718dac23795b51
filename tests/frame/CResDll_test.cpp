#include "frame/CResDll.h"

#include <gtest/gtest.h>

#include "frame/CurrentError.h"
#include "support/TestSupport.h"
#include "test_resource_ids.h"

namespace {

using frame::CResDll;
using frame::CurrentError;
using testing_support::ReadWholeFile;
using testing_support::ScratchFolder;
using testing_support::TestFolder;
using testing_support::WriteWholeFile;

const std::string kBlob("\x4D\x00\xFF\x0A\x80\x41", 6);

std::string TestLibrary() {
  return TestFolder() + "TESTRES.DLL";
}

// The current error as "number description".
std::string Recorded() {
  return std::to_string(CurrentError().number) + " " + CurrentError().description;
}

class CResDllTest : public ::testing::Test {
 protected:
  void SetUp() override {
    frame::ClearError();
    library_.DllName(TestLibrary());
    ASSERT_NE(library_.Handle(), nullptr);
  }
  CResDll library_;
};

TEST_F(CResDllTest, StringsAreCutAt255AndAMissingOneIsRecorded) {
  EXPECT_EQ(library_.LoadDllString(TEST_STR_HELLO), "Hello");
  EXPECT_EQ(library_.LoadDllString(TEST_STR_HELLO, 3), "Hel");
  EXPECT_EQ(library_.LoadDllString(TEST_STR_255).size(), 255u);
  std::string cut = library_.LoadDllString(TEST_STR_300);
  ASSERT_EQ(cut.size(), 255u);
  EXPECT_EQ(cut.substr(0, 20), "01234567890123456789");
  EXPECT_EQ(CurrentError().number, 0);

  EXPECT_EQ(library_.LoadDllString(TEST_STR_MISSING), "");
  EXPECT_EQ(Recorded(), "326 String resource with identifier 13 not found.");
}

TEST_F(CResDllTest, DataComesBackByteForByteAndAnEmptyResourceIsNoError) {
  EXPECT_EQ(library_.LoadDllData(TEST_BLOB, "CUSTOM"), kBlob);
  EXPECT_EQ(library_.LoadDllText(TEST_BLOB, "CUSTOM"), kBlob);
  EXPECT_EQ(library_.LoadDllData(TEST_EMPTY_BLOB, "CUSTOM"), "");
  EXPECT_EQ(CurrentError().number, 0);
  EXPECT_EQ(library_.GetDllURL(-5, "  HTML "), "RES://" + TestLibrary() + "/HTML/-5");

  EXPECT_EQ(library_.LoadDllData(TEST_BLOB, "OTHER"), "");
  EXPECT_EQ(library_.LoadDllData(6999, "CUSTOM"), "");
  EXPECT_EQ(Recorded(), "326 Custom resource with identifier 6999 not found.");
}

TEST_F(CResDllTest, SaveDllDataWritesOverwritesOrRefuses) {
  ScratchFolder folder;
  const std::string path = folder / "saved.bin";
  EXPECT_EQ(library_.SaveDllData(TEST_BLOB, path, "CUSTOM", false), 0);
  EXPECT_EQ(ReadWholeFile(path), kBlob);

  WriteWholeFile(path, "user data");
  EXPECT_EQ(library_.SaveDllData(TEST_BLOB, path, "CUSTOM", false), frame::kErrFileExists);
  EXPECT_EQ(ReadWholeFile(path), "user data");
  EXPECT_EQ(library_.SaveDllData(TEST_BLOB, path, "CUSTOM", true), 0);
  EXPECT_EQ(ReadWholeFile(path), kBlob);

  EXPECT_EQ(library_.SaveDllData(6999, folder / "none.bin", "CUSTOM", true),
            frame::kErrResourceNotFound);
  EXPECT_FALSE(testing_support::PathExists(folder / "none.bin"));
  EXPECT_NE(library_.SaveDllData(TEST_BLOB, folder / "missing\\x.bin", "CUSTOM", true), 0);
}

TEST_F(CResDllTest, PicturesOfEachKindOwnTheirHandlesAndUnknownOnesAreNone) {
  toolkit::Picture bitmap = library_.LoadDllBitmap(TEST_BITMAP);
  EXPECT_EQ(bitmap.Type(), PICTYPE_BITMAP);
  EXPECT_EQ(library_.LoadDllIcon(TEST_ICON).Type(), PICTYPE_ICON);
  EXPECT_EQ(library_.LoadDllCursor(TEST_CURSOR).Type(), PICTYPE_ICON);
  EXPECT_EQ(CurrentError().number, 0);
  HGDIOBJ handle = bitmap.Handle();
  bitmap.Reset();
  EXPECT_EQ(::GetObjectType(handle), 0u) << "the picture deletes its bitmap";

  EXPECT_FALSE(library_.LoadDllIcon(TEST_BITMAP));
  EXPECT_FALSE(library_.LoadDllPicture(TEST_BITMAP, 3));
  EXPECT_EQ(Recorded(), "326 Picture resource with identifier 2000 not found.");
}

TEST(CResDllLoading, AFailedLoadLeavesTheLibraryEmptyAndEveryLookupEmpty) {
  ScratchFolder folder;
  WriteWholeFile(folder / "Resource.DLL", "MZ this is not a library");
  for (const std::string& file : {folder / "NOPE.DLL", folder / "Resource.DLL"}) {
    CResDll library;
    library.DllName(TestLibrary());
    library.DllName(file);
    EXPECT_EQ(library.DllName(), "");
    EXPECT_EQ(library.Handle(), nullptr);
    EXPECT_EQ(Recorded(), "48 Error in loading DLL: " + file);

    // Nothing leaks through from the program file or the system's own stock.
    EXPECT_EQ(library.LoadDllString(TEST_STR_HELLO), "");
    EXPECT_EQ(library.LoadDllData(TEST_BLOB), "");
    EXPECT_FALSE(library.LoadDllIcon(32512));    // IDI_APPLICATION
    EXPECT_FALSE(library.LoadDllBitmap(32754));  // a system bitmap
    EXPECT_FALSE(library.PlayWave(TEST_SOUND));
    EXPECT_EQ(library.GetDllURL(6000), "");
  }
}

TEST(CResDllLoading, LoadingAnotherLibraryFreesThePrevious) {
  ScratchFolder folder;
  const std::string copy = folder / "COPY.DLL";
  ASSERT_TRUE(::CopyFileA(TestLibrary().c_str(), copy.c_str(), FALSE));
  CResDll library;
  library.DllName(copy);
  ASSERT_NE(::GetModuleHandleA(copy.c_str()), nullptr);
  library.DllName(TestLibrary());
  EXPECT_EQ(::GetModuleHandleA(copy.c_str()), nullptr);
  EXPECT_EQ(library.LoadDllString(TEST_STR_HELLO), "Hello");
}

TEST(RunLibraries, ComeIntoExistenceEmptyAndEndWithRelease) {
  frame::ReleaseLibraries();
  EXPECT_FALSE(frame::LibrariesHeld());
  EXPECT_EQ(frame::LanguageLibrary().DllName(), "");
  EXPECT_TRUE(frame::LibrariesHeld());
  frame::LanguageLibrary().DllName(TestLibrary());
  ASSERT_NE(frame::LanguageLibrary().Handle(), nullptr);

  frame::ReleaseLibraries();
  EXPECT_FALSE(frame::LibrariesHeld());
  EXPECT_EQ(::GetModuleHandleA(TestLibrary().c_str()), nullptr);
  EXPECT_EQ(frame::PictureLibrary().Handle(), nullptr);
  frame::ReleaseLibraries();
}

}  // namespace
