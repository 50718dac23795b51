// Registry state that tests change and must leave as they found it, even
// when an assertion fails on the way.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "toolkit/ScopedHandle.h"

namespace testing_support {

// Remembers one value and puts it back when the guard ends: the old kind
// and bytes, or no value where there was none. Keys created on the way stay.
class RegistryValueGuard {
 public:
  RegistryValueGuard(HKEY hive, std::string keyName, std::string valueName);
  ~RegistryValueGuard();
  RegistryValueGuard(const RegistryValueGuard&) = delete;
  RegistryValueGuard& operator=(const RegistryValueGuard&) = delete;

 private:
  HKEY hive_;
  std::string keyName_, valueName_;
  DWORD kind_ = REG_NONE;
  std::optional<std::vector<BYTE>> saved_;
};

// A fresh key under HKEY_CURRENT_USER, deleted with its contents at the end.
class ScratchKey {
 public:
  ScratchKey();
  ~ScratchKey();
  ScratchKey(const ScratchKey&) = delete;
  ScratchKey& operator=(const ScratchKey&) = delete;

  const std::string& Name() const { return name_; }  // relative to HKEY_CURRENT_USER
  HKEY Handle() const { return key_.get(); }

 private:
  std::string name_ = "Software\\Morvane Tests";
  toolkit::ScopedKey key_;
};

// Creates the key as needed and stores raw bytes of any kind.
void StoreRegistryValue(HKEY hive, const std::string& keyName, const std::string& valueName,
                        DWORD kind, const std::string& bytes);

}  // namespace testing_support
