#include "folder/DefaultFolderIcon.h"

#include <gtest/gtest.h>

#include "support/RegistryGuard.h"

namespace {

using folder::DefaultFolderIcon;
using folder::IconLocation;
using folder::IconLocationFile;
using folder::IconLocationIndex;
using folder::RegistryPlace;

TEST(IconLocation, SplitsAtTheFirstComma) {
  EXPECT_EQ(IconLocationFile("C:\\w\\shell32.dll,4"), "C:\\w\\shell32.dll");
  EXPECT_EQ(IconLocationIndex("C:\\w\\shell32.dll,4"), 4);
  EXPECT_EQ(IconLocationIndex("C:\\w\\imageres.dll, -3"), -3);
  EXPECT_EQ(IconLocationFile("C:\\w\\folder.ico"), "C:\\w\\folder.ico");
  EXPECT_EQ(IconLocationIndex("C:\\w\\folder.ico"), 0);
  EXPECT_EQ(IconLocationFile("C:\\a,b\\lib.dll,3"), "C:\\a");
  EXPECT_EQ(IconLocationIndex("C:\\a,b\\lib.dll,3"), std::nullopt);
}

TEST(DefaultFolderIcon, TheShellsOverrideComesBeforeTheFolderClass) {
  const RegistryPlace shell = folder::ShellFolderIconPlace();
  const RegistryPlace folderClass = folder::FolderClassIconPlace();
  testing_support::RegistryValueGuard keepShell(shell.hive, shell.keyName, shell.valueName);
  testing_support::RegistryValueGuard keepClass(folderClass.hive, folderClass.keyName, "");
  auto store = [](const RegistryPlace& place, DWORD kind, const std::string& text) {
    testing_support::StoreRegistryValue(place.hive, place.keyName, place.valueName, kind, text);
  };
  ::RegDeleteKeyValueA(shell.hive, shell.keyName.c_str(), shell.valueName.c_str());
  // Texts as programs store them, terminator included.
  store(folderClass, REG_SZ, std::string("%SystemRoot%\\class.dll,-5\0", 26));
  EXPECT_EQ(DefaultFolderIcon(), (IconLocation{"%SystemRoot%\\class.dll", -5}));
  store(shell, REG_EXPAND_SZ, std::string("C:\\shell.dll,4\0", 15));
  EXPECT_EQ(DefaultFolderIcon(), (IconLocation{"%SystemRoot%\\class.dll", -5}));
  store(shell, REG_SZ, std::string("C:\\shell.dll,4\0", 15));
  EXPECT_EQ(DefaultFolderIcon(), (IconLocation{"C:\\shell.dll", 4}));

  // A number is not empty as text, so the class is not consulted; having no
  // terminator, it names no file.
  store(shell, REG_DWORD, std::string("\x05\0\0\0", 4));
  EXPECT_EQ(DefaultFolderIcon(), (IconLocation{"", 0}));
}

}  // namespace
