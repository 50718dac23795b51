#include "toolkit/Picture.h"

#include <gtest/gtest.h>

namespace {

using toolkit::Picture;

TEST(Picture, TheLastReferenceDestroysTheBitmapAndNoHandleGivesNoPicture) {
  HBITMAP bitmap = ::CreateBitmap(2, 2, 1, 32, nullptr);
  Picture first = Picture::Adopt(Picture::Kind::Bitmap, bitmap);
  EXPECT_EQ(first.Handle(), bitmap);
  EXPECT_EQ(first.Type(), PICTYPE_BITMAP);

  Picture copy = first;
  first.Reset();
  EXPECT_EQ(::GetObjectType(bitmap), DWORD{OBJ_BITMAP}) << "a copy still holds the picture";
  Picture moved = std::move(copy);
  EXPECT_FALSE(copy);
  moved = Picture();
  EXPECT_EQ(::GetObjectType(bitmap), 0u);

  Picture none = Picture::Adopt(Picture::Kind::Icon, nullptr);
  EXPECT_FALSE(none);
  EXPECT_EQ(none.Type(), PICTYPE_NONE);
}

}  // namespace
