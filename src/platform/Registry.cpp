#include "platform/Registry.h"

#include <optional>

#include "platform/ScopedHandle.h"
#include "platform/TextRules.h"
#include "platform/Utf8.h"

namespace platform {
namespace {

constexpr DWORD kNumberSize = sizeof(DWORD);
constexpr LONG kNothingWritten = ERROR_SUCCESS;
// The system counts a NUL it finds just after the given bytes as the text's
// terminator; a non-NUL guard there keeps the stored text to its own length.
constexpr wchar_t kGuard = L'\x01';

ScopedKey OpenKey(HKEY hive, const std::string& keyName) {
  HKEY key = nullptr;
  if (::RegOpenKeyExW(hive, Wide(keyName).c_str(), 0, kKeyAccess, &key) != ERROR_SUCCESS) {
    return {};
  }
  return ScopedKey(key);
}

std::optional<DWORD> RegistryNumber(const RegistryValue& value) {
  if (const DWORD* number = std::get_if<DWORD>(&value)) return *number;
  if (const std::string* text = std::get_if<std::string>(&value)) {
    if (auto number = ToWholeNumber(*text)) return static_cast<DWORD>(*number);
  }
  return std::nullopt;
}

}  // namespace

std::string RegistryText(const RegistryValue& value) {
  if (const std::string* text = std::get_if<std::string>(&value)) return *text;
  if (const DWORD* number = std::get_if<DWORD>(&value)) return std::to_string(*number);
  return {};
}

RegistryValue GetRegistryValue(HKEY hive, const std::string& keyName,
                               const std::string& valueName) {
  RegistryValue value;
  ScopedKey key = OpenKey(hive, keyName);
  if (key) ReadRegistryValue(key.get(), valueName, value);
  return value;
}

LONG ReadRegistryValue(HKEY openKey, const std::string& valueName, RegistryValue& value) {
  const std::wstring name = Wide(valueName);
  DWORD kind = 0;
  DWORD size = 0;
  LONG status = ::RegQueryValueExW(openKey, name.c_str(), nullptr, &kind, nullptr, &size);
  if (status != ERROR_SUCCESS) {
    value = std::monostate{};
    return status;
  }
  if (kind == kTextKind) {
    // Sizes are in bytes; an odd one still gets its last byte a place.
    std::wstring buffer((size + 1) / sizeof(wchar_t), L'\0');
    status = ::RegQueryValueExW(openKey, name.c_str(), nullptr, nullptr,
                                reinterpret_cast<BYTE*>(buffer.data()), &size);
    if (status == ERROR_SUCCESS) {
      value = Utf8(buffer);
    } else {
      value = std::monostate{};
    }
    return status;
  }
  if (kind == kNumberKind) {
    DWORD number = 0;
    DWORD numberSize = kNumberSize;
    status = ::RegQueryValueExW(openKey, name.c_str(), nullptr, nullptr,
                                reinterpret_cast<BYTE*>(&number), &numberSize);
    if (status == ERROR_SUCCESS) value = number;
    return status;
  }
  return kUnhandledKind;
}

void SetRegistryValue(HKEY hive, const std::string& keyName, const std::string& valueName,
                      const RegistryValue& value, DWORD kind) {
  ScopedKey key = OpenKey(hive, keyName);
  if (key) WriteRegistryValue(key.get(), valueName, kind, value);
}

LONG WriteRegistryValue(HKEY openKey, const std::string& valueName, DWORD kind,
                        const RegistryValue& value) {
  const std::wstring name = Wide(valueName);
  if (kind == kTextKind) {
    std::wstring text = Wide(RegistryText(value));
    const auto length = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    text.push_back(kGuard);
    return ::RegSetValueExW(openKey, name.c_str(), 0, kind,
                            reinterpret_cast<const BYTE*>(text.data()), length);
  }
  if (kind == kNumberKind) {
    std::optional<DWORD> number = RegistryNumber(value);
    if (!number) return ERROR_INVALID_DATA;
    return ::RegSetValueExW(openKey, name.c_str(), 0, kind, reinterpret_cast<const BYTE*>(&*number),
                            kNumberSize);
  }
  return kNothingWritten;
}

}  // namespace platform
