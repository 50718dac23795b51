#include "platform/Picture.h"

#include <utility>

namespace platform {

Picture::Picture(const Picture& other) noexcept : picture_(other.picture_), handle_(other.handle_) {
  if (picture_) picture_->AddRef();
}

Picture& Picture::operator=(const Picture& other) noexcept {
  if (this != &other) {
    if (other.picture_) other.picture_->AddRef();
    Reset();
    picture_ = other.picture_;
    handle_ = other.handle_;
  }
  return *this;
}

Picture::Picture(Picture&& other) noexcept
    : picture_(std::exchange(other.picture_, nullptr)),
      handle_(std::exchange(other.handle_, nullptr)) {}

Picture& Picture::operator=(Picture&& other) noexcept {
  if (this != &other) {
    Reset();
    picture_ = std::exchange(other.picture_, nullptr);
    handle_ = std::exchange(other.handle_, nullptr);
  }
  return *this;
}

void Picture::Reset() noexcept {
  handle_ = nullptr;
  if (IPicture* old = std::exchange(picture_, nullptr)) old->Release();
}

Picture Picture::Adopt(Kind kind, HANDLE handle) noexcept {
  if (!handle) return {};
  PICTDESC desc{};
  desc.cbSizeofstruct = sizeof(PICTDESC);
  desc.picType = static_cast<UINT>(kind);
  if (kind == Kind::Bitmap) {
    desc.bmp.hbitmap = static_cast<HBITMAP>(handle);
  } else {
    desc.icon.hicon = static_cast<HICON>(handle);
  }
  IPicture* created = nullptr;
  // fOwn TRUE: from here on the picture destroys the handle.
  HRESULT hr =
      ::OleCreatePictureIndirect(&desc, IID_IPicture, TRUE, reinterpret_cast<void**>(&created));
  if (FAILED(hr) || !created) {
    if (kind == Kind::Bitmap) {
      ::DeleteObject(handle);
    } else {
      ::DestroyIcon(static_cast<HICON>(handle));
    }
    return {};
  }
  return Picture(created, handle);
}

HANDLE Picture::Handle() const noexcept {
  return picture_ ? handle_ : nullptr;
}

short Picture::Type() const noexcept {
  SHORT type = PICTYPE_NONE;
  if (picture_) picture_->get_Type(&type);
  return type;
}

}  // namespace platform
