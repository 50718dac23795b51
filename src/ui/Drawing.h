// The drawing routines of the skinned windows: 3-D frames and etched lines,
// captions on picture surfaces, the tiled skin, and copies that leave one
// colour transparent.
#pragma once

#include <windows.h>

#include <string>

#include "toolkit/Canvas.h"
#include "toolkit/Element.h"
#include "toolkit/Form.h"
#include "toolkit/PictureBox.h"

namespace ui {

inline constexpr COLORREF kShadowColour = RGB(128, 128, 128);
inline constexpr COLORREF kHighlightColour = RGB(255, 255, 255);

enum class Bevel { kRaised, kSunken };

// A 3-D frame of `thickness` one-pixel rings, `distance` pixels out from the
// control's edge. With `onControl` the frame is drawn inside the control's
// own surface, else on its parent around it. Draws nothing where the parent
// measures in neither pixels nor twips.
void DrawBevel(toolkit::Element& control, int thickness, int distance, Bevel bevel, bool onControl);

// An etched line: grey, with a white line one pixel right and below. The
// window draws it in twips; coordinates given in pixels are converted, and
// the caller's variables keep the converted values.
void DrawEtchedLine(toolkit::Canvas& window, float& x1, float& y1, float& x2, float& y2);

// Whether a caption also becomes the surface's window text, which screen
// readers and tests read. Setting it is a trip to the Wine server, so text
// that changes faster than anyone reads it can leave it.
enum class WindowText { kSet, kLeave };

// One line of text, centred, its top 4 pixels below the surface's top edge,
// in the surface's font and text colour, over whatever the surface shows.
void DrawCaption(toolkit::PictureBox& surface, const std::string& text,
                 WindowText windowText = WindowText::kSet);

// Covers the window's client area with copies of the bitmap, the last row
// and column cut by the edges. The bitmap stays its owner's.
void TileBitmap(HWND window, HBITMAP bitmap);

// Copies a w x h rectangle of `src` at (sx, sy) to `dst` at (x, y), leaving
// the destination as it was wherever the source pixel is `transparent`.
// Uses the device's own transparent copy where it has one, otherwise
// TransparentBlitMasked.
void TransparentBlit(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy,
                     COLORREF transparent);

// The same copy built from monochrome masks, for devices without it.
void TransparentBlitMasked(HDC dst, int x, int y, int w, int h, HDC src, int sx, int sy,
                           COLORREF transparent);

// The logo bitmap drawn for the display scale nearest `dpi`.
int LogoForDpi(int dpi);

// The skin enlarged for `dpi`, as the whole window is; the same picture at
// 96 dpi. A soft texture, it stays smooth when enlarged.
platform::Picture SkinForDpi(const platform::Picture& skin, int dpi);

// The background both skinned windows share: the skin tiled over the client
// area, an etched line from the left edge at `lineTop`, `lineLength` pixels
// long, and the logo (LogoForDpi) at `logoAt` with its yellow transparent,
// all given in pixels at 96 dpi and scaled to the window's DPI. The logo
// goes through `logoSurface`, which takes its size meanwhile.
void PaintSkin(toolkit::Form& window, const platform::Picture& skin, const platform::Picture& logo,
               toolkit::PictureBox& logoSurface, float lineTop, float lineLength, POINT logoAt);

}  // namespace ui
