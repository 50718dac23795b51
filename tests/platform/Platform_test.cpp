// The thin wrappers of the Windows services, on the test library, the icon
// test files and scratch folders.
#include <gtest/gtest.h>

#include "platform/CommonDialogText.h"
#include "platform/IconFile.h"
#include "platform/ResourceLibrary.h"
#include "platform/TextRules.h"
#include "platform/Utf8.h"
#include "support/TestSupport.h"
#include "test_resource_ids.h"

namespace {

constexpr int kIconSize = 32;  // the large icons at 96 dpi

using testing_support::ScratchFolder;
using testing_support::TestFolder;
using testing_support::WriteFile;

const std::string kBlob("\x4D\x00\xFF\x0A\x80\x41", 6);

std::string Failure(const platform::ResourceLibrary& library) {
  return std::to_string(library.LastError().number) + " " + library.LastError().description;
}

TEST(ResourceLibrary, StringsAreCutDataTravelsByteForByteAndMissingOnesAreRecorded) {
  platform::ResourceLibrary library;
  library.Open(TestFolder() + "TESTRES.DLL");
  EXPECT_EQ(library.Data(TEST_BLOB), kBlob);
  EXPECT_EQ(library.Data(TEST_EMPTY_BLOB), "");
  EXPECT_EQ(library.String(TEST_STR_HELLO), "Hello");
  EXPECT_EQ(library.String(TEST_STR_HELLO, 3), "Hel");
  EXPECT_EQ(library.String(TEST_STR_300).substr(250), "01234");
  EXPECT_EQ(library.String(TEST_STR_300).size(), 255u);
  EXPECT_EQ(library.LastError().number, 0) << "an empty resource is no error";
  EXPECT_EQ(library.String(TEST_STR_MISSING), "");
  EXPECT_EQ(Failure(library), "326 String resource with identifier 13 not found.");
  EXPECT_EQ(library.Data(6999), "");
  EXPECT_EQ(Failure(library), "326 Custom resource with identifier 6999 not found.");
}

TEST(ResourceLibrary, PicturesOwnTheirHandlesAndUnknownOnesAreNone) {
  platform::ResourceLibrary library;
  library.Open(TestFolder() + "TESTRES.DLL");
  platform::Picture bitmap = library.Bitmap(TEST_BITMAP);
  EXPECT_EQ(bitmap.Type(), PICTYPE_BITMAP);
  EXPECT_EQ(library.Icon(TEST_ICON).Type(), PICTYPE_ICON);
  EXPECT_EQ(library.Cursor(TEST_CURSOR).Type(), PICTYPE_ICON);
  platform::Picture shared = bitmap;
  HANDLE handle = bitmap.Handle();
  bitmap.Reset();
  EXPECT_NE(::GetObjectType(handle), 0u) << "a copy still holds it";
  shared.Reset();
  EXPECT_EQ(::GetObjectType(handle), 0u) << "the last reference deletes the bitmap";
  EXPECT_FALSE(library.Icon(TEST_BITMAP));
  EXPECT_EQ(Failure(library), "326 Picture resource with identifier 2000 not found.");
}

TEST(ResourceLibrary, WithoutALibraryNothingLeaksFromTheProgramOrTheSystem) {
  ScratchFolder folder;
  WriteFile(folder / "Resource.DLL", "MZ this is not a library");
  for (const std::string& file : {folder / "NOPE.DLL", folder / "Resource.DLL"}) {
    platform::ResourceLibrary library;
    library.Open(TestFolder() + "TESTRES.DLL");
    library.Open(file);
    EXPECT_EQ(library.Name(), "");
    EXPECT_EQ(Failure(library), "48 Error in loading DLL: " + file);
    EXPECT_EQ(::GetModuleHandleA((TestFolder() + "TESTRES.DLL").c_str()), nullptr);
    EXPECT_EQ(library.String(TEST_STR_HELLO), "");
    EXPECT_FALSE(library.Icon(32512));    // IDI_APPLICATION
    EXPECT_FALSE(library.Bitmap(32754));  // a system bitmap
    EXPECT_EQ(library.Url(TEST_BLOB), "");
  }
  platform::ResourceLibrary closed;
  closed.Open(TestFolder() + "TESTRES.DLL");
  closed.Close();
  EXPECT_EQ(closed.Handle(), nullptr);
  EXPECT_EQ(closed.Data(TEST_BLOB), "");
}

TEST(IconFile, CountsAndExtractsWhatTheFileHolds) {
  struct Row {
    const char* file;
    int count;
  } rows[] = {{"icons.ico", 1}, {"ICONS120.DLL", 120}, {"NOICONS.DLL", 0},
              {"notes.txt", 0}, {"missing.ico", 0},    {"", 0}};
  for (const Row& row : rows) {
    const platform::IconFile icons(row.file[0] ? TestFolder() + row.file : "");
    EXPECT_EQ(icons.Count(), row.count) << row.file;
    HICON last = icons.Extract(row.count - 1, kIconSize);
    HICON beyond = icons.Extract(row.count, kIconSize);
    EXPECT_EQ(last != nullptr, row.count > 0) << row.file;
    EXPECT_EQ(beyond, nullptr) << row.file;
    platform::ReleaseIcon(last);
  }
  // The numbered libraries put the icon's position in its centre pixel.
  HICON icon = platform::IconFile(TestFolder() + "ICONS120.DLL").Extract(77, kIconSize);
  ICONINFO info{};
  ASSERT_TRUE(::GetIconInfo(icon, &info));
  int width = 0;
  const auto pixels = testing_support::ReadPixels(info.hbmColor, width);
  EXPECT_EQ(pixels[16 * width + 16], RGB(77, 0, 0));
  ::DeleteObject(info.hbmColor);
  ::DeleteObject(info.hbmMask);
  platform::ReleaseIcon(icon);
}

TEST(CommonDialogText, ConversionsForTheDialogRecords) {
  EXPECT_EQ(platform::ConvertFilter(L"Icons|*.ico|All|*.*"),
            std::wstring(L"Icons\0*.ico\0All\0*.*\0", 20));
  EXPECT_EQ(platform::CutAtNul(std::wstring(L"ab\0cd", 5)), L"ab");
  EXPECT_EQ(platform::FaceNameToText(L"\u6977\u4f53\0junk", 7), "\u6977\u4f53");
  EXPECT_EQ(platform::FaceNameToText(L"ABCD", 4), "ABCD");
  EXPECT_EQ(platform::FileNameBuffer(L"abc", 6), std::wstring(L"abc  \0", 6));
  EXPECT_EQ(platform::FileNameBuffer(L"abcdefgh", 4), std::wstring(L"abc\0", 4));
  EXPECT_EQ(platform::TenthsToPoints(105), 10);
  EXPECT_EQ(platform::TenthsToPoints(115), 12);
}

TEST(TextRules, HowPeoplesTextIsRead) {
  EXPECT_EQ(platform::TrimBlanks("  a b\t "), "a b\t");
  EXPECT_EQ(platform::TextBeforeNul(std::string("ab\0c", 4)), "ab");
  EXPECT_EQ(platform::TextBeforeNul("abc"), "");
  struct Row {
    const char* text;
    std::optional<std::int32_t> number;
  } rows[] = {{" 42 ", 42},       {"-7", -7}, {"+3", 3}, {"2147483647", INT32_MAX},
              {"2147483648", {}}, {"1x", {}}, {"", {}},  {"0x10", {}},
              {"1.5", {}}};
  for (const Row& row : rows) EXPECT_EQ(platform::ToWholeNumber(row.text), row.number) << row.text;
}

TEST(TextRules, LowerCaseFoldsEveryScriptAndAnsiTextAsTheAnsiCallsDid) {
  for (int code = 0x80; code <= 0xFF; ++code) {
    char ansi[] = {static_cast<char>(code), 0};
    wchar_t wide[2] = {};
    ::MultiByteToWideChar(CP_ACP, 0, ansi, 1, wide, 1);
    const std::wstring lower = platform::Wide(platform::LowerCase(platform::Utf8(wide)));
    ::CharLowerBuffA(ansi, 1);
    char back[4] = {};
    ::WideCharToMultiByte(CP_ACP, 0, lower.c_str(), 1, back, sizeof back, nullptr, nullptr);
    EXPECT_EQ(back[0], ansi[0]) << code;
  }
}

// Windows allows a surrogate without its partner in a file name.
TEST(Utf8, EveryNameTheSystemHandsOutComesBack) {
  for (const std::wstring name :
       {L"caf\u00e9 \u5199\u771f \U0001F600", L"lone \xD800", L"\xDC00\xD800"})
    EXPECT_EQ(platform::Wide(platform::Utf8(name)), name);
}

}  // namespace
