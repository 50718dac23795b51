// Registry state that tests change and must leave as they found it, even
// when an assertion fails on the way.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "toolkit/ScopedHandle.h"

namespace testing_support {

// Remembers one value (and which keys on its path exist) and puts it back
// when the guard ends: the old kind and bytes, or no value and no keys where
// there were none.
class RegistryValueGuard {
 public:
  RegistryValueGuard(HKEY hive, std::string keyName, std::string valueName);
  ~RegistryValueGuard();
  RegistryValueGuard(const RegistryValueGuard&) = delete;
  RegistryValueGuard& operator=(const RegistryValueGuard&) = delete;

 private:
  struct Saved {
    DWORD kind;
    std::vector<BYTE> bytes;
  };
  HKEY hive_;
  std::string keyName_, valueName_;
  std::optional<Saved> saved_;
  std::vector<std::string> missingKeys_;  // deepest first
};

// A fresh key under HKEY_CURRENT_USER that only this test uses, deleted with
// everything in it when the object ends.
class ScratchKey {
 public:
  ScratchKey();
  ~ScratchKey();
  ScratchKey(const ScratchKey&) = delete;
  ScratchKey& operator=(const ScratchKey&) = delete;

  const std::string& Name() const { return name_; }  // relative to HKEY_CURRENT_USER
  HKEY Handle() const { return key_.get(); }

 private:
  std::string name_;
  toolkit::ScopedKey key_;
};

// Creates the key as needed and stores raw bytes of any kind.
void StoreRegistryValue(HKEY hive, const std::string& keyName, const std::string& valueName,
                        DWORD kind, const std::string& bytes);

}  // namespace testing_support
