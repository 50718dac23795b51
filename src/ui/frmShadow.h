// The main window's drop shadow: a dark window of the same shape that stands
// 50 twips right of and below it, behind it, and follows it.
#pragma once

#include "toolkit/Form.h"

namespace ui {

class FrmShadow : public toolkit::Form {
 public:
  explicit FrmShadow(toolkit::Form& owner);

 protected:
  DWORD ExtendedStyle() const override;
  void CreateElements() override;
  void OnLoad() override;
  void OnActivate() override;

 private:
  void Timer1();
  toolkit::Form& owner_;
};

// The main window's shadow; created on first use.
FrmShadow& ShadowWindow();

}  // namespace ui
