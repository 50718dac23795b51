// Existence tests on the system's directory search, so that wildcards in the
// last part of a path match as patterns, as the shell's own searches do.
#pragma once

#include <string>

namespace platform {

// True when anything (file or folder) matches `path`.
bool FileExists(const std::string& path);

// True when the first match of `path` is a folder. A path ending in "\"
// matches nothing.
bool FolderExists(const std::string& path);

}  // namespace platform
