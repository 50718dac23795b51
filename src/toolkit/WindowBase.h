// The one window base of the program: a C++ object behind each window it
// creates. `this` is stored on WM_NCCREATE and cleared on WM_NCDESTROY; the
// static procedure lets no exception cross into the system.
#pragma once

#include <windows.h>

#include <string>

namespace toolkit {

class WindowBase {
 public:
  WindowBase() = default;
  virtual ~WindowBase();
  WindowBase(const WindowBase&) = delete;
  WindowBase& operator=(const WindowBase&) = delete;

  HWND Hwnd() const { return hwnd_; }

 protected:
  struct ClassStyle {
    UINT style = CS_DBLCLKS;
    HBRUSH background = nullptr;
  };
  // Registers `className` for this program on first use.
  static bool RegisterWindowClass(const char* className, ClassStyle classStyle);

  bool CreateWindowOf(const char* className, const std::string& text, DWORD style, DWORD exStyle,
                      const RECT& pixels, HWND parent, int id);
  void DestroyOwnWindow();

  // Messages not handled here go to DefWindowProc.
  virtual LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  HWND hwnd_ = nullptr;
};

// The whole of a window's text, as UTF-8.
std::string WindowText(HWND window);

}  // namespace toolkit
