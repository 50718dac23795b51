#include "toolkit/ImageList.h"

#include <optional>
#include <vector>

#include "platform/ScopedHandle.h"

namespace toolkit {
namespace {
constexpr int kInitialImages = 16;
constexpr int kGrowBy = 256;
constexpr UINT kListKind = ILC_COLOR32 | ILC_MASK;
constexpr WORD kTrueColourBits = 32;
constexpr DWORD kRgbBits = 0x00ffffff;
constexpr int kBitsPerByte = 8;
constexpr BYTE kLeftmostBit = 0x80;
constexpr int kMaskRowAlignBytes = 2;  // rows of a device-dependent bitmap

// Not CLR_NONE or CLR_DEFAULT, which the system's own add interprets.
bool IsPlainColour(COLORREF colour) {
  return (colour & ~kRgbBits) == 0;
}

// What ImageList_AddMasked does, done on a copy of the pixels of a 32-bit
// bitmap instead of with the two device contexts and blits it makes for
// every image: a mask of the pixels of the mask colour, which also become
// black in the bitmap itself. The copy is top-down whichever way the bitmap
// stores its rows. Nothing when the bitmap is not 32-bit.
std::optional<int> AddMaskedTrueColour(HIMAGELIST list, HBITMAP bitmap, COLORREF maskColour) {
  BITMAP info{};
  if (!::GetObjectW(bitmap, sizeof info, &info) || info.bmBitsPixel != kTrueColourBits ||
      info.bmWidthBytes != info.bmWidth * static_cast<LONG>(sizeof(RGBQUAD))) {
    return std::nullopt;
  }
  const int width = info.bmWidth;
  const int height = info.bmHeight;
  std::vector<RGBQUAD> pixels(static_cast<std::size_t>(width) * height);
  const LONG bytes = static_cast<LONG>(pixels.size() * sizeof(RGBQUAD));
  if (::GetBitmapBits(bitmap, bytes, pixels.data()) != bytes) return std::nullopt;

  const int maskStride = (width + kBitsPerByte * kMaskRowAlignBytes - 1) /
                         (kBitsPerByte * kMaskRowAlignBytes) * kMaskRowAlignBytes;
  std::vector<BYTE> mask(static_cast<std::size_t>(maskStride) * height, 0);
  bool anyMasked = false;
  for (int y = 0; y < height; ++y) {
    RGBQUAD* row = pixels.data() + static_cast<std::size_t>(y) * width;
    BYTE* maskRow = mask.data() + static_cast<std::size_t>(y) * maskStride;
    for (int x = 0; x < width; ++x) {
      if (row[x].rgbRed != GetRValue(maskColour) || row[x].rgbGreen != GetGValue(maskColour) ||
          row[x].rgbBlue != GetBValue(maskColour)) {
        continue;
      }
      maskRow[x / kBitsPerByte] |= static_cast<BYTE>(kLeftmostBit >> (x % kBitsPerByte));
      row[x] = RGBQUAD{};
      anyMasked = true;
    }
  }
  if (anyMasked) ::SetBitmapBits(bitmap, bytes, pixels.data());
  platform::ScopedBitmap maskBitmap(::CreateBitmap(width, height, 1, 1, mask.data()));
  return maskBitmap ? ::ImageList_Add(list, bitmap, maskBitmap.get()) : -1;
}

}  // namespace

ImageList::ImageList(std::string name, int width, int height)
    : Element(std::move(name), "ImageList", FontSupport::kNoFont),
      list_(::ImageList_Create(width, height, kListKind, kInitialImages, kGrowBy)),
      width_(width),
      height_(height),
      room_(kInitialImages) {}

ImageList::~ImageList() {
  if (list_) ::ImageList_Destroy(list_);
}

int ImageList::Add(const std::string& key, const platform::Picture& picture) {
  if (!picture.Handle()) throw ElementError("Invalid picture");
  if (keys_.count(key)) throw ElementError("Key is not unique in collection");
  int added = -1;
  if (picture.Type() == PICTYPE_ICON) {
    added = ::ImageList_AddIcon(list_, static_cast<HICON>(picture.Handle()));
  } else {
    HBITMAP bitmap = static_cast<HBITMAP>(picture.Handle());
    // Loading a library adds one image per icon; this path takes about half
    // the time of the system's for the 32-bit images picture surfaces make.
    std::optional<int> direct;
    if (IsPlainColour(maskColor_)) direct = AddMaskedTrueColour(list_, bitmap, maskColor_);
    added = direct ? *direct : ::ImageList_AddMasked(list_, bitmap, maskColor_);
  }
  if (added < 0) throw ElementError("The image list refused the picture");
  keys_[key] = added + 1;
  return added + 1;
}

void ImageList::Reserve(int images) {
  if (images <= room_ || Count() != 0) return;
  HIMAGELIST roomier = ::ImageList_Create(width_, height_, kListKind, images, kGrowBy);
  if (!roomier) return;
  if (list_) ::ImageList_Destroy(list_);
  list_ = roomier;
  room_ = images;
}

void ImageList::Clear() {
  ::ImageList_RemoveAll(list_);
  keys_.clear();
}

void ImageList::SetImageSize(int width, int height) {
  width_ = width;
  height_ = height;
  ::ImageList_SetIconSize(list_, width, height);
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
