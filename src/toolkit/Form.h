// A top-level window of the program, laid out as a form designer lays one
// out: elements placed in twips, events as overridable handlers. The windows
// are borderless (the program draws its own skin). A form is loaded (window
// and elements created, hidden, OnLoad run), shown, and unloaded (close
// request, OnUnload, window destroyed).
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/Canvas.h"
#include "toolkit/ComboBox.h"
#include "toolkit/Element.h"
#include "toolkit/ImageList.h"
#include "toolkit/Label.h"
#include "toolkit/ListView.h"
#include "toolkit/PictureBox.h"
#include "toolkit/Screen.h"
#include "toolkit/TextBox.h"
#include "toolkit/ToolTips.h"
#include "toolkit/WindowBase.h"

namespace toolkit {

// Why a form is being unloaded.
enum UnloadMode : int { kUnloadFromWindow = 0, kUnloadFromCode = 1 };

// A line drawn by the form between two points given in twips.
class Line : public Element {
 public:
  Line(std::string name, POINT from, POINT to)
      : Element(std::move(name), "Line", FontSupport::kNoFont), from_(from), to_(to) {}
  POINT From() const { return from_; }
  POINT To() const { return to_; }
  COLORREF Colour() const { return colour_; }
  void SetColour(COLORREF colour) { colour_ = colour; }

 private:
  POINT from_, to_;
  COLORREF colour_ = RGB(0, 0, 0);
};

class Form : public Element, public Canvas, private WindowBase, public ElementOwner {
 public:
  Form(std::string name, int clientWidthTwips, int clientHeightTwips);
  ~Form() override;

  using WindowBase::Hwnd;

  void Load();
  bool Loaded() const { return Hwnd() != nullptr; }
  void Show();
  // Shows the form and returns once it is hidden or unloaded; the program's
  // other windows take no input meanwhile.
  void ShowModal();
  void Hide();
  // Makes `owner` (nullptr for none) this form's owner: the system and any
  // window manager keep a form above its owner and its owner right beneath it.
  void SetOwner(const Form* owner);
  // While `front` (another form of the program) is shown, it is raised over
  // this form whenever this form is raised above it; nullptr lifts the rule.
  // Unlike a topmost window, `front` stays behind other programs' windows.
  // Shown meanwhile, this form becomes active when the rule lifts.
  void StayBehind(const Form* front);
  bool Visible() const;
  void Unload() { Unload(kUnloadFromCode); }
  void Unload(UnloadMode mode);
  // True while the form's own close is in progress.
  bool Closing() const { return closing_; }

  // Screen position and outer size, in twips.
  int Left() const;
  int Top() const;
  int Width() const { return widthTwips_; }
  int Height() const { return heightTwips_; }
  void Move(int left, int top);
  void Resize(int width, int height);

  COLORREF BackColor() const { return backColor_; }
  void SetBackColor(COLORREF colour);

  ScaleMode Scale() const override { return scaleMode_; }
  void SetScaleMode(ScaleMode mode) override { scaleMode_ = mode; }
  HDC hDC() const override;  // the form's own drawing context
  int DrawWidth() const override { return drawWidth_; }
  void SetDrawWidth(int pixels) override { drawWidth_ = pixels; }
  int DrawingDpi() const override { return Dpi(); }
  // Twips to pixels at the form's DPI.
  int ToPixels(int twips) const { return Screen::TwipsToPixels(twips, Dpi()); }
  RECT ToPixels(const TwipsRect& twips) const { return Screen::ToPixels(twips, Dpi()); }
  // Pixels drawn for 96 dpi, at the form's DPI.
  int ScalePixels(int pixels) const;
  // Pixels, converted to the form's own unit.
  int ScaleX(int pixels) const;
  int ScaleY(int pixels) const;

  ElementList Elements() const override;
  // The form's tool tips, created with the first use.
  ToolTips& Tips();
  Element* Find(const std::string& name, int index = -1) const;

