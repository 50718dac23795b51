#include "toolkit/ComboBox.h"

namespace toolkit {
namespace {
RECT WithDropList(RECT pixels, int dropLines) {
  pixels.bottom += dropLines * (pixels.bottom - pixels.top);
  return pixels;
}
}  // namespace

ComboBox::ComboBox(std::string name, HWND parent, const RECT& pixels, int id, int dropLines)
    : Control(std::move(name), "ComboBox", "COMBOBOX",
              WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_AUTOHSCROLL, 0,
              parent, WithDropList(pixels, dropLines), id) {}

void ComboBox::Clear() {
  ::SendMessageA(Hwnd(), CB_RESETCONTENT, 0, 0);
}

void ComboBox::AddItem(const std::string& text) {
  ::SendMessageA(Hwnd(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

int ComboBox::ListCount() const {
  LRESULT count = ::SendMessageA(Hwnd(), CB_GETCOUNT, 0, 0);
  return count == CB_ERR ? 0 : static_cast<int>(count);
}

int ComboBox::ListIndex() const {
  LRESULT index = ::SendMessageA(Hwnd(), CB_GETCURSEL, 0, 0);
  return index == CB_ERR ? -1 : static_cast<int>(index);
}

void ComboBox::SetListIndex(int index) {
  ::SendMessageA(Hwnd(), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

std::string ComboBox::Text() const {
  int index = ListIndex();
  if (index < 0) return {};
  LRESULT length = ::SendMessageA(Hwnd(), CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
  if (length == CB_ERR) return {};
  std::string text(static_cast<size_t>(length) + 1, '\0');
  LRESULT copied = ::SendMessageA(Hwnd(), CB_GETLBTEXT, static_cast<WPARAM>(index),
                                  reinterpret_cast<LPARAM>(text.data()));
  text.resize(copied == CB_ERR ? 0 : static_cast<size_t>(copied));
  return text;
}

void ComboBox::OnCommand(WORD code) {
  if (code == CBN_SELCHANGE && onClick) onClick();
}

bool ComboBox::PreviewMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
  if (message == WM_CHAR && onKeyPress) onKeyPress(static_cast<char>(wParam));
  return false;
}

}  // namespace toolkit
