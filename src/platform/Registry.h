// The registry operations of the program: plain values in and out, no error
// ever shown. Only text (REG_SZ) and 32-bit numbers (REG_DWORD) are handled.
#pragma once

#include <windows.h>

#include <string>
#include <variant>

namespace platform {

// Nothing, a text or a number.
using RegistryValue = std::variant<std::monostate, std::string, DWORD>;

inline constexpr DWORD kTextKind = REG_SZ;
inline constexpr DWORD kNumberKind = REG_DWORD;
// Status of a read that met a value of another kind.
inline constexpr LONG kUnhandledKind = -1;
// Query, set, create sub-key, enumerate, notify and create link: what the
// program asks for on every key it opens.
inline constexpr REGSAM kKeyAccess = KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_CREATE_SUB_KEY |
                                     KEY_ENUMERATE_SUB_KEYS | KEY_NOTIFY | KEY_CREATE_LINK;

// The value `valueName` of `hive`\`keyName`; nothing when the key cannot be
// opened with kKeyAccess or the value cannot be read.
RegistryValue GetRegistryValue(HKEY hive, const std::string& keyName, const std::string& valueName);

// Reads into `value` and returns the system's status (0 = success). A text
// keeps every byte the system reports, its terminating NUL included. A value
// of another kind gives kUnhandledKind and leaves `value` untouched.
LONG ReadRegistryValue(HKEY openKey, const std::string& valueName, RegistryValue& value);

// Writes through WriteRegistryValue into an existing key; a missing key gets
// nothing.
void SetRegistryValue(HKEY hive, const std::string& keyName, const std::string& valueName,
                      const RegistryValue& value, DWORD kind);

// Writes `value` as `kind`: a text without a terminating NUL, a number as
// four bytes. Another kind writes nothing and returns 0.
LONG WriteRegistryValue(HKEY openKey, const std::string& valueName, DWORD kind,
                        const RegistryValue& value);

// The value as text: a number in decimal, nothing as "".
std::string RegistryText(const RegistryValue& value);

}  // namespace platform
