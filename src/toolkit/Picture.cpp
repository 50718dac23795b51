#include "toolkit/Picture.h"

#include <utility>

namespace toolkit {

Picture::Picture(const Picture& other) noexcept : picture_(other.picture_) {
  if (picture_) picture_->AddRef();
}

Picture& Picture::operator=(const Picture& other) noexcept {
  if (this != &other) {
    if (other.picture_) other.picture_->AddRef();
    Reset();
    picture_ = other.picture_;
  }
  return *this;
}

Picture::Picture(Picture&& other) noexcept : picture_(std::exchange(other.picture_, nullptr)) {}

Picture& Picture::operator=(Picture&& other) noexcept {
  if (this != &other) {
    Reset();
    picture_ = std::exchange(other.picture_, nullptr);
  }
  return *this;
}

void Picture::Reset() noexcept {
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
  return Picture(created);
}

HANDLE Picture::Handle() const noexcept {
  OLE_HANDLE handle = 0;
  if (!picture_ || FAILED(picture_->get_Handle(&handle))) return nullptr;
  // GDI and USER handles are 32-bit values, sign-extended on 64-bit Windows.
  return reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(static_cast<LONG>(handle)));
}

short Picture::Type() const noexcept {
  SHORT type = PICTYPE_NONE;
  if (picture_) picture_->get_Type(&type);
  return type;
}

}  // namespace toolkit
