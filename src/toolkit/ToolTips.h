// The tool tips of one form: a text shown when the mouse rests on a control
// or on an area of the form (a label, which has no window of its own).
// The tips hear of the mouse from the program's own window procedures
// (`Relay`), not by subclassing each window: under Wine a subclass costs a
// trip to the Wine server for every message the window gets, mouse or not.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

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

  // Hands a mouse message of `window` to the tips that have a tool there.
  static void Relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  void Put(TTTOOLINFOW& tool, const std::string& text);
  bool Watches(HWND window) const;
  void Watch(HWND window);
  HWND form_;
  HWND tips_;
  std::vector<HWND> watched_;
};

}  // namespace toolkit
