// How a path the user gave reaches the system. A path within the classic
// limit of MAX_PATH characters goes exactly as given, as it always has; a
// longer one takes the form each kind of call accepts.
#pragma once

#include <string>

namespace platform {

// For the kernel's file calls (attributes, search, open, delete): beyond the
// limit, the full path in the "\\?\" form, which has no limit of its own.
std::wstring FilePath(const std::string& path);

// For calls that keep paths in MAX_PATH buffers of their own (profile files,
// icon extraction, the shell, libraries, fonts), which refuse the "\\?\"
// form: beyond the limit, the path's short (8.3) form; a part that does not
// exist yet, such as a file about to be written, keeps its name. The "\\?\"
// form when the volume keeps no short names.
std::wstring ShellPath(const std::string& path);

}  // namespace platform
