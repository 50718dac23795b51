#include "toolkit/Picture.h"

#include <gtest/gtest.h>

namespace {

using toolkit::Picture;

bool BitmapAlive(HANDLE handle) {
  return ::GetObjectType(handle) == OBJ_BITMAP;
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

TEST(Picture, NoHandleGivesNoPicture) {
  Picture none = Picture::Adopt(Picture::Kind::Icon, nullptr);
  EXPECT_FALSE(none);
  EXPECT_EQ(none.Handle(), nullptr);
  EXPECT_EQ(none.Type(), PICTYPE_NONE);
}

}  // namespace
