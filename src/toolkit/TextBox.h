// A text box: the system's edit control, one line or several.
#pragma once

#include <functional>
#include <string>

#include "toolkit/Control.h"

namespace toolkit {

class TextBox : public Control {
 public:
  enum class Lines { kSingle, kMultiple };
  TextBox(std::string name, HWND parent, const RECT& pixels, int id, Lines lines);

  std::string Text() const;
  void SetText(const std::string& text);

  // After the text changed by typing; the system tells a text the program
  // sets only to a one-line box.
  std::function<void()> onChange;
  // A character typed (UTF-16), before the box takes it.
  std::function<void(wchar_t)> onKeyPress;

 private:
  void OnCommand(WORD code) override;
  bool PreviewMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
};

}  // namespace toolkit
