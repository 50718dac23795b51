#include "toolkit/TextBox.h"

namespace toolkit {
namespace {
DWORD StyleFor(TextBox::Lines lines) {
  DWORD style = WS_TABSTOP | ES_LEFT | ES_AUTOHSCROLL;
  if (lines == TextBox::Lines::kMultiple) {
    style = WS_TABSTOP | ES_LEFT | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL;
  }
  return style;
}
}  // namespace

TextBox::TextBox(std::string name, HWND parent, const RECT& pixels, int id, Lines lines)
    : Control(std::move(name), "TextBox", "EDIT", StyleFor(lines), WS_EX_CLIENTEDGE, parent, pixels,
              id) {
  SetText("");
}

std::string TextBox::Text() const {
  int length = ::GetWindowTextLengthA(Hwnd());
  std::string text(static_cast<size_t>(length) + 1, '\0');
  int copied = ::GetWindowTextA(Hwnd(), text.data(), length + 1);
  text.resize(copied > 0 ? static_cast<size_t>(copied) : 0);
  return text;
}

void TextBox::SetText(const std::string& text) {
  ::SetWindowTextA(Hwnd(), text.c_str());
}

void TextBox::OnCommand(WORD code) {
  if (code == EN_CHANGE && onChange) onChange();
}

bool TextBox::PreviewMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
  if (message == WM_CHAR && onKeyPress) onKeyPress(static_cast<char>(wParam));
  return false;
}

}  // namespace toolkit
