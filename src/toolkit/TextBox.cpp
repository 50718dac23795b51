#include "toolkit/TextBox.h"

#include "platform/Utf8.h"
#include "toolkit/WindowBase.h"

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
    : Control(std::move(name), "TextBox", L"EDIT", StyleFor(lines), WS_EX_CLIENTEDGE, parent,
              pixels, id) {
  SetText("");
}

std::string TextBox::Text() const {
  return WindowText(Hwnd());
}

void TextBox::SetText(const std::string& text) {
  ::SetWindowTextW(Hwnd(), platform::Wide(text).c_str());
}

void TextBox::OnCommand(WORD code) {
  if (code == EN_CHANGE && onChange) onChange();
}

bool TextBox::PreviewMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
  if (message == WM_CHAR && onKeyPress) onKeyPress(static_cast<wchar_t>(wParam));
  return false;
}

}  // namespace toolkit
