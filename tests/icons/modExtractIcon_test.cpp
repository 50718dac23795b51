// Counting and extracting on the icon files built for the tests.
#include "icons/modExtractIcon.h"

#include <gtest/gtest.h>

#include "IconTestFiles.h"
#include "support/GuiObjects.h"
#include "support/Pixels.h"

namespace {

using icon_files::NumberedLibrary;
using icon_files::Path;
using icons::ExtractLargeIcon;
using icons::GetIconCount;
using icons::ReleaseIcon;
using testing_support::IconAlive;

constexpr int kLargeIconSize = 32;

// The position a numbered icon was generated for, or -1.
int NumberOf(HICON icon) {
  testing_support::PixelGrid pixels = testing_support::ReadIconPixels(icon);
  if (pixels.width != kLargeIconSize) return -1;
  COLORREF mark = pixels.Colour(icon_files::kNumberPixel, icon_files::kNumberPixel);
  return GetRValue(mark) + 256 * GetGValue(mark);
}

class NumberedIcons : public ::testing::TestWithParam<NumberedLibrary> {};

TEST_P(NumberedIcons, CountAndPositionsMatchTheFile) {
  const std::string file = Path(GetParam().name);
  const int count = GetParam().count;
  ASSERT_EQ(GetIconCount(file), count);

  for (int position : {0, count / 2, count - 1}) {
    HICON icon = ExtractLargeIcon(file, position);
    ASSERT_NE(icon, nullptr) << "position " << position;
    EXPECT_EQ(NumberOf(icon), position);
    ReleaseIcon(icon);
  }
  EXPECT_EQ(ExtractLargeIcon(file, count), nullptr) << "one past the last";
  EXPECT_EQ(ExtractLargeIcon(file, -1), nullptr) << "-1 asks for the count";

  // Any other negative index names the icon by its resource identifier.
  if (count > 1) {
    HICON byIdentifier = ExtractLargeIcon(file, -count);
    EXPECT_EQ(NumberOf(byIdentifier), count - 1);
    ReleaseIcon(byIdentifier);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Libraries, NumberedIcons,
    ::testing::Values(icon_files::kNumberedLibraries[0], icon_files::kNumberedLibraries[1],
                      icon_files::kNumberedLibraries[2], icon_files::kLargestLibrary),
    [](const auto& info) { return "Icons" + std::to_string(info.param.count); });

TEST(GetIconCount, PathsWithoutIconsCountNothingAndGiveNoIcon) {
  for (const std::string& path :
       {Path(icon_files::kTextFile), Path(icon_files::kLibraryWithoutIcons),
        Path("no such file.dll"), std::string("Z:\\no\\such\\folder\\icons.dll"), std::string()}) {
    EXPECT_EQ(GetIconCount(path), 0) << "'" << path << "'";
    EXPECT_EQ(ExtractLargeIcon(path, 0), nullptr) << "'" << path << "'";
  }
}

TEST(ExtractLargeIcon, AnIconFileHoldsOneLargeIconThatReleaseDestroys) {
  const std::string file = Path(icon_files::kIconFile);
  EXPECT_EQ(GetIconCount(file), 1);
  HICON icon = ExtractLargeIcon(file, 0);
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(testing_support::ReadIconPixels(icon).width, kLargeIconSize);
  EXPECT_TRUE(IconAlive(icon));
  ReleaseIcon(icon);
  EXPECT_FALSE(IconAlive(icon));
  ReleaseIcon(nullptr);
}

TEST(ExtractLargeIcon, ExtractionsLeaveNoObjectsBehind) {
  constexpr int kExtractions = 300;
  const std::string file = Path(icon_files::kNumberedLibraries[1].name);
  // Warm up: the first calls load the shell and fill its caches.
  ReleaseIcon(ExtractLargeIcon(file, 0));
  const testing_support::GuiObjectCount before = testing_support::CountGuiObjects();

  for (int i = 0; i < kExtractions; ++i) {
    HICON icon = ExtractLargeIcon(file, i % icon_files::kNumberedLibraries[1].count);
    ASSERT_NE(icon, nullptr);
    ReleaseIcon(icon);
  }

  // A small icon left behind by each call would add hundreds of each.
  const testing_support::GuiObjectCount after = testing_support::CountGuiObjects();
  EXPECT_LE(after.gdi, before.gdi);
  EXPECT_LE(after.user, before.user);
}

}  // namespace
