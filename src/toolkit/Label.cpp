#include "toolkit/Label.h"

#include "platform/Utf8.h"

namespace toolkit {

Label::Label(std::string name, int index, const TwipsRect& twips)
    : Element(std::move(name), "Label"), index_(index), twips_(twips) {}

void Label::Invalidate() const {
  if (invalidate) invalidate(Bounds());
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

void Label::Move(const TwipsRect& twips) {
  Invalidate();
  twips_ = twips;
  Invalidate();
}

void Label::Draw(HDC dc) const {
  if (!visible_ || caption_.empty()) return;
  RECT area = Bounds();
  int oldMode = ::SetBkMode(dc, TRANSPARENT);
  COLORREF oldColour = ::SetTextColor(dc, foreColor_);
  HGDIOBJ oldFont = Font() ? ::SelectObject(dc, Font()) : nullptr;
  const std::wstring caption = platform::Wide(caption_);
  ::DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &area,
              DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
  if (oldFont) ::SelectObject(dc, oldFont);
  ::SetTextColor(dc, oldColour);
  ::SetBkMode(dc, oldMode);
}

}  // namespace toolkit
