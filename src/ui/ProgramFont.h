// The program's own TrueType font, present in the system only while the
// program runs.
#pragma once

#include <string>

#include "platform/ResourceLibrary.h"
#include "toolkit/Form.h"

namespace ui {

inline constexpr char kProgramFontFile[] = "Morvane.ttf";
inline constexpr char kProgramFontFace[] = "XFont Morvane";

// Writes the font from the picture library into `programFolder`, adds it to
// the system's font table and gives it to `mainWindow`; true when the face
// is usable afterwards.
bool InstallProgramFont(toolkit::Form& mainWindow, const std::string& programFolder,
                        const platform::ResourceLibrary& pictures);

// Takes the face out of the system's font table and deletes the font file
// beside the program. Harmless when the font is not installed.
void RemoveProgramFont(const std::string& programFolder);

}  // namespace ui
