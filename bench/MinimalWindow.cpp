// The yardstick for start-up: the least a Win32 program does to put one
// window holding a list view with one item on screen under the same Wine.
// It ends when the window is closed.
#include <windows.h>

#include <commctrl.h>

namespace {

constexpr char kClassName[] = "MorvaneBenchMinimal";
constexpr int kSide = 200;
constexpr int kListId = 1;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) {
    ::PostQuitMessage(0);
    return 0;
  }
  return ::DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES};
  ::InitCommonControlsEx(&controls);
  WNDCLASSA windowClass{};
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = instance;
  windowClass.hCursor = ::LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  windowClass.lpszClassName = kClassName;
  ::RegisterClassA(&windowClass);
  HWND window = ::CreateWindowExA(0, kClassName, "Minimal", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                  CW_USEDEFAULT, kSide, kSide, nullptr, nullptr, instance, nullptr);
  if (!window) return 1;
  HWND list = ::CreateWindowExA(0, WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | LVS_ICON, 0, 0, kSide,
                                kSide, window, reinterpret_cast<HMENU>(kListId), instance, nullptr);
  char text[] = "1";
  LVITEMA item{};
  item.mask = LVIF_TEXT;
  item.pszText = text;
  ::SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
  ::ShowWindow(window, SW_SHOW);
  ::UpdateWindow(window);
  MSG message;
  while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
  }
  return 0;
}
