#include "toolkit/MousePointer.h"

namespace toolkit {
namespace {

std::int16_t g_pointer = kPointerDefault;

LPCWSTR SystemCursorFor(std::int16_t shape) {
  switch (shape) {
    case kPointerCross: return IDC_CROSS;
    case kPointerIBeam: return IDC_IBEAM;
    case kPointerSizeAll:
    case kPointerSizeAllArrows: return IDC_SIZEALL;
    case kPointerSizeNESW: return IDC_SIZENESW;
    case kPointerSizeNS: return IDC_SIZENS;
    case kPointerSizeNWSE: return IDC_SIZENWSE;
    case kPointerSizeWE: return IDC_SIZEWE;
    case kPointerUpArrow: return IDC_UPARROW;
    case kPointerHourglass: return IDC_WAIT;
    case kPointerNoDrop: return IDC_NO;
    case kPointerArrowHourglass: return IDC_APPSTARTING;
    case kPointerArrowQuestion: return IDC_HELP;
    default: return IDC_ARROW;
  }
}

// Lets the window under the mouse choose its pointer again, at once rather
// than at the next mouse move.
void RefreshWindowPointer() {
  POINT at{};
  if (!::GetCursorPos(&at)) return;
  HWND under = ::WindowFromPoint(at);
  if (!under || ::GetWindowThreadProcessId(under, nullptr) != ::GetCurrentThreadId()) {
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    return;
  }
  LRESULT hit = ::SendMessageW(under, WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y));
  ::SendMessageW(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
                 MAKELPARAM(static_cast<WORD>(hit), WM_MOUSEMOVE));
}

}  // namespace

std::int16_t ProgramPointer() {
  return g_pointer;
}

void SetProgramPointer(std::int16_t shape) {
  g_pointer = shape;
  if (!ApplyProgramPointer()) RefreshWindowPointer();
}

bool ApplyProgramPointer() {
  if (g_pointer == kPointerDefault) return false;
  ::SetCursor(::LoadCursorW(nullptr, SystemCursorFor(g_pointer)));
  return true;
}

}  // namespace toolkit
