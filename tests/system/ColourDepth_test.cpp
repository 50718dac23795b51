// The start-up check of colour depths against the real registry of the test
// prefix, with the display depth put in through the check's seam and the
// questions answered for real. Only "No" is ever given to the restart
// question: under Wine a restart ends the whole session.
#include "system/modColourDepth.h"

#include <gtest/gtest.h>

#include "folder/modRegistry.h"
#include "frame/CResDll.h"
#include "resource_ids.h"
#include "support/DialogAnswerer.h"
#include "support/RegistryGuard.h"
#include "support/TestSupport.h"

namespace {

using testing_support::DialogAnswerer;
using testing_support::StoreRegistryValue;

constexpr char kKey[] = "Control Panel\\Desktop\\WindowMetrics";
constexpr char kValue[] = "Shell Icon BPP";

class ColourDepthCheck : public ::testing::Test {
 protected:
  void SetUp() override {
    frame::LanguageLibrary().DllName(testing_support::DistFolder() + "LANG_ENG.DLL");
  }
  void TearDown() override {
    integration::displayColourDepthSource = integration::GetDisplayColourDepth;
    frame::ReleaseLibraries();
  }
  void Display(std::int32_t depth) {
    integration::displayColourDepthSource = [depth] { return depth; };
  }
  void IconDepth(const char* text) {
    StoreRegistryValue(HKEY_CURRENT_USER, kKey, kValue, REG_SZ, text);
  }
  void NoIconDepth() {
    HKEY key = nullptr;
    if (::RegOpenKeyExA(HKEY_CURRENT_USER, kKey, 0, KEY_SET_VALUE, &key) == ERROR_SUCCESS) {
      ::RegDeleteValueA(key, kValue);
      ::RegCloseKey(key);
    }
  }
  // How many questions were asked when the check ran with `answer`.
  size_t QuestionsAsked(int answer) {
    DialogAnswerer user(answer);
    integration::CheckColourDepth();
    return user.Seen().size();
  }
  testing_support::RegistryValueGuard keep_{HKEY_CURRENT_USER, kKey, kValue};
};

TEST_F(ColourDepthCheck, AsksOnlyWhenDisplayAndIconsAreBothBelowSixteenBits) {
  struct Case {
    std::int32_t display;
    const char* icons;  // nullptr: no value
    size_t questions;
  };
  for (Case c : {Case{8, nullptr, 1}, Case{8, "4", 1}, Case{8, "16", 0}, Case{8, "32", 0},
                 Case{16, "4", 0}, Case{24, nullptr, 0}}) {
    Display(c.display);
    c.icons ? IconDepth(c.icons) : NoIconDepth();
    EXPECT_EQ(QuestionsAsked(IDNO), c.questions) << c.display << " / " << (c.icons ? c.icons : "-");
  }
}

TEST_F(ColourDepthCheck, YesRaisesAnExistingIconDepthToTheTextSixteenThenAsksToRestart) {
  Display(8);
  IconDepth("4");
  {
    DialogAnswerer user({IDYES, IDNO});
    integration::CheckColourDepth();
    ASSERT_EQ(user.Seen().size(), 2u);
    EXPECT_EQ(user.Seen()[1].text,
              frame::LanguageLibrary().LoadDllString(IDS_RESTART_NOTICE) + "\r\n" +
                  frame::LanguageLibrary().LoadDllString(IDS_RESTART_QUESTION));
  }
  folder::RegistryValue stored;
  HKEY key = nullptr;
  ASSERT_EQ(::RegOpenKeyExA(HKEY_CURRENT_USER, kKey, 0, KEY_QUERY_VALUE, &key), ERROR_SUCCESS);
  DWORD size = 0;
  ::RegQueryValueExA(key, kValue, nullptr, nullptr, nullptr, &size);
  ::RegCloseKey(key);
  EXPECT_EQ(size, 2u) << "the two digits, no NUL";
  EXPECT_EQ(integration::GetShellIconDepth(), 16);

  // A missing value stays missing.
  NoIconDepth();
  DialogAnswerer user({IDYES, IDNO});
  integration::CheckColourDepth();
  EXPECT_EQ(user.Seen().size(), 2u);
  EXPECT_EQ(integration::GetShellIconDepth(), 0);
}

}  // namespace
