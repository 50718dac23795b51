#include "toolkit/ScopedHandle.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using toolkit::ScopedBitmap;

HBITMAP NewBitmap() {
  return ::CreateBitmap(4, 4, 1, 32, nullptr);
}
bool Alive(HGDIOBJ object) {
  return ::GetObjectType(object) != 0;
}

TEST(ScopedHandle, ReleasesExactlyOnceWhateverTheRouteOut) {
  HBITMAP raw = NewBitmap();
  {
    ScopedBitmap owner(raw);
    ScopedBitmap moved(std::move(owner));
    EXPECT_FALSE(owner);
    EXPECT_TRUE(Alive(raw));
  }
  EXPECT_FALSE(Alive(raw));

  HBITMAP first = NewBitmap(), second = NewBitmap();
  ScopedBitmap a(first), b(second);
  a = std::move(b);
  EXPECT_FALSE(Alive(first)) << "assignment releases what it replaces";
  EXPECT_EQ(a.release(), second);
  a.reset();
  EXPECT_TRUE(Alive(second)) << "released ownership is the caller's";
  ::DeleteObject(second);
}

TEST(ScopedHandle, FindHandlesUseTheirOwnInvalidValue) {
  EXPECT_FALSE(toolkit::ScopedFind(INVALID_HANDLE_VALUE));
  WIN32_FIND_DATAA data;
  EXPECT_TRUE(toolkit::ScopedFind(::FindFirstFileA("C:\\windows\\*", &data)));
}

}  // namespace
