// Files, paths and text for every test program, on Win32 and the standard
// library alone, so that the end-to-end tests share them without building
// the product's sources. Paths are UTF-8, as in the program.
#pragma once
#include <windows.h>

#include <functional>
#include <map>
#include <string>

namespace testing_support {

std::wstring Wide(const std::string& text);
std::string Utf8(const std::wstring& text);
std::string TestFolder();  // the test programs, TESTRES.DLL and the icon files, with "\"
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& bytes);
// A profile file's bytes: UTF-16 after a byte-order mark, as the program
// writes one whose text the ANSI code page cannot hold.
std::string Utf16File(const std::string& text);
DWORD Attributes(const std::string& path);  // INVALID_FILE_ATTRIBUTES when missing
bool IsFile(const std::string& path);
// Calls `visit` for everything under `folder`, a folder after its contents.
void Walk(const std::string& folder, const std::function<void(const std::string&, bool)>& visit);
void DeleteTree(const std::string& folder);
// Every path under `folder` with its bytes, or "\" for a folder.
std::map<std::string, std::string> Snapshot(const std::string& folder);

}  // namespace testing_support
