#include "platform/IconFileShape.h"

#include <windows.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/ScopedHandle.h"
#include "platform/SystemPath.h"

namespace platform {
namespace {

constexpr std::uint16_t kProgramSignature = 0x5A4D;  // "MZ"
constexpr std::uint32_t kPeSignature = 0x00004550;   // "PE\0\0"
constexpr std::uint32_t kNewHeaderOffsetAt = 0x3C;
constexpr std::uint32_t kFileHeaderSize = 24;  // signature and COFF header
constexpr std::uint32_t kSectionEntrySize = 40;
constexpr std::uint16_t kPe32Plus = 0x20B;
constexpr std::uint32_t kResourceEntryPe32 = 96 + 2 * 8;
constexpr std::uint32_t kResourceEntryPe32Plus = 112 + 2 * 8;
constexpr std::uint16_t kIconType = 1;
constexpr std::uint16_t kCursorType = 2;
constexpr std::uint32_t kIconHeaderSize = 6;
constexpr std::uint32_t kIconEntrySize = 16;

class FileBytes {
 public:
  explicit FileBytes(HANDLE file) : file_(file) {
    LARGE_INTEGER size{};
    size_ = ::GetFileSizeEx(file, &size) ? static_cast<std::uint64_t>(size.QuadPart) : 0;
  }
  std::uint64_t Size() const { return size_; }
  // `length` bytes from `offset`, or empty when the file holds fewer.
  std::vector<std::uint8_t> Read(std::uint64_t offset, std::uint32_t length) const {
    std::vector<std::uint8_t> bytes(length);
    LARGE_INTEGER at{};
    at.QuadPart = static_cast<LONGLONG>(offset);
    DWORD read = 0;
    if (offset + length > size_ || !::SetFilePointerEx(file_, at, nullptr, FILE_BEGIN) ||
        !::ReadFile(file_, bytes.data(), length, &read, nullptr) || read != length) {
      return {};
    }
    return bytes;
  }

 private:
  HANDLE file_;
  std::uint64_t size_ = 0;
};

template <typename T>
T Field(const std::vector<std::uint8_t>& bytes, std::size_t at) {
  T value{};
  if (at + sizeof value <= bytes.size()) std::memcpy(&value, bytes.data() + at, sizeof value);
  return value;
}

bool ProgramIsIntact(const FileBytes& file, const std::vector<std::uint8_t>& start) {
  const std::uint32_t header = Field<std::uint32_t>(start, kNewHeaderOffsetAt);
  const auto fileHeader = file.Read(header, kFileHeaderSize);
  if (fileHeader.empty()) return false;
  // 16-bit programs have other tables; the system reads those with care.
  if (Field<std::uint32_t>(fileHeader, 0) != kPeSignature) return true;
  const std::uint32_t sections = Field<std::uint16_t>(fileHeader, 6);
  const std::uint32_t optionalSize = Field<std::uint16_t>(fileHeader, 20);
  const auto optional = file.Read(header + kFileHeaderSize, optionalSize);
  const auto table =
      file.Read(header + kFileHeaderSize + optionalSize, sections * kSectionEntrySize);
  if (optional.empty() || (sections && table.empty())) return false;

  for (std::uint32_t n = 0; n < sections; ++n) {
    const std::uint64_t rawSize = Field<std::uint32_t>(table, n * kSectionEntrySize + 16);
    const std::uint64_t rawStart = Field<std::uint32_t>(table, n * kSectionEntrySize + 20);
    if (rawStart + rawSize > file.Size()) return false;
  }
  const bool plus = Field<std::uint16_t>(optional, 0) == kPe32Plus;
  const std::size_t entry = plus ? kResourceEntryPe32Plus : kResourceEntryPe32;
  const std::uint64_t resourceStart = Field<std::uint32_t>(optional, entry);
  const std::uint64_t resourceSize = Field<std::uint32_t>(optional, entry + 4);
  const std::uint64_t imageSize = Field<std::uint32_t>(optional, 56);
  return resourceStart + resourceSize <= imageSize;
}

bool IconFileIsIntact(const FileBytes& file, std::uint32_t count) {
  const auto entries = file.Read(kIconHeaderSize, count * kIconEntrySize);
  if (count && entries.empty()) return false;
  for (std::uint32_t n = 0; n < count; ++n) {
    const std::uint64_t length = Field<std::uint32_t>(entries, n * kIconEntrySize + 8);
    const std::uint64_t offset = Field<std::uint32_t>(entries, n * kIconEntrySize + 12);
    if (offset + length > file.Size()) return false;
  }
  return true;
}

bool Examine(const std::string& path) {
  ScopedKernelHandle handle(::CreateFileW(FilePath(path).c_str(), GENERIC_READ,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                          nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (handle.get() == INVALID_HANDLE_VALUE) {
    handle.release();  // not a handle to close
    return true;
  }
  const FileBytes file(handle.get());
  const auto start = file.Read(0, kIconHeaderSize);
  if (start.empty()) return true;
  if (Field<std::uint16_t>(start, 0) == kProgramSignature) {
    return ProgramIsIntact(file, file.Read(0, kNewHeaderOffsetAt + 4));
  }
  const std::uint16_t type = Field<std::uint16_t>(start, 2);
  if (Field<std::uint16_t>(start, 0) == 0 && (type == kIconType || type == kCursorType)) {
    return IconFileIsIntact(file, Field<std::uint16_t>(start, 4));
  }
  return true;
}

}  // namespace

bool IconSourceIsIntact(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA seen{};
  if (!::GetFileAttributesExW(FilePath(path).c_str(), GetFileExInfoStandard, &seen) ||
      (seen.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) {
    return true;
  }
  return Examine(path);
}

}  // namespace platform
