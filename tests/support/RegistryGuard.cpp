#include "support/RegistryGuard.h"

namespace testing_support {
namespace {

toolkit::ScopedKey Create(HKEY hive, const std::string& keyName) {
  HKEY key = nullptr;
  ::RegCreateKeyExA(hive, keyName.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  return toolkit::ScopedKey(key);
}

}  // namespace

RegistryValueGuard::RegistryValueGuard(HKEY hive, std::string keyName, std::string valueName)
    : hive_(hive), keyName_(std::move(keyName)), valueName_(std::move(valueName)) {
  HKEY opened = nullptr;
  ::RegOpenKeyExA(hive_, keyName_.c_str(), 0, KEY_QUERY_VALUE, &opened);
  toolkit::ScopedKey key(opened);
  // The exact bytes, unlike RegGetValue, which may add a terminator.
  DWORD size = 0;
  if (key && ::RegQueryValueExA(key.get(), valueName_.c_str(), nullptr, &kind_, nullptr, &size) ==
                 ERROR_SUCCESS) {
    saved_.emplace(size);
    ::RegQueryValueExA(key.get(), valueName_.c_str(), nullptr, nullptr, saved_->data(), &size);
  }
}

RegistryValueGuard::~RegistryValueGuard() {
  toolkit::ScopedKey key = Create(hive_, keyName_);
  if (saved_) {
    ::RegSetValueExA(key.get(), valueName_.c_str(), 0, kind_, saved_->data(),
                     static_cast<DWORD>(saved_->size()));
  } else {
    ::RegDeleteValueA(key.get(), valueName_.c_str());
  }
}

ScratchKey::ScratchKey() : key_(Create(HKEY_CURRENT_USER, name_)) {}

ScratchKey::~ScratchKey() {
  key_.reset();
  ::RegDeleteTreeA(HKEY_CURRENT_USER, name_.c_str());
}

void StoreRegistryValue(HKEY hive, const std::string& keyName, const std::string& valueName,
                        DWORD kind, const std::string& bytes) {
  ::RegSetValueExA(Create(hive, keyName).get(), valueName.c_str(), 0, kind,
                   reinterpret_cast<const BYTE*>(bytes.data()), static_cast<DWORD>(bytes.size()));
}

}  // namespace testing_support
