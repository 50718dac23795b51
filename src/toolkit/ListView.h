// The icon list: the system's list view in large-icon view, showing the
// images of an ImageList, with items found by key.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "toolkit/Control.h"
#include "toolkit/ImageList.h"

namespace toolkit {

class ListView : public Control {
 public:
  ListView(std::string name, HWND parent, const RECT& pixels, int id);

  // Shown images; nullptr detaches. The list view does not own them.
  void SetIcons(const ImageList* large);
  void SetSmallIcons(const ImageList* small);
  const ImageList* Icons() const { return large_; }

  // Items arranged automatically, aligned to the top.
  void ArrangeFromTop();
  COLORREF BackColor() const;

  // Adds an item showing large image `icon` (from 1). Throws ElementError,
  // adding nothing, when that image does not exist or the key is taken.
  void AddItem(const std::string& key, const std::string& text, int icon);
  void Clear();
  int Count() const;
  // The selected item's position from 1; 0 when none is selected.
  int SelectedIndex() const;
  void Select(int index);

  // Items added while one of these lives are drawn once, all together, when
  // it ends; otherwise the system redraws the list and its scroll bar after
  // each insertion, which costs more than the rest of a long load.
  class ItemBatch {
   public:
    explicit ItemBatch(ListView& list);
    ~ItemBatch();
    ItemBatch(const ItemBatch&) = delete;
    ItemBatch& operator=(const ItemBatch&) = delete;

   private:
    HWND list_;
  };

  // An item picked by a click, or reached with the arrow keys.
  std::function<void(int index)> onItemClick;
  std::function<void()> onDblClick;
  // Enter pressed in the list.
  std::function<void()> onEnter;

 private:
  LRESULT OnNotify(NMHDR& header) override;
  bool PreviewMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  const ImageList* large_ = nullptr;
  std::map<std::string, int> keys_;
};

}  // namespace toolkit
