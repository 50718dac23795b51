// A reference to the system's standard picture object (an OLE picture).
// The picture owns the bitmap, icon or cursor handle it was made from and
// destroys it when the last reference goes; copies share that reference.
#pragma once

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

namespace platform {

class Picture {
 public:
  enum class Kind : UINT { Bitmap = PICTYPE_BITMAP, Icon = PICTYPE_ICON };

  Picture() noexcept = default;
  ~Picture() { Reset(); }
  Picture(const Picture& other) noexcept;
  Picture& operator=(const Picture& other) noexcept;
  Picture(Picture&& other) noexcept;
  Picture& operator=(Picture&& other) noexcept;

  // Hands `handle` over to a new picture. Returns no picture when the system
  // refuses; the handle is destroyed then, so it never leaks.
  static Picture Adopt(Kind kind, HANDLE handle) noexcept;

  explicit operator bool() const noexcept { return picture_ != nullptr; }
  IPicture* get() const noexcept { return picture_; }
  // The handle the picture owns, 0 for no picture.
  HANDLE Handle() const noexcept;
  short Type() const noexcept;  // PICTYPE_*, PICTYPE_NONE for no picture
  void Reset() noexcept;

 private:
  Picture(IPicture* adopted, HANDLE handle) noexcept : picture_(adopted), handle_(handle) {}
  IPicture* picture_ = nullptr;
  // The handle as the system gave it: the picture object reports only its
  // low 32 bits, and the upper half differs between Windows and Wine.
  HANDLE handle_ = nullptr;
};

}  // namespace platform
