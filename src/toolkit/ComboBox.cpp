#include "toolkit/ComboBox.h"

#include "platform/Utf8.h"

namespace toolkit {
namespace {
RECT WithDropList(RECT pixels, int dropLines) {
  pixels.bottom += dropLines * (pixels.bottom - pixels.top);
  return pixels;
}
}  // namespace

ComboBox::ComboBox(std::string name, HWND parent, const RECT& pixels, int id, int dropLines)
    : Control(std::move(name), "ComboBox", L"COMBOBOX",
              WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_AUTOHSCROLL, 0,
              parent, WithDropList(pixels, dropLines), id) {}

void ComboBox::Clear() {
  ::SendMessageW(Hwnd(), CB_RESETCONTENT, 0, 0);
}

void ComboBox::AddItem(const std::string& text) {
  ::SendMessageW(Hwnd(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(platform::Wide(text).c_str()));
}

int ComboBox::ListCount() const {
  LRESULT count = ::SendMessageW(Hwnd(), CB_GETCOUNT, 0, 0);
  return count == CB_ERR ? 0 : static_cast<int>(count);
}

int ComboBox::ListIndex() const {
  LRESULT index = ::SendMessageW(Hwnd(), CB_GETCURSEL, 0, 0);
  return index == CB_ERR ? -1 : static_cast<int>(index);
}

void ComboBox::SetListIndex(int index) {
  ::SendMessageW(Hwnd(), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

std::string ComboBox::Text() const {
  int index = ListIndex();
  if (index < 0) return {};
  LRESULT length = ::SendMessageW(Hwnd(), CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
  if (length == CB_ERR) return {};
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  LRESULT copied = ::SendMessageW(Hwnd(), CB_GETLBTEXT, static_cast<WPARAM>(index),
                                  reinterpret_cast<LPARAM>(text.data()));
  text.resize(copied == CB_ERR ? 0 : static_cast<size_t>(copied));
  return platform::Utf8(text);
}

bool ComboBox::DroppedDown() const {
  return ::SendMessageW(Hwnd(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

void ComboBox::OnCommand(WORD code) {
  if (code == CBN_SELCHANGE && onClick) onClick();
}

bool ComboBox::PreviewMessage(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
  if (message == WM_CHAR && onKeyPress) onKeyPress(static_cast<wchar_t>(wParam));
  return false;
}

}  // namespace toolkit
