// Move-only owners of Windows handles: one release rule per handle kind,
// run in the destructor, so that a handle is freed exactly once.
#pragma once

#include <windows.h>

#include <utility>

namespace platform {

template <typename Traits>
class ScopedHandle {
 public:
  using Handle = typename Traits::Handle;

  ScopedHandle() noexcept = default;
  explicit ScopedHandle(Handle handle) noexcept : handle_(handle) {}
  ~ScopedHandle() { reset(); }

  ScopedHandle(const ScopedHandle&) = delete;
  ScopedHandle& operator=(const ScopedHandle&) = delete;
  ScopedHandle(ScopedHandle&& other) noexcept : handle_(other.release()) {}
  ScopedHandle& operator=(ScopedHandle&& other) noexcept {
    if (this != &other) reset(other.release());
    return *this;
  }

  Handle get() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return Traits::IsValid(handle_); }

  // Gives up ownership without releasing; the caller takes it over.
  Handle release() noexcept { return std::exchange(handle_, Traits::Invalid()); }

  void reset(Handle handle = Traits::Invalid()) noexcept {
    Handle old = std::exchange(handle_, handle);
    if (Traits::IsValid(old)) Traits::Close(old);
  }

 private:
  Handle handle_ = Traits::Invalid();
};

template <typename H, auto CloseFn>
struct NullInvalidTraits {
  using Handle = H;
  static Handle Invalid() noexcept { return nullptr; }
  static bool IsValid(Handle h) noexcept { return h != nullptr; }
  static void Close(Handle h) noexcept { CloseFn(h); }
};

inline void DeleteGdiObject(HGDIOBJ object) noexcept {
  ::DeleteObject(object);
}
inline void UnloadModule(HMODULE module) noexcept {
  ::FreeLibrary(module);
}
inline void CloseRegistryKey(HKEY key) noexcept {
  ::RegCloseKey(key);
}
inline void CloseKernelHandle(HANDLE handle) noexcept {
  ::CloseHandle(handle);
}

struct FindHandleTraits {
  using Handle = HANDLE;
  static Handle Invalid() noexcept { return INVALID_HANDLE_VALUE; }
  static bool IsValid(Handle h) noexcept { return h != INVALID_HANDLE_VALUE; }
  static void Close(Handle h) noexcept { ::FindClose(h); }
};

using ScopedIcon = ScopedHandle<NullInvalidTraits<HICON, ::DestroyIcon>>;
using ScopedBitmap = ScopedHandle<NullInvalidTraits<HBITMAP, DeleteGdiObject>>;
using ScopedRegion = ScopedHandle<NullInvalidTraits<HRGN, DeleteGdiObject>>;
using ScopedFont = ScopedHandle<NullInvalidTraits<HFONT, DeleteGdiObject>>;
using ScopedPen = ScopedHandle<NullInvalidTraits<HPEN, DeleteGdiObject>>;
using ScopedBrush = ScopedHandle<NullInvalidTraits<HBRUSH, DeleteGdiObject>>;
using ScopedMemoryDC = ScopedHandle<NullInvalidTraits<HDC, ::DeleteDC>>;
using ScopedModule = ScopedHandle<NullInvalidTraits<HMODULE, UnloadModule>>;
using ScopedKey = ScopedHandle<NullInvalidTraits<HKEY, CloseRegistryKey>>;
using ScopedKernelHandle = ScopedHandle<NullInvalidTraits<HANDLE, CloseKernelHandle>>;
using ScopedFind = ScopedHandle<FindHandleTraits>;

// A window's drawing context borrowed with GetDC, given back with ReleaseDC.
class WindowDC {
 public:
  explicit WindowDC(HWND window) noexcept : window_(window), dc_(::GetDC(window)) {}
  ~WindowDC() {
    if (dc_) ::ReleaseDC(window_, dc_);
  }
  WindowDC(const WindowDC&) = delete;
  WindowDC& operator=(const WindowDC&) = delete;

  HDC get() const noexcept { return dc_; }
  explicit operator bool() const noexcept { return dc_ != nullptr; }

 private:
  HWND window_;
  HDC dc_;
};

// Selects an object into a context for one scope and puts the previous one back.
class ScopedSelect {
 public:
  ScopedSelect(HDC dc, HGDIOBJ object) noexcept
      : dc_(dc), previous_(dc && object ? ::SelectObject(dc, object) : nullptr) {}
  ~ScopedSelect() {
    if (previous_) ::SelectObject(dc_, previous_);
  }
  ScopedSelect(const ScopedSelect&) = delete;
  ScopedSelect& operator=(const ScopedSelect&) = delete;

 private:
  HDC dc_;
  HGDIOBJ previous_;
};

}  // namespace platform