 protected:
  // Extended window styles, e.g. WS_EX_TOOLWINDOW for a window that the
  // taskbar does not list.
  virtual DWORD ExtendedStyle() const { return 0; }
  // False for a form that Show must not activate.
  virtual bool ActivatesOnShow() const { return true; }
  // Called by Load, before OnLoad: create the form's elements here.
  virtual void CreateElements() {}
  virtual void OnLoad() {}
  // Set cancel non-zero to refuse the close.
  virtual void OnQueryUnload(std::int16_t& /*cancel*/, UnloadMode /*mode*/) {}
  virtual void OnUnload() {}
  virtual void OnPaint(HDC /*dc*/) {}
  virtual void OnMouseDown(const MouseEvent& /*event*/) {}
  virtual void OnMouseMove(const MouseEvent& /*event*/) {}
  virtual void OnMouseUp(const MouseEvent& /*event*/) {}
  virtual void OnClick() {}
  virtual void OnDblClick() {}
  virtual void OnActivate() {}
  // After the form has moved to a monitor of another DPI and its elements
  // stand at their places for it: what the form sized in pixels is redone.
  virtual void OnDpiChanged() {}
  // A key pressed anywhere in the form, before the element with the focus
  // sees it (as with a designer's KeyPreview); true keeps it from the element.
  // Tab and Shift+Tab never come here: they move the focus.
  virtual bool OnKeyDown(int /*virtualKey*/) { return false; }
  // A character typed with Alt held; true when it was the form's access key.
  virtual bool OnAccessKey(wchar_t /*key*/) { return false; }

  Label& AddLabel(const std::string& name, int index, const TwipsRect& twips);
  PictureBox& AddPictureBox(const std::string& name, const TwipsRect& twips, int id);
  Line& AddLine(const std::string& name, POINT fromTwips, POINT toTwips);
  TextBox& AddTextBox(const std::string& name, const TwipsRect& twips, int id,
                      TextBox::Lines lines);
  ComboBox& AddComboBox(const std::string& name, const TwipsRect& twips, int id, int dropLines);
  ListView& AddListView(const std::string& name, const TwipsRect& twips, int id);
  ImageList& AddImageList(const std::string& name, int width, int height);

  // A timer of this form: `onTick` runs every `intervalMs` while it is loaded.
  void AddTimer(int id, UINT intervalMs, std::function<void()> onTick);

  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  struct Timer {
    int id;
    UINT interval;
    std::function<void()> onTick;
  };

  template <typename T>
  T& Keep(std::unique_ptr<T> element);
  void DestroyElements();
  void OnPaintMessage();
  void KeepBehindFront();
  void OnActivateMessage(WORD state);
  void OnDpiChangedMessage(int dpi, const RECT& suggested);
  template <typename T>
  T& Place(std::unique_ptr<T> element, const TwipsRect& twips);
  bool PreviewKey(const MSG& key);
  void MoveFocus(bool backwards);
  void OnMouseMessage(UINT message, WPARAM wParam, LPARAM lParam);
  Label* LabelAt(POINT pixels) const;
  Control* ControlOf(HWND window) const;
  void Invalidate(const RECT& pixels) const;

  int widthTwips_;
  int heightTwips_;
  ScaleMode scaleMode_ = ScaleMode::kTwips;
  int drawWidth_ = 1;
  COLORREF backColor_ = ::GetSysColor(COLOR_BTNFACE);
  bool closing_ = false;
  std::vector<std::unique_ptr<Element>> elements_;
  std::vector<Label*> labels_;
  std::vector<Line*> lines_;
  std::vector<Timer> timers_;
  std::vector<Control*> controls_;
  // Elements with windows of their own, at their design places; placed
  // again when the DPI changes.
  std::vector<std::pair<Element*, TwipsRect>> placed_;
  std::unique_ptr<ToolTips> tips_;
  MouseHandlers formMouse_;  // the form's own events, as handlers
  MouseHandlers* pressed_ = nullptr;
  HWND focusToRestore_ = nullptr;
  const Form* front_ = nullptr;
};

}  // namespace toolkit
