// A named element of a window (label, text box, picture box, ...). This is
// the part every element shares: its name, its kind and its font. A property
// the element cannot take raises ElementError, as a property assignment that
// fails in a form designer would; callers that step over failures catch it.
#pragma once

#include <windows.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/ScopedHandle.h"
#include "toolkit/Accessible.h"

namespace toolkit {

class Canvas;

class ElementError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The face a window element is designed with until told otherwise.
inline constexpr char kDesignFontFace[] = "Tahoma";
inline constexpr double kDesignFontPoints = 8.0;

class Element {
 public:
  enum class FontSupport { kHasFont, kNoFont };

  Element(std::string name, std::string kind, FontSupport font = FontSupport::kHasFont);
  virtual ~Element() = default;
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  const std::string& Name() const { return name_; }
  // The element's type name as a form designer shows it ("Label", "TextBox").
  const std::string& Kind() const { return kind_; }

  const std::string& FontName() const;
  // Throws ElementError when the element has no font or the system has no
  // such face; the element then keeps its face.
  void SetFontName(const std::string& face);
  double FontSize() const;
  void SetFontSize(double points);
  bool FontBold() const;
  void SetFontBold(bool bold);
  HFONT Font() const { return font_.get(); }

  // The DPI the element is drawn at, that of the window it belongs to; its
  // font follows it.
  int Dpi() const { return dpi_; }
  void SetDpi(int dpi);

  HWND Window() const { return window_; }

  // Position and size in the parent's client area, pixels.
  virtual RECT Bounds() const;
  // Moves the element's own window there; nothing for an element without one.
  virtual void Place(const RECT& pixels);
  // The form (or surface) the element sits on; nullptr for none.
  Canvas* Parent() const { return parent_; }
  void SetParent(Canvas* parent) { parent_ = parent; }

  // What screen readers learn of the element; an element without a name
  // leaves WM_GETOBJECT to the system.
  void SetAccessibility(Accessibility accessibility) {
    accessibility_ = std::make_shared<const Accessibility>(std::move(accessibility));
  }

 protected:
  // The element's own window, if it has one, gets the font with WM_SETFONT.
  void AttachWindow(HWND window);
  virtual void OnFontChanged() {}
  // The answer to WM_GETOBJECT, 0 for the default handling.
  LRESULT AccessibleObject(WPARAM wParam, LPARAM lParam) const {
    return AccessibleObjectResult(window_, wParam, lParam, accessibility_);
  }
  // On DefaultActionMessage().
  void DoDefaultAction() const {
    if (accessibility_ && accessibility_->defaultAction) accessibility_->defaultAction();
  }

 private:
  void RequireFont() const;
  void RebuildFont();

  std::string name_;
  std::string kind_;
  bool hasFont_;
  std::string face_ = kDesignFontFace;
  double points_ = kDesignFontPoints;
  bool bold_ = false;
  platform::ScopedFont font_;
  HWND window_ = nullptr;
  int dpi_;
  Canvas* parent_ = nullptr;
  std::shared_ptr<const Accessibility> accessibility_;
};

// Runs one property assignment the way every set-up of this program does: an
// assignment the element refuses is stepped over. True when it took.
template <typename Assignment>
bool TryProperty(Assignment assign) {
  try {
    assign();
    return true;
  } catch (const ElementError&) {
    return false;
  }
}

using ElementList = std::vector<Element*>;

// Anything that holds elements in a fixed order: the windows of the program.
class ElementOwner {
 public:
  virtual ~ElementOwner() = default;
  virtual ElementList Elements() const = 0;
};

// The face the system actually uses when asked for `face` ("" when it
// cannot make the font at all). Differs from `face` when the system
// substitutes another.
std::string ResolvedFontFace(const std::string& face);

}  // namespace toolkit
