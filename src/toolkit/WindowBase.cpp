#include "toolkit/WindowBase.h"

#include "platform/Utf8.h"
#include "toolkit/MousePointer.h"
#include "toolkit/ToolTips.h"

namespace toolkit {

WindowBase::~WindowBase() {
  DestroyOwnWindow();
}

bool WindowBase::RegisterWindowClass(const char* className, ClassStyle classStyle) {
  const std::wstring name = platform::Wide(className);
  WNDCLASSEXW existing{};
  existing.cbSize = sizeof existing;
  HINSTANCE instance = ::GetModuleHandleW(nullptr);
  if (::GetClassInfoExW(instance, name.c_str(), &existing)) return true;
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.style = classStyle.style;
  windowClass.lpfnWndProc = &WindowBase::Procedure;
  windowClass.hInstance = instance;
  windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = classStyle.background;
  windowClass.lpszClassName = name.c_str();
  return ::RegisterClassExW(&windowClass) != 0;
}

bool WindowBase::CreateWindowOf(const char* className, const std::string& text, DWORD style,
                                DWORD exStyle, const RECT& pixels, HWND parent, int id) {
  HMENU menuOrId = (style & WS_CHILD) ? reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)) : nullptr;
  ::CreateWindowExW(exStyle, platform::Wide(className).c_str(), platform::Wide(text).c_str(), style,
                    pixels.left, pixels.top, pixels.right - pixels.left, pixels.bottom - pixels.top,
                    parent, menuOrId, ::GetModuleHandleW(nullptr), this);
  return hwnd_ != nullptr;
}

void WindowBase::DestroyOwnWindow() {
  if (hwnd_) ::DestroyWindow(hwnd_);
}

LRESULT WindowBase::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return Default(message, wParam, lParam);
}

LRESULT WindowBase::Default(UINT message, WPARAM wParam, LPARAM lParam) {
  return ::DefWindowProcW(hwnd_, message, wParam, lParam);
}

LRESULT CALLBACK WindowBase::Procedure(HWND window, UINT message, WPARAM wParam,
                                       LPARAM lParam) noexcept {
  auto* self = reinterpret_cast<WindowBase*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (message == WM_NCCREATE) {
    self = static_cast<WindowBase*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    self->hwnd_ = window;
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_SETCURSOR && ApplyProgramPointer()) return TRUE;

  LRESULT result = 0;
  try {
    ToolTips::Relay(window, message, wParam, lParam);
    result = self->HandleMessage(message, wParam, lParam);
  } catch (...) {
    // A handler that fails is stepped over, as every failure of this program
    // is; the system must never see the exception.
    result = ::DefWindowProcW(window, message, wParam, lParam);
  }
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->hwnd_ = nullptr;
  }
  return result;
}

std::string WindowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
  const int copied = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  text.resize(copied > 0 ? static_cast<std::size_t>(copied) : 0);
  return platform::Utf8(text);
}

}  // namespace toolkit
