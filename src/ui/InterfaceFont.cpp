#include "ui/InterfaceFont.h"

#include <array>

#include "platform/IniFile.h"

namespace ui {
namespace {

constexpr char kDefaultFace[] = "Tahoma";
constexpr std::array<const char*, 4> kFallbackFaces = {"Tahoma", "Verdana", "Arial",
                                                       "MS Sans Serif"};

struct KindFont {
  const char* kind;
  double points;
  bool bold;
};
constexpr std::array<KindFont, 3> kKindFonts = {{
    {"Label", 10, true},
    {"TextBox", 10, false},
    {"PictureBox", 9, true},
}};

}  // namespace

void ApplyInterfaceFont(const toolkit::ElementOwner& window, const std::string& configFile) {
  std::string face = platform::ReadIniValue("Config", "Font", configFile);
  if (face.empty()) face = kDefaultFace;

  for (toolkit::Element* element : window.Elements()) {
    if (!toolkit::TryProperty([&] { element->SetFontName(face); })) {
      for (const char* fallback : kFallbackFaces) {
        if (toolkit::TryProperty([&] { element->SetFontName(fallback); })) break;
      }
    }
    for (const KindFont& kindFont : kKindFonts) {
      if (element->Kind() != kindFont.kind) continue;
      toolkit::TryProperty([&] { element->SetFontSize(kindFont.points); });
      toolkit::TryProperty([&] { element->SetFontBold(kindFont.bold); });
    }
  }
}

}  // namespace ui
