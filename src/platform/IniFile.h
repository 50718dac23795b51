// Profile-file access for every .ini file the program touches
// (Config.ini, a folder's Desktop.ini, ARA.INI).
#pragma once

#include <string>

namespace platform {

// The value of `key` in `section` of `file`, or empty when the file, the
// section or the key is missing. Values are cut to 29999 characters. The
// file may be ANSI or UTF-16.
std::string ReadIniValue(const std::string& section, const std::string& key,
                         const std::string& file);

// Creates file, section or key as needed; true when the system reports
// success. A file keeps the form it has (a new one is ANSI, byte for byte as
// the ANSI calls write it) until a text the ANSI code page cannot hold is
// written: the file then becomes UTF-16 with a byte-order mark, as Explorer
// keeps such files, with all it held.
bool WriteIniValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file);

}  // namespace platform
