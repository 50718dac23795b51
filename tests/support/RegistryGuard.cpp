#include "support/RegistryGuard.h"

#include <stdexcept>

#include "toolkit/ScopedHandle.h"

namespace testing_support {
namespace {

constexpr char kScratchParent[] = "Software\\Morvane Tests";

toolkit::ScopedKey Open(HKEY hive, const std::string& keyName) {
  HKEY key = nullptr;
  ::RegOpenKeyExA(hive, keyName.c_str(), 0, KEY_ALL_ACCESS, &key);
  return toolkit::ScopedKey(key);
}

toolkit::ScopedKey Create(HKEY hive, const std::string& keyName) {
  HKEY key = nullptr;
  if (::RegCreateKeyExA(hive, keyName.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                        nullptr) != ERROR_SUCCESS) {
    throw std::runtime_error("cannot create key " + keyName);
  }
  return toolkit::ScopedKey(key);
}

}  // namespace

RegistryValueGuard::RegistryValueGuard(HKEY hive, std::string keyName, std::string valueName)
    : hive_(hive), keyName_(std::move(keyName)), valueName_(std::move(valueName)) {
  std::string path = keyName_;
  while (!path.empty() && !Open(hive_, path)) {
    missingKeys_.push_back(path);
    auto parent = path.find_last_of('\\');
    path.resize(parent == std::string::npos ? 0 : parent);
  }
  toolkit::ScopedKey key = Open(hive_, keyName_);
  DWORD kind = 0, size = 0;
  if (key && ::RegQueryValueExA(key.get(), valueName_.c_str(), nullptr, &kind, nullptr, &size) ==
                 ERROR_SUCCESS) {
    Saved saved{kind, std::vector<BYTE>(size)};
    ::RegQueryValueExA(key.get(), valueName_.c_str(), nullptr, nullptr, saved.bytes.data(), &size);
    saved_ = std::move(saved);
  }
}

RegistryValueGuard::~RegistryValueGuard() {
  if (saved_) {
    toolkit::ScopedKey key = Open(hive_, keyName_);
    ::RegSetValueExA(key.get(), valueName_.c_str(), 0, saved_->kind, saved_->bytes.data(),
                     static_cast<DWORD>(saved_->bytes.size()));
    return;
  }
  if (toolkit::ScopedKey key = Open(hive_, keyName_))
    ::RegDeleteValueA(key.get(), valueName_.c_str());
  for (const std::string& path : missingKeys_) ::RegDeleteKeyA(hive_, path.c_str());
}

ScratchKey::ScratchKey()
    : name_(std::string(kScratchParent) + "\\" + std::to_string(::GetCurrentProcessId())),
      key_(Create(HKEY_CURRENT_USER, name_)) {}

ScratchKey::~ScratchKey() {
  key_.reset();
  ::RegDeleteTreeA(HKEY_CURRENT_USER, name_.c_str());
  ::RegDeleteKeyA(HKEY_CURRENT_USER, kScratchParent);  // only once no other test uses it
}

void StoreRegistryValue(HKEY hive, const std::string& keyName, const std::string& valueName,
                        DWORD kind, const std::string& bytes) {
  toolkit::ScopedKey key = Create(hive, keyName);
  ::RegSetValueExA(key.get(), valueName.c_str(), 0, kind,
                   reinterpret_cast<const BYTE*>(bytes.data()), static_cast<DWORD>(bytes.size()));
}

}  // namespace testing_support
