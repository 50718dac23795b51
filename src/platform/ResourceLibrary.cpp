#include "platform/ResourceLibrary.h"

#include <windows.h>

#include <mmsystem.h>  // needs windows.h first

#include <vector>

#include "platform/FileSystem.h"
#include "platform/SystemPath.h"
#include "platform/TextRules.h"
#include "platform/Utf8.h"

namespace platform {
namespace {

constexpr std::size_t kMaxUrlLibraryName = 256;
constexpr DWORD kPlayResourceAsync = SND_RESOURCE | SND_ASYNC;

std::string NotFound(const char* what, std::int32_t id) {
  return std::string(what) + " resource with identifier " + std::to_string(id) + " not found.";
}

}  // namespace

void ResourceLibrary::Fail(long number, std::string description) const {
  lastError_ = {number, std::move(description)};
}

void ResourceLibrary::Open(const std::string& path) {
  Close();
  library_.reset(::LoadLibraryW(ShellPath(path).c_str()));
  if (library_) {
    name_ = path;
  } else {
    Fail(kErrDllLoad, "Error in loading DLL: " + path);
  }
}

void ResourceLibrary::Close() {
  library_.reset();
  name_.clear();
}

std::string ResourceLibrary::String(std::int32_t id, std::int32_t length) const {
  const int bufferSize = length < 0 ? 1 : length + 1;
  std::vector<wchar_t> buffer(static_cast<std::size_t>(bufferSize), L'\0');
  int count = 0;
  // Without a library LoadStringW would search the program file itself.
  if (library_) {
    count = ::LoadStringW(library_.get(), static_cast<UINT>(id), buffer.data(), bufferSize);
  }
  if (count <= 0) {
    Fail(kErrResourceNotFound, NotFound("String", id));
    return {};
  }
  return Utf8(std::wstring_view(buffer.data(), static_cast<std::size_t>(count)));
}

std::string ResourceLibrary::Data(std::int32_t id, const std::string& format) const {
  HRSRC resource = nullptr;
  if (library_) {
    resource = ::FindResourceW(library_.get(), MAKEINTRESOURCEW(id), Wide(format).c_str());
  }
  if (!resource) {
    Fail(kErrResourceNotFound, NotFound("Custom", id));
    return {};
  }
  DWORD size = ::SizeofResource(library_.get(), resource);
  if (size == 0) return {};
  HGLOBAL loaded = ::LoadResource(library_.get(), resource);
  const void* bytes = loaded ? ::LockResource(loaded) : nullptr;
  if (!bytes) {
    Fail(kErrResourceLoad, "Error loading from file");
    return {};
  }
  return std::string(static_cast<const char*>(bytes), size);
}

std::int32_t ResourceLibrary::SaveData(std::int16_t id, const std::string& path,
                                       const std::string& format, bool overwrite) const {
  if (FileExists(path)) {
    if (!overwrite) return kErrFileExists;
    if (!RemoveFile(path)) return static_cast<std::int32_t>(::GetLastError());
  }
  std::string data = Data(id, format);
  if (data.empty()) {
    Fail(kErrResourceNotFound, "Resource with identifier " + std::to_string(id) + " not found.");
    return kErrResourceNotFound;
  }
  ScopedKernelHandle file(::CreateFileW(FilePath(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                        CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (file.get() == INVALID_HANDLE_VALUE) {
    file.release();  // INVALID_HANDLE_VALUE is not a handle to close
    return static_cast<std::int32_t>(::GetLastError());
  }
  DWORD written = 0;
  if (!::WriteFile(file.get(), data.data(), static_cast<DWORD>(data.size()), &written, nullptr) ||
      written != data.size()) {
    return static_cast<std::int32_t>(::GetLastError());
  }
  return 0;
}

Picture ResourceLibrary::LoadPicture(std::int32_t id, std::int32_t pictureType) const {
  HANDLE handle = nullptr;
  Picture::Kind kind = Picture::Kind::Icon;
  // Without a library these calls would hand out the system's own pictures.
  if (library_) {
    LPCWSTR name = MAKEINTRESOURCEW(id);
    switch (pictureType) {
      case kBitmap:
        handle = ::LoadBitmapW(library_.get(), name);
        kind = Picture::Kind::Bitmap;
        break;
      case kIcon: handle = ::LoadIconW(library_.get(), name); break;
      case kCursor: handle = ::LoadCursorW(library_.get(), name); break;
      default: break;
    }
  }
  if (!handle) {
    Fail(kErrResourceNotFound, NotFound("Picture", id));
    return {};
  }
  Picture picture = Picture::Adopt(kind, handle);
  if (!picture) Fail(kErrInvalidPicture, "Invalid Picture");
  return picture;
}

bool ResourceLibrary::PlayWave(std::int32_t id) const {
  if (!library_) return false;
  return ::PlaySoundW(MAKEINTRESOURCEW(id), library_.get(), kPlayResourceAsync) != FALSE;
}

std::string ResourceLibrary::Url(std::int16_t id, const std::string& format) const {
  if (name_.empty() || name_.size() > kMaxUrlLibraryName) return {};
  return "RES://" + name_ + "/" + TrimBlanks(format) + "/" + std::to_string(id);
}

}  // namespace platform
