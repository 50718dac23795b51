// Where the system's icon for every uncustomised folder comes from. The main
// window extracts and draws it; this finds it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

namespace core {

// One registry value: hive, key and value name ("" = the key's default).
struct RegistryPlace {
  HKEY hive;
  std::string keyName;
  std::string valueName;
};

// The shell's own override of the closed-folder icon, consulted first.
RegistryPlace ShellFolderIconPlace();
// The folder class's icon, consulted when the override yields no text.
RegistryPlace FolderClassIconPlace();

struct IconLocation {
  std::string file;
  std::int32_t index;  // passed on unchanged, negative or not
  bool operator==(const IconLocation&) const = default;
};

// The part of an icon location ("file,number") before its first comma; the
// whole location when it has none.
std::string IconLocationFile(const std::string& location);

// The number after the first comma; 0 without a comma, nothing when the rest
// is not a whole number (as in a path that itself holds a comma).
std::optional<std::int32_t> IconLocationIndex(const std::string& location);

// The location text of the default folder icon: the shell's override, else
// the folder class's, cut at its terminating NUL. Environment references are
// not expanded, and values of the expandable kind are not read at all.
std::string DefaultFolderIconLocation();

// The file and position to extract the default folder icon from; nothing
// when the location's number does not read.
std::optional<IconLocation> DefaultFolderIcon();

}  // namespace core
