// The main window's drop shadow: a dark window of the same shape that stands
// 50 twips right of and below it, behind it, and follows it.
#pragma once

#include "toolkit/Form.h"

namespace ui {

class ShadowWindow : public toolkit::Form {
 public:
  explicit ShadowWindow(toolkit::Form& owner);

 protected:
  DWORD ExtendedStyle() const override;
  void CreateElements() override;
  void OnLoad() override;
  void OnActivate() override;

 private:
  void Follow();
  toolkit::Form& owner_;
};

}  // namespace ui
