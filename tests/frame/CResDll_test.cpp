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

class CResDllTest : public ::testing::Test {
 protected:
  void SetUp() override {
    frame::ClearError();
    library_.DllName(TestFolder() + "TESTRES.DLL");
    ASSERT_NE(library_.Handle(), nullptr);
  }
  CResDll library_;
};

TEST_F(CResDllTest, LoadDllStringCutsAt255AndRecordsMissingStrings) {
  EXPECT_EQ(library_.LoadDllString(TEST_STR_HELLO), "Hello");
  EXPECT_EQ(library_.LoadDllString(TEST_STR_255).size(), 255u);
  std::string cut = library_.LoadDllString(TEST_STR_300);
  ASSERT_EQ(cut.size(), 255u);
  EXPECT_EQ(cut.substr(0, 20), "01234567890123456789");
  EXPECT_EQ(library_.LoadDllString(TEST_STR_HELLO, 3), "Hel");
  EXPECT_EQ(CurrentError().number, 0);

  EXPECT_EQ(library_.LoadDllString(TEST_STR_MISSING), "");
  EXPECT_EQ(CurrentError().number, frame::kErrResourceNotFound);
  EXPECT_EQ(CurrentError().description, "String resource with identifier 13 not found.");
}

TEST_F(CResDllTest, LoadDllDataReturnsTheBytesUnchanged) {
  EXPECT_EQ(library_.LoadDllData(TEST_BLOB, "CUSTOM"), kBlob);
  EXPECT_EQ(library_.LoadDllText(TEST_BLOB, "CUSTOM"), kBlob);

  EXPECT_EQ(library_.LoadDllData(TEST_EMPTY_BLOB, "CUSTOM"), "");
  EXPECT_EQ(CurrentError().number, 0) << "an empty resource is no error";

  EXPECT_EQ(library_.LoadDllData(6999, "CUSTOM"), "");
  EXPECT_EQ(CurrentError().number, frame::kErrResourceNotFound);
  EXPECT_EQ(CurrentError().description, "Custom resource with identifier 6999 not found.");
  EXPECT_EQ(library_.LoadDllData(TEST_BLOB, "OTHER"), "");
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

TEST_F(CResDllTest, PicturesOfEachKindOwnTheirHandles) {
  toolkit::Picture bitmap = library_.LoadDllBitmap(TEST_BITMAP);
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap.Type(), PICTYPE_BITMAP);
  BITMAP info{};
  ASSERT_EQ(::GetObjectA(bitmap.Handle(), sizeof info, &info), static_cast<int>(sizeof info));
  EXPECT_EQ(info.bmWidth, 8);
  EXPECT_EQ(info.bmHeight, 4);

  EXPECT_EQ(library_.LoadDllIcon(TEST_ICON).Type(), PICTYPE_ICON);
  EXPECT_EQ(library_.LoadDllCursor(TEST_CURSOR).Type(), PICTYPE_ICON);
  EXPECT_EQ(CurrentError().number, 0);

  HGDIOBJ handle = bitmap.Handle();
  bitmap.Reset();
  EXPECT_EQ(::GetObjectType(handle), 0u) << "the picture deletes its bitmap";
}

TEST_F(CResDllTest, UnknownPictureTypeOrIdentifierGivesNoPicture) {
  EXPECT_FALSE(library_.LoadDllPicture(TEST_BITMAP, 3));
  EXPECT_EQ(CurrentError().number, frame::kErrResourceNotFound);
  EXPECT_EQ(CurrentError().description, "Picture resource with identifier 2000 not found.");
  frame::ClearError();
  EXPECT_FALSE(library_.LoadDllBitmap(2999));
  EXPECT_EQ(CurrentError().number, frame::kErrResourceNotFound);
  EXPECT_FALSE(library_.LoadDllIcon(TEST_BITMAP));
}

TEST_F(CResDllTest, GetDllURLJoinsNameTypeAndNumber) {
  const std::string name = TestFolder() + "TESTRES.DLL";
  EXPECT_EQ(library_.GetDllURL(6000, "  CUSTOM "), "RES://" + name + "/CUSTOM/6000");
  EXPECT_EQ(library_.GetDllURL(-5, "HTML"), "RES://" + name + "/HTML/-5");
}

TEST(CResDllLoading, AFailedLoadLeavesTheLibraryEmpty) {
  CResDll library;
  library.DllName(TestFolder() + "TESTRES.DLL");
  ASSERT_FALSE(library.DllName().empty());
  frame::ClearError();

  ScratchFolder folder;
  const std::string missing = folder / "NOPE.DLL";
  library.DllName(missing);
  EXPECT_EQ(library.DllName(), "");
  EXPECT_EQ(library.Handle(), nullptr);
  EXPECT_EQ(CurrentError().number, frame::kErrDllLoad);
  EXPECT_EQ(CurrentError().description, "Error in loading DLL: " + missing);

  // Nothing leaks through from the program file or the system's own stock.
  EXPECT_EQ(library.LoadDllString(TEST_STR_HELLO), "");
  EXPECT_EQ(library.LoadDllData(TEST_BLOB), "");
  EXPECT_FALSE(library.LoadDllIcon(32512));    // IDI_APPLICATION
  EXPECT_FALSE(library.LoadDllBitmap(32754));  // a system bitmap
  EXPECT_FALSE(library.PlayWave(TEST_SOUND));
  EXPECT_EQ(library.GetDllURL(6000), "");
}

TEST(CResDllLoading, ANonLibraryFileFailsToLoad) {
  ScratchFolder folder;
  const std::string fake = folder / "Resource.DLL";
  WriteWholeFile(fake, "MZ this is not a library");
  CResDll library;
  library.DllName(fake);
  EXPECT_EQ(library.DllName(), "");
  EXPECT_EQ(CurrentError().number, frame::kErrDllLoad);
}

TEST(CResDllLoading, LoadingAnotherLibraryFreesThePrevious) {
  ScratchFolder folder;
  const std::string copy = folder / "COPY.DLL";
  ASSERT_TRUE(::CopyFileA((TestFolder() + "TESTRES.DLL").c_str(), copy.c_str(), FALSE));
  CResDll library;
  library.DllName(copy);
  ASSERT_NE(::GetModuleHandleA(copy.c_str()), nullptr);
  library.DllName(TestFolder() + "TESTRES.DLL");
  EXPECT_EQ(::GetModuleHandleA(copy.c_str()), nullptr);
  EXPECT_EQ(library.LoadDllString(TEST_STR_HELLO), "Hello");
}

TEST(RunLibraries, ComeIntoExistenceEmptyAndEndWithRelease) {
  frame::ReleaseLibraries();
  EXPECT_FALSE(frame::LibrariesHeld());
  EXPECT_EQ(frame::LanguageLibrary().DllName(), "");
  EXPECT_TRUE(frame::LibrariesHeld());
  frame::LanguageLibrary().DllName(TestFolder() + "TESTRES.DLL");
  HMODULE module = frame::LanguageLibrary().Handle();
  ASSERT_NE(module, nullptr);

  frame::ReleaseLibraries();
  EXPECT_FALSE(frame::LibrariesHeld());
  EXPECT_EQ(::GetModuleHandleA((TestFolder() + "TESTRES.DLL").c_str()), nullptr);
  EXPECT_EQ(frame::PictureLibrary().Handle(), nullptr);
  frame::ReleaseLibraries();
}

}  // namespace
