#include "toolkit/Label.h"

namespace toolkit {

Label::Label(std::string name, int index, const RECT& pixels)
    : Element(std::move(name), "Label"), index_(index), bounds_(pixels) {}

void Label::Invalidate() const {
  if (invalidate) invalidate(bounds_);
}

void Label::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Invalidate();
}

void Label::SetForeColor(COLORREF colour) {
  foreColor_ = colour;
  Invalidate();
}

void Label::SetVisible(bool visible) {
  visible_ = visible;
  Invalidate();
}

void Label::SetBounds(const RECT& pixels) {
  Invalidate();
  bounds_ = pixels;
  Invalidate();
}

void Label::Draw(HDC dc) const {
  if (!visible_ || caption_.empty()) return;
  RECT area = bounds_;
  int oldMode = ::SetBkMode(dc, TRANSPARENT);
  COLORREF oldColour = ::SetTextColor(dc, foreColor_);
  HGDIOBJ oldFont = Font() ? ::SelectObject(dc, Font()) : nullptr;
  ::DrawTextA(dc, caption_.c_str(), static_cast<int>(caption_.size()), &area,
              DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
  if (oldFont) ::SelectObject(dc, oldFont);
  ::SetTextColor(dc, oldColour);
  ::SetBkMode(dc, oldMode);
}

}  // namespace toolkit
