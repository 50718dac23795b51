#include "toolkit/ImageList.h"

namespace toolkit {
namespace {
constexpr int kInitialImages = 16;
constexpr int kGrowBy = 256;
}  // namespace

ImageList::ImageList(std::string name, int width, int height)
    : Element(std::move(name), "ImageList", FontSupport::kNoFont),
      list_(::ImageList_Create(width, height, ILC_COLOR32 | ILC_MASK, kInitialImages, kGrowBy)) {}

ImageList::~ImageList() {
  if (list_) ::ImageList_Destroy(list_);
}

int ImageList::Add(const std::string& key, const Picture& picture) {
  if (!picture.Handle()) throw ElementError("Invalid picture");
  if (keys_.count(key)) throw ElementError("Key is not unique in collection");
  int added = -1;
  if (picture.Type() == PICTYPE_ICON) {
    added = ::ImageList_AddIcon(list_, static_cast<HICON>(picture.Handle()));
  } else {
    added = ::ImageList_AddMasked(list_, static_cast<HBITMAP>(picture.Handle()), maskColor_);
  }
  if (added < 0) throw ElementError("The image list refused the picture");
  keys_[key] = added + 1;
  return added + 1;
}

void ImageList::Clear() {
  ::ImageList_RemoveAll(list_);
  keys_.clear();
}

int ImageList::Count() const {
  return ::ImageList_GetImageCount(list_);
}

int ImageList::IndexOf(const std::string& key) const {
  auto found = keys_.find(key);
  return found == keys_.end() ? 0 : found->second;
}

}  // namespace toolkit
