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
    EXPECT_EQ(moved.get(), raw);
    EXPECT_TRUE(Alive(raw));
  }
  EXPECT_FALSE(Alive(raw));

  HBITMAP first = NewBitmap(), second = NewBitmap();
  ScopedBitmap a(first), b(second);
  a = std::move(b);
  EXPECT_FALSE(Alive(first)) << "assignment releases what it replaces";
  EXPECT_TRUE(Alive(second));
  a.reset();
  EXPECT_FALSE(Alive(second));
}

TEST(ScopedHandle, ReleaseHandsOwnershipBack) {
  HBITMAP raw = NewBitmap();
  {
    ScopedBitmap owner(raw);
    EXPECT_EQ(owner.release(), raw);
  }
  EXPECT_TRUE(Alive(raw));
  ::DeleteObject(raw);
}

TEST(ScopedHandle, FindHandlesUseTheirOwnInvalidValue) {
  toolkit::ScopedFind none(INVALID_HANDLE_VALUE);
  EXPECT_FALSE(none);
  WIN32_FIND_DATAA data;
  toolkit::ScopedFind search(::FindFirstFileA("C:\\windows\\*", &data));
  EXPECT_TRUE(search);
}

}  // namespace
