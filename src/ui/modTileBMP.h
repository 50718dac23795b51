#pragma once

#include <windows.h>

namespace ui {

// Covers the window's client area with copies of the bitmap, the last row
// and column cut by the edges. The bitmap stays its owner's.
void TileBitmap(HWND window, HBITMAP bitmap);

}  // namespace ui
