// A look at the tables of an icon source before the system reads it.
#pragma once

#include <string>

namespace platform {

// False when `file` is a program, library or icon file whose own tables
// place data beyond the end of the file (a library cut short, a resource
// table past the image, an icon file claiming more images than it holds).
// The system's extraction reads such files through a mapping and faults on
// them (Wine 8 does), so they count as unreadable. Anything else, including
// a path that cannot be opened here, is left for the system to judge.
bool IconSourceIsIntact(const std::string& file);

}  // namespace platform
