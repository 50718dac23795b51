#include "toolkit/Picture.h"

#include <gtest/gtest.h>

#include "support/Pixels.h"

namespace {

using toolkit::Picture;

bool BitmapAlive(HANDLE handle) {
  return ::GetObjectType(handle) == OBJ_BITMAP;
}
HICON NewIcon() {
  BYTE and_mask[32 * 4] = {}, xor_mask[32 * 4] = {};
  return ::CreateIcon(nullptr, 32, 32, 1, 1, and_mask, xor_mask);
}

TEST(Picture, TheLastReferenceDestroysTheBitmap) {
  HBITMAP bitmap = ::CreateBitmap(2, 2, 1, 32, nullptr);
  Picture first = Picture::Adopt(Picture::Kind::Bitmap, bitmap);
  ASSERT_TRUE(first);
  EXPECT_EQ(first.Handle(), bitmap);
  EXPECT_EQ(first.Type(), PICTYPE_BITMAP);

  Picture copy = first;
  first.Reset();
  EXPECT_TRUE(BitmapAlive(bitmap)) << "a copy still holds the picture";
  Picture moved = std::move(copy);
  EXPECT_FALSE(copy);
  moved = Picture();
  EXPECT_FALSE(BitmapAlive(bitmap));
}

TEST(Picture, TheLastReferenceDestroysTheIcon) {
  HICON icon = NewIcon();
  {
    Picture picture = Picture::Adopt(Picture::Kind::Icon, icon);
    EXPECT_EQ(picture.Type(), PICTYPE_ICON);
    EXPECT_EQ(picture.Handle(), icon);
    EXPECT_TRUE(testing_support::IconAlive(icon));
  }
  EXPECT_FALSE(testing_support::IconAlive(icon));
}

TEST(Picture, NoHandleGivesNoPicture) {
  Picture none = Picture::Adopt(Picture::Kind::Icon, nullptr);
  EXPECT_FALSE(none);
  EXPECT_EQ(none.Handle(), nullptr);
  EXPECT_EQ(none.Type(), PICTYPE_NONE);
}

}  // namespace
