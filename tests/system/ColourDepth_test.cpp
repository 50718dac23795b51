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
  // Sets the display depth and the icon depth's text (nullptr: no value).
  void Depths(std::int32_t display, const char* icons) {
    integration::displayColourDepthSource = [display] { return display; };
    if (icons) {
      testing_support::StoreRegistryValue(HKEY_CURRENT_USER, kKey, kValue, REG_SZ, icons);
    } else {
      ::RegDeleteKeyValueA(HKEY_CURRENT_USER, kKey, kValue);
    }
  }
  testing_support::RegistryValueGuard keep_{HKEY_CURRENT_USER, kKey, kValue};
};

TEST_F(ColourDepthCheck, AsksOnlyWhenDisplayAndIconsAreBothBelowSixteenBits) {
  const struct {
    std::int32_t display;
    const char* icons;
    size_t questions;
  } cases[] = {{8, nullptr, 1}, {8, "4", 1},  {8, "16", 0},
               {8, "32", 0},    {16, "4", 0}, {24, nullptr, 0}};
  for (const auto& c : cases) {
    Depths(c.display, c.icons);
    DialogAnswerer user(IDNO);
    integration::CheckColourDepth();
    EXPECT_EQ(user.Seen().size(), c.questions) << c.display << " / " << (c.icons ? c.icons : "-");
  }
}

TEST_F(ColourDepthCheck, YesRaisesAnExistingIconDepthToTheTextSixteenThenAsksToRestart) {
  Depths(8, "4");
  {
    DialogAnswerer user({IDYES, IDNO});
    integration::CheckColourDepth();
    ASSERT_EQ(user.Seen().size(), 2u);
    EXPECT_EQ(user.Seen()[1].text, frame::LanguageText(IDS_RESTART_NOTICE) + "\r\n" +
                                       frame::LanguageText(IDS_RESTART_QUESTION));
  }
  EXPECT_EQ(folder::GetRegistryValue(HKEY_CURRENT_USER, kKey, kValue),
            folder::RegistryValue(std::string("16")))
      << "the two digits, no NUL";

  // A missing value stays missing.
  Depths(8, nullptr);
  DialogAnswerer user({IDYES, IDNO});
  integration::CheckColourDepth();
  EXPECT_EQ(user.Seen().size(), 2u);
  EXPECT_EQ(integration::GetShellIconDepth(), 0);
}

}  // namespace
