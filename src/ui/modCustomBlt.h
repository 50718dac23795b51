#pragma once

#include <windows.h>

namespace ui {

// Copies a w x h rectangle of `src` at (sx, sy) to `dst` at (x, y), leaving
// the destination as it was wherever the source pixel is `transparent`.
// Uses the device's own transparent copy where it has one, otherwise
// CustomBltMasked.
void CustomBlt(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy, COLORREF transparent);

// The same copy built from monochrome masks, for devices without it.
void CustomBltMasked(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy,
                     COLORREF transparent);

}  // namespace ui
