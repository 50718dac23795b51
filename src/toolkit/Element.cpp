#include "toolkit/Element.h"

#include <cmath>
#include <utility>

namespace toolkit {
namespace {

constexpr int kPointsPerInch = 72;

int ScreenDpiY() {
  platform::WindowDC screen(nullptr);
  return screen ? ::GetDeviceCaps(screen.get(), LOGPIXELSY) : USER_DEFAULT_SCREEN_DPI;
}

LOGFONTA Describe(const std::string& face, double points, bool bold) {
  LOGFONTA font{};
  font.lfHeight = -static_cast<LONG>(std::lround(points * ScreenDpiY() / kPointsPerInch));
  font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = DEFAULT_QUALITY;
  face.copy(font.lfFaceName, LF_FACESIZE - 1);
  return font;
}

bool SameFace(const std::string& a, const std::string& b) {
  return a.size() == b.size() && ::CompareStringA(LOCALE_SYSTEM_DEFAULT, NORM_IGNORECASE, a.data(),
                                                  static_cast<int>(a.size()), b.data(),
                                                  static_cast<int>(b.size())) == CSTR_EQUAL;
}

}  // namespace

std::string ResolvedFontFace(const std::string& face) {
  if (face.empty() || face.size() >= LF_FACESIZE) return {};
  LOGFONTA description = Describe(face, kDesignFontPoints, false);
  platform::ScopedFont font(::CreateFontIndirectA(&description));
  platform::WindowDC screen(nullptr);
  if (!font || !screen) return {};
  platform::ScopedSelect select(screen.get(), font.get());
  char actual[LF_FACESIZE] = {};
  int length = ::GetTextFaceA(screen.get(), LF_FACESIZE, actual);
  return length > 0 ? std::string(actual) : std::string();
}

Element::Element(std::string name, std::string kind, FontSupport font)
    : name_(std::move(name)), kind_(std::move(kind)), hasFont_(font == FontSupport::kHasFont) {
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

RECT Element::Bounds() const {
  RECT bounds{};
  if (!window_) return bounds;
  ::GetWindowRect(window_, &bounds);
  ::MapWindowPoints(nullptr, ::GetParent(window_), reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

void Element::AttachWindow(HWND window) {
  window_ = window;
  if (window_ && font_)
    ::SendMessageA(window_, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), TRUE);
}

void Element::RebuildFont() {
  LOGFONTA description = Describe(face_, points_, bold_);
  platform::ScopedFont replacement(::CreateFontIndirectA(&description));
  if (!replacement) return;
  // The window lets go of the old font before it is deleted.
  if (window_) {
    ::SendMessageA(window_, WM_SETFONT, reinterpret_cast<WPARAM>(replacement.get()), TRUE);
  }
  font_ = std::move(replacement);
  OnFontChanged();
}

}  // namespace toolkit
