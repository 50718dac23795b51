#include "platform/Dpi.h"

#include "platform/ScopedHandle.h"

namespace platform {
namespace {

using GetDpiForWindowCall = UINT(WINAPI*)(HWND);
using GetSystemMetricsForDpiCall = int(WINAPI*)(int, UINT);

// user32 stays loaded for the life of any process with windows.
FARPROC User32Function(const char* name) {
  HMODULE user32 = ::GetModuleHandleW(L"user32.dll");
  return user32 ? ::GetProcAddress(user32, name) : nullptr;
}

template <typename Call>
Call Resolve(const char* name) {
  return reinterpret_cast<Call>(reinterpret_cast<void*>(User32Function(name)));
}

}  // namespace

int SystemDpi() {
  WindowDC screen(nullptr);
  const int dpi = screen ? ::GetDeviceCaps(screen.get(), LOGPIXELSY) : kDesignDpi;
  return dpi > 0 ? dpi : kDesignDpi;
}

int WindowDpi(HWND window) {
  static const auto getDpiForWindow = Resolve<GetDpiForWindowCall>("GetDpiForWindow");
  const int dpi =
      window && getDpiForWindow ? static_cast<int>(getDpiForWindow(window)) : SystemDpi();
  return dpi > 0 ? dpi : SystemDpi();
}

int SystemMetricForDpi(int metric, int dpi) {
  static const auto forDpi = Resolve<GetSystemMetricsForDpiCall>("GetSystemMetricsForDpi");
  if (forDpi) return forDpi(metric, static_cast<UINT>(dpi));
  return ::MulDiv(::GetSystemMetrics(metric), dpi, SystemDpi());
}

int LargeIconSize(int dpi) {
  return SystemMetricForDpi(SM_CXICON, dpi);
}

int ScalePixels(int pixels, int dpi) {
  return ::MulDiv(pixels, dpi, kDesignDpi);
}

}  // namespace platform
