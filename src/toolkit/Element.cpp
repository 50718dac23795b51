#include "toolkit/Element.h"

#include <cmath>
#include <utility>

#include "platform/Utf8.h"
#include "toolkit/Screen.h"

namespace toolkit {
namespace {

constexpr int kPointsPerInch = 72;

LOGFONTW Describe(const std::wstring& face, double points, bool bold, int dpi) {
  LOGFONTW font{};
  font.lfHeight = -static_cast<LONG>(std::lround(points * dpi / kPointsPerInch));
  font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = DEFAULT_QUALITY;
  face.copy(font.lfFaceName, LF_FACESIZE - 1);
  return font;
}

bool SameFace(const std::string& a, const std::string& b) {
  const std::wstring wideA = platform::Wide(a), wideB = platform::Wide(b);
  return wideA.size() == wideB.size() &&
         ::CompareStringW(LOCALE_SYSTEM_DEFAULT, NORM_IGNORECASE, wideA.data(),
                          static_cast<int>(wideA.size()), wideB.data(),
                          static_cast<int>(wideB.size())) == CSTR_EQUAL;
}

}  // namespace

std::string ResolvedFontFace(const std::string& face) {
  const std::wstring wide = platform::Wide(face);
  if (wide.empty() || wide.size() >= LF_FACESIZE) return {};
  LOGFONTW description = Describe(wide, kDesignFontPoints, false, Screen::Dpi());
  platform::ScopedFont font(::CreateFontIndirectW(&description));
  platform::WindowDC screen(nullptr);
  if (!font || !screen) return {};
  platform::ScopedSelect select(screen.get(), font.get());
  wchar_t actual[LF_FACESIZE] = {};
  int length = ::GetTextFaceW(screen.get(), LF_FACESIZE, actual);
  return length > 0 ? platform::Utf8(actual) : std::string();
}

Element::Element(std::string name, std::string kind, FontSupport font)
    : name_(std::move(name)),
      kind_(std::move(kind)),
      hasFont_(font == FontSupport::kHasFont),
      dpi_(Screen::Dpi()) {
  if (hasFont_) RebuildFont();
}

void Element::RequireFont() const {
  if (!hasFont_) throw ElementError(name_ + " has no font");
}

const std::string& Element::FontName() const {
  RequireFont();
  return face_;
}

void Element::SetFontName(const std::string& face) {
  RequireFont();
  if (!SameFace(ResolvedFontFace(face), face)) {
    throw ElementError("Font face \"" + face + "\" is not available");
  }
  face_ = face;
  RebuildFont();
}

double Element::FontSize() const {
  RequireFont();
  return points_;
}

void Element::SetFontSize(double points) {
  RequireFont();
  if (!(points > 0)) throw ElementError("Invalid font size");
  points_ = points;
  RebuildFont();
}

bool Element::FontBold() const {
  RequireFont();
  return bold_;
}

void Element::SetFontBold(bool bold) {
  RequireFont();
  bold_ = bold;
  RebuildFont();
}

void Element::SetDpi(int dpi) {
  if (dpi == dpi_ || dpi <= 0) return;
  dpi_ = dpi;
  if (hasFont_) RebuildFont();
}

RECT Element::Bounds() const {
  RECT bounds{};
  if (!window_) return bounds;
  ::GetWindowRect(window_, &bounds);
  ::MapWindowPoints(nullptr, ::GetParent(window_), reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

void Element::Place(const RECT& pixels) {
  if (!window_) return;
  ::SetWindowPos(window_, nullptr, pixels.left, pixels.top, pixels.right - pixels.left,
                 pixels.bottom - pixels.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Element::AttachWindow(HWND window) {
  window_ = window;
  if (window_ && font_)
    ::SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), TRUE);
}

void Element::RebuildFont() {
  LOGFONTW description = Describe(platform::Wide(face_), points_, bold_, dpi_);
  platform::ScopedFont replacement(::CreateFontIndirectW(&description));
  if (!replacement) return;
  // The window lets go of the old font before it is deleted.
  if (window_) {
    ::SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(replacement.get()), TRUE);
  }
  font_ = std::move(replacement);
  OnFontChanged();
}

}  // namespace toolkit
