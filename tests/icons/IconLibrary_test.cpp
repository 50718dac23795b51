// The shipping icon library, iconos.dll: enough folder icons, each with
// 16, 32 and 48 pixel images with an alpha channel, all different.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "icons/modExtractIcon.h"
#include "support/Pixels.h"
#include "support/TestSupport.h"
#include "toolkit/ScopedHandle.h"

namespace {

constexpr int kLeastIcons = 24;
constexpr int kLargeIconSize = 32;

// The published layout of an icon group resource.
#pragma pack(push, 2)
struct GroupHeader {
  WORD reserved;
  WORD type;
  WORD count;
};
struct GroupEntry {
  BYTE width;
  BYTE height;
  BYTE colours;
  BYTE reserved;
  WORD planes;
  WORD bitCount;
  DWORD bytes;
  WORD id;
};
#pragma pack(pop)

std::string Library() {
  return testing_support::DistFolder() + "iconos.dll";
}

BOOL CALLBACK CollectGroup(HMODULE, LPCSTR, LPSTR name, LONG_PTR groups) {
  reinterpret_cast<std::vector<LPSTR>*>(groups)->push_back(name);
  return TRUE;
}

TEST(IconLibrary, EveryIconHasSmallLargeAndExtraLargeImagesWithAlpha) {
  toolkit::ScopedModule library(
      ::LoadLibraryExA(Library().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
  ASSERT_TRUE(library);
  std::vector<LPSTR> groups;
  ::EnumResourceNamesA(library.get(), RT_GROUP_ICON, CollectGroup,
                       reinterpret_cast<LONG_PTR>(&groups));
  EXPECT_GE(groups.size(), static_cast<size_t>(kLeastIcons));
  for (LPSTR group : groups) {
    HRSRC found = ::FindResourceA(library.get(), group, RT_GROUP_ICON);
    const auto* header =
        static_cast<const GroupHeader*>(::LockResource(::LoadResource(library.get(), found)));
    ASSERT_NE(header, nullptr);
    const auto* entries = reinterpret_cast<const GroupEntry*>(header + 1);
    std::set<int> sizes;
    for (int i = 0; i < header->count; ++i) {
      EXPECT_EQ(entries[i].bitCount, 32) << "group " << reinterpret_cast<ULONG_PTR>(group);
      EXPECT_EQ(entries[i].width, entries[i].height);
      sizes.insert(entries[i].width);
    }
    EXPECT_EQ(sizes, (std::set<int>{16, 32, 48})) << "group " << reinterpret_cast<ULONG_PTR>(group);
  }
}

TEST(IconLibrary, LargeIconsAreDistinctAndTransparentAroundTheFolder) {
  const int count = icons::GetIconCount(Library());
  ASSERT_GE(count, kLeastIcons);
  std::set<std::vector<std::uint32_t>> seen;
  for (int position = 0; position < count; ++position) {
    HICON icon = icons::ExtractLargeIcon(Library(), position);
    ASSERT_NE(icon, nullptr) << position;
    testing_support::PixelGrid pixels = testing_support::ReadIconPixels(icon);
    icons::ReleaseIcon(icon);
    ASSERT_EQ(pixels.width, kLargeIconSize);
    EXPECT_EQ(pixels.Alpha(0, 0), 0) << position;
    EXPECT_EQ(pixels.Alpha(kLargeIconSize / 2, kLargeIconSize / 2), 255) << position;
    EXPECT_TRUE(seen.insert(pixels.bgra).second) << "icon " << position << " repeats another";
  }
}

}  // namespace
