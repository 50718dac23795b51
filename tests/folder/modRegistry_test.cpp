#include "folder/modRegistry.h"

#include <gtest/gtest.h>

#include "support/RegistryGuard.h"

namespace {

using folder::ReadRegistryValue;
using folder::RegistryValue;
using folder::WriteRegistryValue;
using testing_support::ScratchKey;
using testing_support::StoreRegistryValue;

TEST(ReadRegistryValue, ReadsTextsWithTheirNulAndNumbersAndNothingElse) {
  ScratchKey scratch;
  StoreRegistryValue(HKEY_CURRENT_USER, scratch.Name(), "text", REG_SZ, std::string("abc\0", 4));
  StoreRegistryValue(HKEY_CURRENT_USER, scratch.Name(), "number", REG_DWORD,
                     std::string("\x2A\x00\x00\x80", 4));
  StoreRegistryValue(HKEY_CURRENT_USER, scratch.Name(), "expand", REG_EXPAND_SZ,
                     std::string("%SystemRoot%\\a.dll,3\0", 21));

  RegistryValue value;
  EXPECT_EQ(ReadRegistryValue(scratch.Handle(), "text", value), ERROR_SUCCESS);
  EXPECT_EQ(value, RegistryValue(std::string("abc\0", 4)));
  EXPECT_EQ(ReadRegistryValue(scratch.Handle(), "number", value), ERROR_SUCCESS);
  EXPECT_EQ(value, RegistryValue(DWORD{0x8000002A}));
  EXPECT_EQ(ReadRegistryValue(scratch.Handle(), "expand", value), folder::kUnhandledKind);
  EXPECT_EQ(value, RegistryValue(DWORD{0x8000002A})) << "left untouched";
  EXPECT_EQ(ReadRegistryValue(scratch.Handle(), "missing", value), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(value, RegistryValue());

  EXPECT_EQ(folder::GetRegistryValue(HKEY_CURRENT_USER, scratch.Name(), "text"),
            RegistryValue(std::string("abc\0", 4)));
  EXPECT_EQ(folder::GetRegistryValue(HKEY_CURRENT_USER, scratch.Name() + "\\none", "text"),
            RegistryValue());
}

TEST(WriteRegistryValue, StoresTextWithoutTerminatorAndNumbersAsFourBytes) {
  ScratchKey scratch;
  auto stored = [&](const char* name) {
    DWORD kind = 0;
    std::string bytes(16, '\0');
    DWORD size = static_cast<DWORD>(bytes.size());
    if (::RegQueryValueExA(scratch.Handle(), name, nullptr, &kind,
                           reinterpret_cast<BYTE*>(bytes.data()), &size) != ERROR_SUCCESS) {
      return std::string("(none)");
    }
    return std::to_string(kind) + ":" + bytes.substr(0, size);
  };
  EXPECT_EQ(WriteRegistryValue(scratch.Handle(), "text", REG_SZ, std::string("abc")), 0);
  EXPECT_EQ(stored("text"), "1:abc");
  WriteRegistryValue(scratch.Handle(), "number", REG_DWORD, DWORD{7});
  EXPECT_EQ(stored("number"), std::string("4:\x07\0\0\0", 6));
  EXPECT_EQ(WriteRegistryValue(scratch.Handle(), "binary", REG_BINARY, std::string("x")), 0);
  EXPECT_EQ(stored("binary"), "(none)");

  folder::SetRegistryValue(HKEY_CURRENT_USER, scratch.Name(), "set", std::string("16"), REG_SZ);
  EXPECT_EQ(stored("set"), "1:16");
  folder::SetRegistryValue(HKEY_CURRENT_USER, scratch.Name() + "\\none", "set", DWORD{1},
                           REG_DWORD);
  EXPECT_EQ(folder::GetRegistryValue(HKEY_CURRENT_USER, scratch.Name() + "\\none", "set"),
            RegistryValue())
      << "no key is created";
}

}  // namespace
