#include "ui/WindowShape.h"

#include "platform/ScopedHandle.h"
#include "toolkit/Screen.h"
#include "ui/ProgramFont.h"

namespace ui {
namespace {
constexpr double kShapePoints = 240;
constexpr wchar_t kShapeLetter[] = L"A";
}  // namespace

HRGN ApplyWindowShape(toolkit::Form& window) {
  toolkit::TryProperty([&] {
    window.SetFontName(kProgramFontFace);
    window.SetFontSize(kShapePoints);
  });
  HDC dc = window.hDC();
  HRGN path = nullptr;
  {
    platform::ScopedSelect font(dc, window.Font());
    int oldMode = ::SetBkMode(dc, TRANSPARENT);
    ::BeginPath(dc);
    ::TextOutW(dc, 0, 0, kShapeLetter, 1);
    ::EndPath(dc);
    ::SetBkMode(dc, oldMode);
    path = ::PathToRegion(dc);
  }
  if (!path) return nullptr;
  RECT box{};
  ::GetRgnBox(path, &box);
  HRGN shape = ::CreateRectRgnIndirect(&box);
  ::CombineRgn(shape, shape, path, RGN_AND);
  ::DeleteObject(path);
  // From here on the system owns the region.
  ::SetWindowRgn(window.Hwnd(), shape, TRUE);
  return shape;
}

void ZoomWindow(toolkit::Form& window, bool closing, const RECT& startRect) {
  RECT own{window.ToPixels(window.Left()), window.ToPixels(window.Top()),
           window.ToPixels(window.Left() + window.Width()),
           window.ToPixels(window.Top() + window.Height())};
  const RECT& from = closing ? own : startRect;
  const RECT& to = closing ? startRect : own;
  ::DrawAnimatedRects(window.Hwnd(), IDANI_CAPTION, &from, &to);
}

void DragWindow(toolkit::Form& window) {
  ::ReleaseCapture();
  ::SendMessageW(window.Hwnd(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

}  // namespace ui
