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

  // Puts the shadow right beneath the main window, above whatever else
  // stands there, without activating either.
  void StandBeneath();

 protected:
  DWORD ExtendedStyle() const override;
  bool ActivatesOnShow() const override { return false; }
  void CreateElements() override;
  void OnLoad() override;
  void OnMouseDown(const toolkit::MouseEvent& event) override;
  void OnDpiChanged() override { OnLoad(); }

 private:
  // Whether the next window shown below the main window is the shadow.
  bool RightBeneath() const;
  void Follow();
  toolkit::Form& mainWindow_;
};

}  // namespace ui
