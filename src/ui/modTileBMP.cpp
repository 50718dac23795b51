#include "ui/modTileBMP.h"

#include "toolkit/ScopedHandle.h"

namespace ui {

void TileBitmap(HWND window, HBITMAP bitmap) {
  RECT client{};
  ::GetClientRect(window, &client);
  toolkit::WindowDC windowDC(window);
  toolkit::ScopedMemoryDC memory(::CreateCompatibleDC(windowDC.get()));
  toolkit::ScopedSelect select(memory.get(), bitmap);
  BITMAP info{};
  ::GetObjectA(bitmap, sizeof info, &info);
  const int w = info.bmWidth, h = info.bmHeight;
  if (w <= 0 || h <= 0) return;
  const int columns = client.right / w, rows = client.bottom / h;
  for (int c = 0; c <= columns; ++c) {
    for (int r = 0; r <= rows; ++r) {
      ::BitBlt(windowDC.get(), c * w, r * h, w, h, memory.get(), 0, 0, SRCCOPY);
    }
  }
}

}  // namespace ui
