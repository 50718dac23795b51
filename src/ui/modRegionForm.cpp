#include "ui/modRegionForm.h"

namespace ui {

void DragWindow(toolkit::Form& window) {
  ::ReleaseCapture();
  ::SendMessageA(window.Hwnd(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

}  // namespace ui
