#include "robustness/Hostile.h"

#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <future>
#include <thread>

#include "support/TestSupport.h"

namespace hostile {
namespace {

// The case running in this process, named when it dies of an exception.
std::string g_runningCase = "(between cases)";

// Left to the system, a fault here would start Wine's debugger, which keeps
// the test program waiting until the test runner's own limit.
LONG WINAPI ReportFault(EXCEPTION_POINTERS* fault) {
  std::fprintf(stderr, "CRASHED: %s (exception 0x%08lx)\n", g_runningCase.c_str(),
               static_cast<unsigned long>(fault->ExceptionRecord->ExceptionCode));
  std::fflush(stderr);
  std::_Exit(EXIT_FAILURE);
}
const LPTOP_LEVEL_EXCEPTION_FILTER kPreviousFilter = ::SetUnhandledExceptionFilter(ReportFault);

std::uint32_t Read32(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  if (at + 4 <= bytes.size()) std::memcpy(&value, bytes.data() + at, 4);
  return value;
}
std::uint16_t Read16(const std::string& bytes, std::size_t at) {
  std::uint16_t value = 0;
  if (at + 2 <= bytes.size()) std::memcpy(&value, bytes.data() + at, 2);
  return value;
}
void Write32(std::string& bytes, std::size_t at, std::uint32_t value) {
  if (at + 4 <= bytes.size()) std::memcpy(bytes.data() + at, &value, 4);
}

// Offsets into a PE file's headers, enough to find and edit its resources.
struct PeLayout {
  explicit PeLayout(const std::string& image) {
    const std::size_t header = Read32(image, 0x3C);
    optional = header + 24;
    const bool plus = Read16(image, optional) == 0x20B;  // PE32+, a 64-bit image
    resourceEntry = optional + (plus ? 112 : 96) + 2 * 8;
    sections = optional + Read16(image, header + 20);
    sectionCount = Read16(image, header + 6);
  }
  std::size_t FileOffset(const std::string& image, std::uint32_t rva) const {
    for (std::size_t n = 0; n < sectionCount; ++n) {
      const std::size_t section = sections + n * 40;
      const std::uint32_t start = Read32(image, section + 12);
      if (rva >= start && rva < start + Read32(image, section + 16)) {
        return Read32(image, section + 20) + (rva - start);
      }
    }
    return image.size();
  }
  std::size_t optional = 0, resourceEntry = 0, sections = 0, sectionCount = 0;
};

constexpr std::uint32_t kSubdirectory = 0x80000000;
constexpr std::uint32_t kBitmapType = 2;

// Calls `onData` with the file offset of every data entry under `directory`.
void EachDataEntry(std::string& image, std::size_t base, std::size_t directory,
                   const std::function<void(std::size_t)>& onData) {
  const std::size_t entries = Read16(image, directory + 12) + Read16(image, directory + 14);
  for (std::size_t n = 0; n < entries; ++n) {
    const std::uint32_t target = Read32(image, directory + 16 + n * 8 + 4);
    if (target & kSubdirectory) {
      EachDataEntry(image, base, base + (target & ~kSubdirectory), onData);
    } else {
      onData(base + target);
    }
  }
}

void Collect(const std::string& folder, const std::string& relative, Snapshot& into) {
  WIN32_FIND_DATAA entry;
  HANDLE search = ::FindFirstFileA((folder + "\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    const std::string name = entry.cFileName;
    if (name == "." || name == "..") continue;
    if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
      into[relative + name + "\\"] = "";
      Collect(folder + "\\" + name, relative + name + "\\", into);
    } else {
      into[relative + name] = testing_support::ReadWholeFile(folder + "\\" + name);
    }
  } while (::FindNextFileA(search, &entry));
  ::FindClose(search);
}

}  // namespace

Snapshot TakeSnapshot(const std::string& folder) {
  Snapshot files;
  Collect(folder, "", files);
  return files;
}

std::string Differences(const Snapshot& before, const Snapshot& after) {
  std::string changed;
  for (const auto& [path, bytes] : before) {
    auto now = after.find(path);
    if (now == after.end())
      changed += "missing: " + path + "\n";
    else if (now->second != bytes)
      changed += "changed: " + path + "\n";
  }
  for (const auto& [path, bytes] : after) {
    if (!before.count(path)) changed += "appeared: " + path + "\n";
  }
  return changed;
}

void WithinLimit(const std::string& name, std::chrono::milliseconds limit,
                 const std::function<void()>& body) {
  g_runningCase = name;
  std::packaged_task<void()> task(body);
  auto done = task.get_future();
  std::thread worker(std::move(task));
  if (done.wait_for(limit) != std::future_status::ready) {
    std::fprintf(stderr, "HUNG: %s did not finish within %lld ms\n", name.c_str(),
                 static_cast<long long>(limit.count()));
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
  }
  worker.join();
  g_runningCase = "(between cases)";
  done.get();
}

std::string Garbage(std::size_t length) {
  std::string bytes(length, '\0');
  std::uint32_t state = 12345;
  for (char& byte : bytes) {
    state = state * 1103515245u + 12345u;
    byte = static_cast<char>(state >> 16);
  }
  return bytes;
}

std::string Truncated(const std::string& image, std::size_t length) {
  return image.substr(0, length);
}

std::string ResourceTablePastTheEnd(std::string image) {
  const PeLayout pe(image);
  const std::uint32_t imageSize = Read32(image, pe.optional + 56);
  Write32(image, pe.resourceEntry, imageSize + 0x10000);
  return image;
}

std::string ZeroSizeBitmaps(std::string image) {
  const PeLayout pe(image);
  const std::size_t base = pe.FileOffset(image, Read32(image, pe.resourceEntry));
  const std::size_t types = Read16(image, base + 12) + Read16(image, base + 14);
  for (std::size_t n = 0; n < types; ++n) {
    const std::size_t entry = base + 16 + n * 8;
    const std::uint32_t target = Read32(image, entry + 4);
    if (Read32(image, entry) != kBitmapType || !(target & kSubdirectory)) continue;
    EachDataEntry(image, base, base + (target & ~kSubdirectory), [&](std::size_t data) {
      const std::size_t header = pe.FileOffset(image, Read32(image, data));
      Write32(image, data + 4, 0);
      Write32(image, header + 4, 0);  // width
      Write32(image, header + 8, 0);  // height
    });
  }
  return image;
}

std::string IconClaiming65535(std::string icon) {
  if (icon.size() >= 6) icon[4] = icon[5] = '\xFF';
  return icon;
}

std::string Utf16WithMark(const std::wstring& text) {
  std::string bytes = "\xFF\xFE";
  for (wchar_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>((unit >> 8) & 0xFF);
  }
  return bytes;
}

}  // namespace hostile
