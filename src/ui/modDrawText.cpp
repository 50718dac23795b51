#include "ui/modDrawText.h"

#include <windows.h>

namespace ui {
namespace {
constexpr int kCaptionTop = 4;
constexpr UINT kOneCentredLine = DT_CENTER | DT_SINGLELINE;
}  // namespace

void DrawCaption(toolkit::PictureBox& surface, const std::string& text, WindowText windowText) {
  RECT area{0, kCaptionTop, surface.ScaleWidth(), surface.ScaleHeight()};
  ::DrawTextA(surface.hDC(), text.c_str(), static_cast<int>(text.size()), &area, kOneCentredLine);
  if (windowText == WindowText::kSet && surface.Hwnd()) {
    ::SetWindowTextA(surface.Hwnd(), text.c_str());
  }
}

}  // namespace ui
