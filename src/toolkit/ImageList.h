// A list of same-sized images found by key, for a list view to show. The
// list owns its images: it copies every picture given to it.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <map>
#include <string>

#include "platform/Picture.h"
#include "toolkit/Element.h"

namespace toolkit {

class ImageList : public Element {
 public:
  ImageList(std::string name, int width, int height);
  ~ImageList() override;

  HIMAGELIST Handle() const { return list_; }
  // The colour treated as transparent in bitmaps added from now on.
  COLORREF MaskColor() const { return maskColor_; }
  void SetMaskColor(COLORREF colour) { maskColor_ = colour; }

  // Appends a copy of the picture; throws ElementError when there is none or
  // the key is taken. Returns the image's position, from 1.
  int Add(const std::string& key, const platform::Picture& picture);
  void Clear();
  // Images of another size from now on; removes every image.
  void SetImageSize(int width, int height);
  // Makes room for `images` images at once while the list is empty, so that
  // adding them does not grow it step by step (each step copies every image
  // held so far). A list that has the room is left as it is; otherwise the
  // handle changes, so a list view showing it must be given it again.
  void Reserve(int images);
  int Count() const;
  // Position of the image with `key`, from 1; 0 when there is none.
  int IndexOf(const std::string& key) const;

 private:
  HIMAGELIST list_;
  int width_;
  int height_;
  int room_;  // images the list was created to hold
  COLORREF maskColor_ = CLR_NONE;
  std::map<std::string, int> keys_;
};

}  // namespace toolkit
