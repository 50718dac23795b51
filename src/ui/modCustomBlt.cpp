#include "ui/modCustomBlt.h"

#include "toolkit/ScopedHandle.h"

namespace ui {
namespace {

constexpr int kCaps1 = 94;
constexpr int kC1Transparent = 1;
constexpr int kNewTransparent = 3;

using toolkit::ScopedBitmap;
using toolkit::ScopedMemoryDC;
using toolkit::ScopedSelect;

}  // namespace

void CustomBlt(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy, COLORREF transparent) {
  if (::GetDeviceCaps(dst, kCaps1) & kC1Transparent) {
    int oldMode = ::SetBkMode(dst, kNewTransparent);
    COLORREF oldColour = ::SetBkColor(dst, transparent);
    ::BitBlt(dst, x, y, w, h, src, sx, sy, SRCCOPY);
    ::SetBkColor(dst, oldColour);
    ::SetBkMode(dst, oldMode);
    return;
  }
  CustomBltMasked(dst, x, y, w, h, src, sx, sy, transparent);
}

void CustomBltMasked(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy,
                     COLORREF transparent) {
  ScopedMemoryDC sourceCopy(::CreateCompatibleDC(dst)), mask(::CreateCompatibleDC(dst)),
      inverse(::CreateCompatibleDC(dst)), result(::CreateCompatibleDC(dst));
  ScopedBitmap maskBits(::CreateBitmap(w, h, 1, 1, nullptr));
  ScopedBitmap inverseBits(::CreateBitmap(w, h, 1, 1, nullptr));
  ScopedBitmap resultBits(::CreateCompatibleBitmap(dst, w, h));
  ScopedBitmap sourceBits(::CreateCompatibleBitmap(dst, w, h));
  {
    ScopedSelect selectMask(mask.get(), maskBits.get());
    ScopedSelect selectInverse(inverse.get(), inverseBits.get());
    ScopedSelect selectResult(result.get(), resultBits.get());
    ScopedSelect selectSource(sourceCopy.get(), sourceBits.get());

    // 1 where the source has the transparent colour.
    COLORREF oldBack = ::SetBkColor(src, transparent);
    ::BitBlt(mask.get(), 0, 0, w, h, src, sx, sy, SRCCOPY);
    ::SetBkColor(src, oldBack);
    ::BitBlt(inverse.get(), 0, 0, w, h, mask.get(), 0, 0, NOTSRCCOPY);

    // Colour DCs read a monochrome source through their text and
    // background colours: 0 -> text colour, 1 -> background colour.
    COLORREF oldText = ::SetTextColor(result.get(), RGB(0, 0, 0));
    oldBack = ::SetBkColor(result.get(), RGB(255, 255, 255));
    ::BitBlt(result.get(), 0, 0, w, h, dst, x, y, SRCCOPY);
    ::BitBlt(result.get(), 0, 0, w, h, mask.get(), 0, 0, SRCAND);
    ::SetTextColor(result.get(), oldText);
    ::SetBkColor(result.get(), oldBack);

    oldText = ::SetTextColor(sourceCopy.get(), RGB(0, 0, 0));
    oldBack = ::SetBkColor(sourceCopy.get(), RGB(255, 255, 255));
    ::BitBlt(sourceCopy.get(), 0, 0, w, h, src, sx, sy, SRCCOPY);
    ::BitBlt(sourceCopy.get(), 0, 0, w, h, inverse.get(), 0, 0, SRCAND);
    ::SetTextColor(sourceCopy.get(), oldText);
    ::SetBkColor(sourceCopy.get(), oldBack);

    ::BitBlt(result.get(), 0, 0, w, h, sourceCopy.get(), 0, 0, SRCINVERT);
    ::BitBlt(dst, x, y, w, h, result.get(), 0, 0, SRCCOPY);
  }
}

}  // namespace ui
