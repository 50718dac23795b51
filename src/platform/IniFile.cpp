#include "platform/IniFile.h"

#include <windows.h>

#include <string_view>

#include "platform/ScopedHandle.h"
#include "platform/SystemPath.h"
#include "platform/Utf8.h"

namespace platform {
namespace {

constexpr DWORD kIniBufferLength = 30000;
constexpr std::string_view kByteOrderMarks[] = {"\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF"};
constexpr char kLittleEndianMark[] = "\xFF\xFE";

bool IsUnicode(std::string_view bytes) {
  for (std::string_view mark : kByteOrderMarks) {
    if (bytes.substr(0, mark.size()) == mark) return true;
  }
  return false;
}

std::string ReadAll(HANDLE file) {
  LARGE_INTEGER size{};
  if (!::GetFileSizeEx(file, &size) || size.HighPart != 0) return {};
  std::string bytes(size.LowPart, '\0');
  DWORD read = 0;
  if (!::ReadFile(file, bytes.data(), size.LowPart, &read, nullptr)) return {};
  bytes.resize(read);
  return bytes;
}

// The system's profile calls keep a Unicode file Unicode and write anything
// else in the ANSI code page, so a text the code page cannot hold needs the
// file in UTF-16 first. The file's ANSI text is carried over unchanged; a
// missing file becomes an empty Unicode one.
void MakeUnicode(const std::string& file) {
  // The system may hold the file's text from an earlier call, in its old
  // form: it lets go of it here and reads the file afresh next time.
  ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, ShellPath(file).c_str());
  ScopedKernelHandle handle(::CreateFileW(FilePath(file).c_str(), GENERIC_READ | GENERIC_WRITE,
                                          FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
  if (handle.get() == INVALID_HANDLE_VALUE) {
    handle.release();  // not a handle to close
    return;
  }
  const std::string ansi = ReadAll(handle.get());
  if (IsUnicode(ansi)) return;
  std::wstring text(ansi.size(), L'\0');
  text.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_ACP, 0, ansi.data(), static_cast<int>(ansi.size()), text.data(),
                            static_cast<int>(text.size()))));
  // Windows keeps wide characters little-endian, as the mark says.
  std::string unicode = kLittleEndianMark;
  unicode.append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
  DWORD written = 0;
  ::SetFilePointer(handle.get(), 0, nullptr, FILE_BEGIN);
  if (::WriteFile(handle.get(), unicode.data(), static_cast<DWORD>(unicode.size()), &written,
                  nullptr)) {
    ::SetEndOfFile(handle.get());
  }
}

}  // namespace

std::string ReadIniValue(const std::string& section, const std::string& key,
                         const std::string& file) {
  std::wstring buffer(kIniBufferLength, L' ');
  DWORD count =
      ::GetPrivateProfileStringW(Wide(section).c_str(), Wide(key).c_str(), L"", buffer.data(),
                                 kIniBufferLength, ShellPath(file).c_str());
  if (count < 1) return {};
  buffer.resize(count);
  return Utf8(buffer);
}

bool WriteIniValue(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file) {
  if (!FitsAnsiCodePage(section) || !FitsAnsiCodePage(key) || !FitsAnsiCodePage(value)) {
    MakeUnicode(file);
  }
  return ::WritePrivateProfileStringW(Wide(section).c_str(), Wide(key).c_str(), Wide(value).c_str(),
                                      ShellPath(file).c_str()) != 0;
}

}  // namespace platform
