// Drawing icons into a picture surface, the shell's icons, and pictures that
// own their icon.
#include "icons/modIcon.h"

#include <gtest/gtest.h>

#include "IconTestFiles.h"
#include "icons/modExtractIcon.h"
#include "support/Pixels.h"
#include "support/TestSupport.h"

namespace {

using testing_support::IconAlive;
using testing_support::PixelGrid;
using testing_support::ReadIconPixels;
using testing_support::ReadPixels;
using toolkit::Picture;
using toolkit::PictureBox;

constexpr COLORREF kBack = RGB(10, 20, 30);
constexpr COLORREF kMark = RGB(250, 0, 250);
constexpr int kSurfaceSize = 48;
constexpr int kOffset = 8;  // where the icon goes on the surface
constexpr int kLargeIconSize = 32;
constexpr int kSmallIconSize = 16;
constexpr int kOpaque = 255;

PixelGrid ImageOf(const PictureBox& box) {
  return ReadPixels(static_cast<HBITMAP>(box.Image().Handle()));
}

// A surface with a mark drawn on it already, where the icon's second
// (transparent) checkerboard square will fall: an unchanged image is then
// not merely a blank one. The parameter is the AutoRedraw switch the caller
// leaves it with.
class DrawIconInPicture : public ::testing::TestWithParam<bool> {
 protected:
  DrawIconInPicture() : box_("picTMP", host_.Hwnd(), RECT{0, 0, kSurfaceSize, kSurfaceSize}, 101) {
    box_.SetBackColor(kBack);
    box_.SetAutoRedraw(true);
    RECT underClearSquare{kOffset + 4, kOffset, kOffset + 8, kOffset + 4};
    HBRUSH brush = ::CreateSolidBrush(kMark);
    ::FillRect(box_.hDC(), &underClearSquare, brush);
    ::DeleteObject(brush);
    box_.SetAutoRedraw(GetParam());
  }
  testing_support::TestWindow host_;
  PictureBox box_;
};

TEST_P(DrawIconInPicture, NoIconChangesNeitherPixelsNorTheSwitch) {
  const PixelGrid before = ImageOf(box_);
  EXPECT_FALSE(icons::DrawIconInPicture(nullptr, box_, kOffset, kOffset));
  EXPECT_EQ(box_.AutoRedraw(), GetParam());
  EXPECT_EQ(ImageOf(box_).bgra, before.bgra);
}

TEST_P(DrawIconInPicture, TheIconLandsInTheImageAndItsTransparentPixelsDoNot) {
  HICON icon = icons::ExtractLargeIcon(icon_files::Path(icon_files::kIconFile), 0);
  ASSERT_NE(icon, nullptr);
  const PixelGrid iconPixels = ReadIconPixels(icon);
  ASSERT_EQ(iconPixels.width, kLargeIconSize);
  const PixelGrid before = ImageOf(box_);

  EXPECT_TRUE(icons::DrawIconInPicture(icon, box_, kOffset, kOffset));
  EXPECT_EQ(box_.AutoRedraw(), GetParam());
  icons::ReleaseIcon(icon);

  const PixelGrid after = ImageOf(box_);
  int opaque = 0, clear = 0;
  for (int y = 0; y < kSurfaceSize; ++y) {
    for (int x = 0; x < kSurfaceSize; ++x) {
      const int ix = x - kOffset, iy = y - kOffset;
      const bool onIcon = ix >= 0 && iy >= 0 && ix < kLargeIconSize && iy < kLargeIconSize;
      if (onIcon && iconPixels.Alpha(ix, iy) == kOpaque) {
        ++opaque;
        EXPECT_EQ(after.Colour(x, y), iconPixels.Colour(ix, iy)) << x << "," << y;
      } else {
        clear += onIcon;
        EXPECT_EQ(after.Colour(x, y), before.Colour(x, y)) << x << "," << y;
      }
    }
  }
  EXPECT_GT(opaque, 0);
  EXPECT_GT(clear, 0);
  EXPECT_EQ(after.Colour(kOffset + 5, kOffset + 1), kMark);
}

INSTANTIATE_TEST_SUITE_P(AutoRedraw, DrawIconInPicture, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "WasOn" : "WasOff"; });

TEST(GetShellIconPicture, AnExistingFolderHasLargeAndSmallIconsThatThePictureOwns) {
  testing_support::ScratchFolder folder;
  const std::pair<std::int32_t, int> sizes[] = {{icons::kLargeShellIcon, kLargeIconSize},
                                                {1, kSmallIconSize}};
  for (auto [size, pixels] : sizes) {
    Picture picture = icons::GetShellIconPicture(folder.Path(), size);
    ASSERT_EQ(picture.Type(), PICTYPE_ICON);
    auto icon = static_cast<HICON>(picture.Handle());
    EXPECT_EQ(ReadIconPixels(icon).width, pixels);
    picture.Reset();
    EXPECT_FALSE(IconAlive(icon));
    EXPECT_FALSE(icons::GetShellIconPicture(folder / "missing", size));
  }
}

TEST(IconToPicture, ThePictureOwnsTheIcon) {
  EXPECT_FALSE(icons::IconToPicture(nullptr));
  HICON icon = icons::ExtractLargeIcon(icon_files::Path(icon_files::kIconFile), 0);
  Picture picture = icons::IconToPicture(icon);
  ASSERT_EQ(picture.Type(), PICTYPE_ICON);
  EXPECT_EQ(picture.Handle(), icon);
  picture.Reset();
  EXPECT_FALSE(IconAlive(icon));
}

}  // namespace
