// The tool tips of one form: a text shown when the mouse rests on a control
// or on an area of the form (a label, which has no window of its own).
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace toolkit {

class ToolTips {
 public:
  explicit ToolTips(HWND form);
  ~ToolTips();
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;

  HWND Hwnd() const { return tips_; }
  // Sets (or replaces) the tip of a control window.
  void SetTip(HWND control, const std::string& text);
  // Sets (or replaces) the tip of an area of the form, known by `id`.
  void SetTip(UINT_PTR id, const RECT& area, const std::string& text);
  std::string TipOf(HWND control) const;

 private:
  void Put(TTTOOLINFOW& tool, const std::string& text);
  HWND form_;
  HWND tips_;
};

}  // namespace toolkit
