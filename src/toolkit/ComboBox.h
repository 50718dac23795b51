// A drop-down box whose lines the user chooses from (the system's combo box,
// drop-down list style).
#pragma once

#include <functional>
#include <string>

#include "toolkit/Control.h"

namespace toolkit {

class ComboBox : public Control {
 public:
  // `pixels` is the closed box; the list opens below it over `dropLines` lines.
  ComboBox(std::string name, HWND parent, const RECT& pixels, int id, int dropLines);

  void Clear();
  void AddItem(const std::string& text);
  int ListCount() const;
  // The selected line from 0, -1 for none. Only the user's choice raises
  // onClick; selecting a line from the program does not.
  int ListIndex() const;
  void SetListIndex(int index);
  // The selected line's text, "" when none is selected.
  std::string Text() const;
  // Whether its list is open.
  bool DroppedDown() const;

  std::function<void()> onClick;
  // A character typed, as the box receives it (UTF-16).
  std::function<void(wchar_t)> onKeyPress;

 private:
  void OnCommand(WORD code) override;
  bool PreviewMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
};

}  // namespace toolkit
