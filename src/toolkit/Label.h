// A label without a window of its own: the form draws its caption over the
// form's background (so the background shows through) and routes the mouse
// events over its rectangle to it.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "toolkit/Element.h"
#include "toolkit/MouseEvents.h"
#include "toolkit/Screen.h"

namespace toolkit {

class Label : public Element {
 public:
  Label(std::string name, int index, const TwipsRect& twips);

  int Index() const { return index_; }  // -1 outside a pair
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  COLORREF ForeColor() const { return foreColor_; }
  void SetForeColor(COLORREF colour);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  // Position and size in the form's client area: as designed, in twips, and
  // as drawn, in pixels.
  const TwipsRect& Position() const { return twips_; }
  void Move(const TwipsRect& twips);
  RECT Bounds() const override { return Screen::ToPixels(twips_, Dpi()); }

  // Draws the caption, word-wrapped inside the bounds, without a background.
  void Draw(HDC dc) const;

  // Set by the form so that a change shows at once.
  std::function<void(const RECT&)> invalidate;

  // Event positions are pixels relative to the label.
  MouseHandlers mouse;

 private:
  void Invalidate() const;

  int index_;
  TwipsRect twips_;
  std::string caption_;
  COLORREF foreColor_ = RGB(0, 0, 0);
  bool visible_ = true;
};

}  // namespace toolkit
