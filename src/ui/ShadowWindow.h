// The main window's drop shadow: a dark window of the same shape that stands
// 50 twips right of and below it, right behind it, and follows it. The main
// window is owned by its shadow, so that the system, and a window manager on
// Linux, keep the two together with the shadow beneath.
#pragma once

#include "toolkit/Form.h"

namespace ui {

class ShadowWindow : public toolkit::Form {
 public:
  explicit ShadowWindow(toolkit::Form& mainWindow);

 protected:
  DWORD ExtendedStyle() const override;
  bool ActivatesOnShow() const override { return false; }
  void CreateElements() override;
  void OnLoad() override;
  void OnMouseDown(const toolkit::MouseEvent& event) override;

 private:
  void Follow();
  toolkit::Form& mainWindow_;
};

}  // namespace ui
