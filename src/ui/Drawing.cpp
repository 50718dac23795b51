#include "ui/Drawing.h"

#include <climits>
#include <cmath>
#include <cstdlib>

#include "platform/Dpi.h"
#include "platform/ScopedHandle.h"
#include "platform/Utf8.h"
#include "resource_ids.h"
#include "toolkit/Screen.h"

namespace ui {
namespace {

constexpr int kCaptionTop = 4;
constexpr UINT kOneCentredLine = DT_CENTER | DT_SINGLELINE;
// Device capability index and bit of a driver that copies with a transparent
// colour itself, and the background mode that asks for it.
constexpr int kCaps1 = 94;
constexpr int kC1Transparent = 1;
constexpr int kNewTransparent = 3;
constexpr COLORREF kLogoTransparent = RGB(255, 255, 0);

struct Edges {
  double left, top, right, bottom;
};

}  // namespace

void DrawBevel(toolkit::Element& control, int thickness, int distance, Bevel bevel,
               bool onControl) {
  toolkit::Canvas* parent = control.Parent();
  if (!parent) return;
  double px = 0, py = 0;
  switch (parent->Scale()) {
    case toolkit::ScaleMode::kPixels: px = py = 1; break;
    case toolkit::ScaleMode::kTwips:
      px = py = toolkit::Screen::TwipsPerPixel(parent->DrawingDpi());
      break;
    default: return;
  }
  // A frame of one pixel at 96 dpi is two at 144 and 192.
  thickness = platform::ScalePixels(thickness, control.Dpi());
  distance = platform::ScalePixels(distance, control.Dpi());
  toolkit::Canvas* target = onControl ? dynamic_cast<toolkit::Canvas*>(&control) : parent;
  if (!target) return;

  // The control's position and size in its parent's unit.
  RECT pixels = control.Bounds();
  double left = pixels.left * px, top = pixels.top * py;
  double width = (pixels.right - pixels.left) * px, height = (pixels.bottom - pixels.top) * py;
  Edges e = onControl ? Edges{0, 0, width - 1, height - 1}
                      : Edges{left - px, top - py, left + width, top + height};

  // Rings beyond the first go outwards around the control, inwards on it,
  // where outside would be cut off.
  const int step = onControl ? -1 : 1;
  for (int i = distance; i < distance + thickness; ++i) {
    double dx = step * i * px, dy = step * i * py;
    double l = e.left - dx, t = e.top - dy, r = e.right + dx, b = e.bottom + dy;
    if (bevel == Bevel::kSunken) {
      target->DrawLine(l, t, r, t, kShadowColour);
      target->DrawLine(l, t, l, b, kShadowColour);
      target->DrawLine(l, b, r + px, b, kHighlightColour);
      target->DrawLine(r, t, r, b, kHighlightColour);
    } else {
      target->DrawLine(r, b, r, t, kShadowColour);
      target->DrawLine(r, b, l, b, kShadowColour);
      target->DrawLine(r, t, l - px, t, kHighlightColour);
      target->DrawLine(l, b, l, t, kHighlightColour);
    }
  }
}

void DrawEtchedLine(toolkit::Canvas& window, float& x1, float& y1, float& x2, float& y2) {
  const int savedWidth = window.DrawWidth();
  const toolkit::ScaleMode savedMode = window.Scale();
  const double tpp = toolkit::Screen::TwipsPerPixel(window.DrawingDpi());
  if (savedMode == toolkit::ScaleMode::kPixels) {
    x1 = static_cast<float>(std::floor(x1 * tpp));
    y1 = static_cast<float>(std::floor(y1 * tpp));
    x2 = static_cast<float>(std::floor(x2 * tpp));
    y2 = static_cast<float>(std::floor(y2 * tpp));
  }
  window.SetScaleMode(toolkit::ScaleMode::kTwips);
  window.SetDrawWidth(1);
  // Each of the two lines is as many pixels thick as the display scale makes
  // one pixel of the design.
  const int thickness = platform::ScalePixels(1, window.DrawingDpi());
  for (int i = 0; i < thickness; ++i) {
    const double grey = i * tpp, white = (thickness + i) * tpp;
    window.DrawLine(x1, y1 + grey, x2, y2 + grey, kShadowColour);
    window.DrawLine(x1 + white, y1 + white, x2 + white, y2 + white, kHighlightColour);
  }
  window.SetDrawWidth(savedWidth);
  window.SetScaleMode(savedMode);
}

void DrawCaption(toolkit::PictureBox& surface, const std::string& text, WindowText windowText) {
  RECT area{0, platform::ScalePixels(kCaptionTop, surface.Dpi()), surface.ScaleWidth(),
            surface.ScaleHeight()};
  const std::wstring wide = platform::Wide(text);
  ::DrawTextW(surface.hDC(), wide.c_str(), static_cast<int>(wide.size()), &area, kOneCentredLine);
  if (windowText == WindowText::kSet && surface.Hwnd()) {
    ::SetWindowTextW(surface.Hwnd(), wide.c_str());
  }
}

void TileBitmap(HWND window, HBITMAP bitmap) {
  RECT client{};
  ::GetClientRect(window, &client);
  platform::WindowDC windowDC(window);
  platform::ScopedMemoryDC memory(::CreateCompatibleDC(windowDC.get()));
  platform::ScopedSelect select(memory.get(), bitmap);
  BITMAP info{};
  ::GetObjectW(bitmap, sizeof info, &info);
  const int w = info.bmWidth, h = info.bmHeight;
  if (w <= 0 || h <= 0) return;
  const int columns = client.right / w, rows = client.bottom / h;
  for (int c = 0; c <= columns; ++c) {
    for (int r = 0; r <= rows; ++r) {
      ::BitBlt(windowDC.get(), c * w, r * h, w, h, memory.get(), 0, 0, SRCCOPY);
    }
  }
}

void TransparentBlit(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy,
                     COLORREF transparent) {
  if (::GetDeviceCaps(dst, kCaps1) & kC1Transparent) {
    int oldMode = ::SetBkMode(dst, kNewTransparent);
    COLORREF oldColour = ::SetBkColor(dst, transparent);
    ::BitBlt(dst, x, y, w, h, src, sx, sy, SRCCOPY);
    ::SetBkColor(dst, oldColour);
    ::SetBkMode(dst, oldMode);
    return;
  }
  TransparentBlitMasked(dst, x, y, w, h, src, sx, sy, transparent);
}

void TransparentBlitMasked(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy,
                           COLORREF transparent) {
  platform::ScopedMemoryDC sourceCopy(::CreateCompatibleDC(dst)), mask(::CreateCompatibleDC(dst)),
      inverse(::CreateCompatibleDC(dst)), result(::CreateCompatibleDC(dst));
  platform::ScopedBitmap maskBits(::CreateBitmap(w, h, 1, 1, nullptr));
  platform::ScopedBitmap inverseBits(::CreateBitmap(w, h, 1, 1, nullptr));
  platform::ScopedBitmap resultBits(::CreateCompatibleBitmap(dst, w, h));
  platform::ScopedBitmap sourceBits(::CreateCompatibleBitmap(dst, w, h));
  {
    platform::ScopedSelect selectMask(mask.get(), maskBits.get());
    platform::ScopedSelect selectInverse(inverse.get(), inverseBits.get());
    platform::ScopedSelect selectResult(result.get(), resultBits.get());
    platform::ScopedSelect selectSource(sourceCopy.get(), sourceBits.get());

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

int LogoForDpi(int dpi) {
  constexpr struct {
    int dpi;
    int id;
  } kLogos[] = {{96, IDB_LOGO},
                {120, IDB_LOGO_125},
                {144, IDB_LOGO_150},
                {168, IDB_LOGO_175},
                {192, IDB_LOGO_200}};
  int best = IDB_LOGO, distance = INT_MAX;
  for (const auto& logo : kLogos) {
    if (std::abs(logo.dpi - dpi) < distance) {
      distance = std::abs(logo.dpi - dpi);
      best = logo.id;
    }
  }
  return best;
}

platform::Picture SkinForDpi(const platform::Picture& skin, int dpi) {
  BITMAP info{};
  if (dpi == platform::kDesignDpi || !skin.Handle() ||
      !::GetObjectW(skin.Handle(), sizeof info, &info)) {
    return skin;
  }
  const int width = platform::ScalePixels(info.bmWidth, dpi);
  const int height = platform::ScalePixels(info.bmHeight, dpi);
  platform::WindowDC screen(nullptr);
  platform::ScopedBitmap scaled(::CreateCompatibleBitmap(screen.get(), width, height));
  if (!scaled) return skin;
  {
    platform::ScopedMemoryDC source(::CreateCompatibleDC(screen.get()));
    platform::ScopedMemoryDC target(::CreateCompatibleDC(screen.get()));
    platform::ScopedSelect selectSource(source.get(), skin.Handle());
    platform::ScopedSelect selectTarget(target.get(), scaled.get());
    ::SetStretchBltMode(target.get(), HALFTONE);
    ::SetBrushOrgEx(target.get(), 0, 0, nullptr);
    ::StretchBlt(target.get(), 0, 0, width, height, source.get(), 0, 0, info.bmWidth, info.bmHeight,
                 SRCCOPY);
  }
  // From here on the picture owns the bitmap.
  return platform::Picture::Adopt(platform::Picture::Kind::Bitmap, scaled.release());
}

void PaintSkin(toolkit::Form& window, const platform::Picture& skin, const platform::Picture& logo,
               toolkit::PictureBox& logoSurface, float lineTop, float lineLength, POINT logoAt) {
  const platform::Picture tile = SkinForDpi(skin, window.Dpi());
  TileBitmap(window.Hwnd(), static_cast<HBITMAP>(tile.Handle()));
  float x1 = 0, y1 = static_cast<float>(window.ScalePixels(static_cast<int>(lineTop)));
  float x2 = static_cast<float>(window.ScalePixels(static_cast<int>(lineLength))), y2 = y1;
  DrawEtchedLine(window, x1, y1, x2, y2);
  logoSurface.SetAutoSize(true);
  logoSurface.SetPicture(logo);
  TransparentBlit(window.hDC(), window.ScalePixels(logoAt.x), window.ScalePixels(logoAt.y),
                  logoSurface.ScaleWidth(), logoSurface.ScaleHeight(), logoSurface.hDC(), 0, 0,
                  kLogoTransparent);
  logoSurface.SetAutoSize(false);
}

}  // namespace ui
