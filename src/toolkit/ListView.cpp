#include "toolkit/ListView.h"

#include <commctrl.h>

#include <limits>

#include "platform/Utf8.h"

namespace toolkit {

ListView::ListView(std::string name, HWND parent, const RECT& pixels, int id)
    : Control(std::move(name), "ListView", WC_LISTVIEWW,
              WS_TABSTOP | LVS_ICON | LVS_SINGLESEL | LVS_SHAREIMAGELISTS | LVS_AUTOARRANGE |
                  LVS_ALIGNTOP,
              0, parent, pixels, id) {}

void ListView::SetIcons(const ImageList* large) {
  large_ = large;
  ::SendMessageW(Hwnd(), LVM_SETIMAGELIST, LVSIL_NORMAL,
                 reinterpret_cast<LPARAM>(large ? large->Handle() : nullptr));
}

void ListView::SetSmallIcons(const ImageList* small) {
  ::SendMessageW(Hwnd(), LVM_SETIMAGELIST, LVSIL_SMALL,
                 reinterpret_cast<LPARAM>(small ? small->Handle() : nullptr));
}

void ListView::ArrangeFromTop() {
  LONG_PTR style = ::GetWindowLongPtrW(Hwnd(), GWL_STYLE);
  style = (style & ~static_cast<LONG_PTR>(LVS_ALIGNMASK)) | LVS_ALIGNTOP | LVS_AUTOARRANGE;
  ::SetWindowLongPtrW(Hwnd(), GWL_STYLE, style);
}

COLORREF ListView::BackColor() const {
  return static_cast<COLORREF>(::SendMessageW(Hwnd(), LVM_GETBKCOLOR, 0, 0));
}

void ListView::AddItem(const std::string& key, const std::string& text, int icon) {
  if (!large_ || icon < 1 || icon > large_->Count()) throw ElementError("Invalid picture");
  if (keys_.count(key)) throw ElementError("Key is not unique in collection");
  std::wstring wide = platform::Wide(text);
  LVITEMW item{};
  item.mask = LVIF_TEXT | LVIF_IMAGE;
  // Past the end appends: one message fewer per item than asking the count.
  item.iItem = std::numeric_limits<int>::max();
  item.pszText = wide.data();
  item.iImage = icon - 1;
  LRESULT at = ::SendMessageW(Hwnd(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  if (at < 0) throw ElementError("The list refused the item");
  keys_[key] = static_cast<int>(at) + 1;
}

void ListView::Clear() {
  ::SendMessageW(Hwnd(), LVM_DELETEALLITEMS, 0, 0);
  keys_.clear();
}

int ListView::Count() const {
  return static_cast<int>(::SendMessageW(Hwnd(), LVM_GETITEMCOUNT, 0, 0));
}

int ListView::SelectedIndex() const {
  LRESULT at = ::SendMessageW(Hwnd(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
  return at < 0 ? 0 : static_cast<int>(at) + 1;
}

void ListView::Select(int index) {
  LVITEMW state{};
  state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  state.state = LVIS_SELECTED | LVIS_FOCUSED;
  ::SendMessageW(Hwnd(), LVM_SETITEMSTATE, static_cast<WPARAM>(index - 1),
                 reinterpret_cast<LPARAM>(&state));
}

ListView::ItemBatch::ItemBatch(ListView& list) : list_(list.Hwnd()) {
  ::SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
}

ListView::ItemBatch::~ItemBatch() {
  ::SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
  ::InvalidateRect(list_, nullptr, TRUE);
}

namespace {
bool IsMoveKey(WPARAM key) {
  switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT: return true;
    default: return false;
  }
}
}  // namespace

// The list moves its selection with the keys itself; the program hears of
// the move as of a click. Before any item has the focus the first key picks
// the first item, where the list itself would pick none.
bool ListView::PreviewMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (message != WM_KEYDOWN || !IsMoveKey(wParam) || Count() == 0) return false;
  const int before = SelectedIndex();
  const LRESULT focused =
      ::SendMessageW(Hwnd(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  if (focused < 0) {
    Select(1);
    ::SendMessageW(Hwnd(), LVM_ENSUREVISIBLE, 0, FALSE);
    result = 0;
  } else {
    result = OwnProcedure(message, wParam, lParam);
  }
  const int after = SelectedIndex();
  if (after > 0 && after != before && onItemClick) onItemClick(after);
  return true;
}

LRESULT ListView::OnNotify(NMHDR& header) {
  // Nobody here follows single deletions, so clearing the list need not
  // announce each item on its way out.
  if (header.code == LVN_DELETEALLITEMS) return TRUE;
  if (header.code == NM_CLICK) {
    int item = reinterpret_cast<NMITEMACTIVATE&>(header).iItem;
    if (item >= 0 && onItemClick) onItemClick(item + 1);
  } else if (header.code == NM_DBLCLK && onDblClick) {
    onDblClick();
  } else if (header.code == NM_RETURN && onEnter) {
    onEnter();
  }
  return 0;
}

}  // namespace toolkit
