// Small routines shared by the whole program.
#pragma once

#include <string>

#include "toolkit/Element.h"

namespace frame {

// The characters before the first NUL; a text without a NUL gives "".
std::string TextBeforeNul(const std::string& text);

// Gives every element of a window the interface face from Config.ini
// ("Tahoma" when none is set), falling back through Tahoma, Verdana, Arial
// and MS Sans Serif, and the fixed size and weight of its kind.
void ApplyInterfaceFont(const toolkit::ElementOwner& window);

}  // namespace frame
