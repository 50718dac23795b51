// The program's own TrueType font, present in the system only while the
// program runs.
#pragma once

namespace ui {

inline constexpr char kProgramFontFile[] = "Morvane.ttf";
inline constexpr char kProgramFontFace[] = "XFont Morvane";

// Takes the face out of the system's font table and deletes the font file
// beside the program. Harmless when the font is not installed.
void RemoveProgramFont();

}  // namespace ui
