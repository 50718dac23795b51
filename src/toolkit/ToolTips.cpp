#include "toolkit/ToolTips.h"

#include <commctrl.h>

namespace toolkit {
namespace {
constexpr int kMaxTipWidth = 320;
constexpr int kMaxTipText = 1024;
}  // namespace

ToolTips::ToolTips(HWND form)
    : form_(form),
      tips_(::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr,
                              WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr,
                              ::GetModuleHandleA(nullptr), nullptr)) {
  // Long tips wrap instead of running across the screen.
  if (tips_) ::SendMessageA(tips_, TTM_SETMAXTIPWIDTH, 0, kMaxTipWidth);
}

ToolTips::~ToolTips() {
  if (tips_) ::DestroyWindow(tips_);
}

void ToolTips::Put(TTTOOLINFOA& tool) {
  tool.cbSize = sizeof tool;
  tool.hwnd = form_;
  TTTOOLINFOA existing = tool;
  existing.lpszText = nullptr;  // asking would copy the old text into it
  if (::SendMessageA(tips_, TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&existing))) {
    ::SendMessageA(tips_, TTM_SETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&tool));
  } else {
    ::SendMessageA(tips_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
  }
}

void ToolTips::SetTip(HWND control, const std::string& text) {
  if (!tips_) return;
  TTTOOLINFOA tool{};
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = const_cast<char*>(text.c_str());
  Put(tool);
}

void ToolTips::SetTip(UINT_PTR id, const RECT& area, const std::string& text) {
  if (!tips_) return;
  TTTOOLINFOA tool{};
  tool.uFlags = TTF_SUBCLASS;
  tool.uId = id;
  tool.rect = area;
  tool.lpszText = const_cast<char*>(text.c_str());
  Put(tool);
}

std::string ToolTips::TipOf(HWND control) const {
  if (!tips_) return {};
  char text[kMaxTipText] = {};
  TTTOOLINFOA tool{};
  tool.cbSize = sizeof tool;
  tool.hwnd = form_;
  tool.uFlags = TTF_IDISHWND;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = text;
  ::SendMessageA(tips_, TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&tool));
  return text;
}

}  // namespace toolkit
