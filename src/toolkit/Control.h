// An element that is one of the system's own controls (edit, combo box, list
// view) living as a child window of a form. The control's procedure is
// replaced by one that lets the program see its messages first (mouse
// moves, keys, screen readers' requests), and the form hands it the
// notifications the control sends to its parent.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "toolkit/Element.h"
#include "toolkit/MouseEvents.h"

namespace toolkit {

class Control : public Element {
 public:
  ~Control() override;

  HWND Hwnd() const { return Window(); }
  int Id() const { return id_; }
  bool Visible() const;
  void SetVisible(bool visible);

  // WM_COMMAND and WM_NOTIFY from this control, as the parent received them.
  virtual void OnCommand(WORD /*code*/) {}
  virtual LRESULT OnNotify(NMHDR& /*header*/) { return 0; }

  // Seen before the control handles them; positions in pixels.
  MouseHandlers mouse;

 protected:
  Control(std::string name, std::string kind, const wchar_t* className, DWORD style, DWORD exStyle,
          HWND parent, const RECT& pixels, int id);
  // Messages to the control itself, before the control's own procedure.
  virtual bool PreviewMessage(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/,
                              LRESULT& /*result*/) {
    return false;
  }
  // The control's own handling of a message, without the preview.
  LRESULT OwnProcedure(UINT message, WPARAM wParam, LPARAM lParam) const;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  void Release(HWND window) const;
  int id_;
  WNDPROC own_ = nullptr;
  MouseHandlers* pressed_ = nullptr;
};

}  // namespace toolkit
