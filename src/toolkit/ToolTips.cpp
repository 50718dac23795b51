#include "toolkit/ToolTips.h"

#include <commctrl.h>

#include <algorithm>

#include "platform/Utf8.h"
#include "toolkit/MouseEvents.h"

namespace toolkit {
namespace {
constexpr int kMaxTipWidth = 320;
constexpr int kMaxTipText = 1024;

// Every form's tips while they live; all on the user-interface thread.
std::vector<const ToolTips*>& LiveTips() {
  static std::vector<const ToolTips*> live;
  return live;
}
}  // namespace

ToolTips::ToolTips(HWND form)
    : form_(form),
      tips_(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr,
                              ::GetModuleHandleW(nullptr), nullptr)) {
  // Long tips wrap instead of running across the screen.
  if (tips_) ::SendMessageW(tips_, TTM_SETMAXTIPWIDTH, 0, kMaxTipWidth);
  LiveTips().push_back(this);
}

ToolTips::~ToolTips() {
  std::erase(LiveTips(), this);
  if (tips_) ::DestroyWindow(tips_);
}

bool ToolTips::Watches(HWND window) const {
  return std::find(watched_.begin(), watched_.end(), window) != watched_.end();
}

void ToolTips::Watch(HWND window) {
  if (!Watches(window)) watched_.push_back(window);
}

void ToolTips::Relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!IsMouseMessage(message)) return;
  for (const ToolTips* tips : LiveTips()) {
    if (!tips->Watches(window)) continue;
    MSG mouse{window, message, wParam, lParam, static_cast<DWORD>(::GetMessageTime()), {}};
    ::SendMessageW(tips->tips_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&mouse));
  }
}

void ToolTips::Put(TTTOOLINFOW& tool, const std::string& text) {
  std::wstring wide = platform::Wide(text);
  tool.cbSize = sizeof tool;
  tool.hwnd = form_;
  tool.lpszText = wide.data();
  TTTOOLINFOW existing = tool;
  existing.lpszText = nullptr;  // asking would copy the old text into it
  if (::SendMessageW(tips_, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&existing))) {
    ::SendMessageW(tips_, TTM_SETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool));
  } else {
    ::SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
}

void ToolTips::SetTip(HWND control, const std::string& text) {
  if (!tips_) return;
  TTTOOLINFOW tool{};
  tool.uFlags = TTF_IDISHWND;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  Put(tool, text);
  Watch(control);
}

void ToolTips::SetTip(UINT_PTR id, const RECT& area, const std::string& text) {
  if (!tips_) return;
  TTTOOLINFOW tool{};
  tool.uFlags = 0;
  tool.uId = id;
  tool.rect = area;
  Put(tool, text);
  Watch(form_);
}

std::string ToolTips::TipOf(HWND control) const {
  if (!tips_) return {};
  wchar_t text[kMaxTipText] = {};
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof tool;
  tool.hwnd = form_;
  tool.uFlags = TTF_IDISHWND;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = text;
  ::SendMessageW(tips_, TTM_GETTEXTW, kMaxTipText, reinterpret_cast<LPARAM>(&tool));
  return platform::Utf8(text);
}

}  // namespace toolkit
