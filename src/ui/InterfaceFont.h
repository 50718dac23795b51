// The type face of the windows' texts, chosen in Config.ini.
#pragma once

#include <string>

#include "toolkit/Element.h"

namespace ui {

// Gives every element of a window the interface face from `configFile`'s
// [Config] Font ("Tahoma" when none is set), falling back through Tahoma,
// Verdana, Arial and MS Sans Serif, and the fixed size and weight of its kind.
void ApplyInterfaceFont(const toolkit::ElementOwner& window, const std::string& configFile);

}  // namespace ui
