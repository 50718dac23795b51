// Files and folders by path: existence tests on the system's directory
// search, so that wildcards in the last part of a path match as patterns, as
// the shell's own searches do, and the attribute and deletion calls.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace platform {

// True when anything (file or folder) matches `path`.
bool FileExists(const std::string& path);

// True when the first match of `path` is a folder. A path ending in "\"
// matches nothing.
bool FolderExists(const std::string& path);

// The attribute word of `path`; nothing when the system cannot read it.
std::optional<DWORD> ReadAttributes(const std::string& path);
bool WriteAttributes(const std::string& path, DWORD attributes);
bool RemoveFile(const std::string& path);

}  // namespace platform
