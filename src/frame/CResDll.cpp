#include "frame/CResDll.h"

#include <windows.h>

#include <mmsystem.h>  // needs windows.h first

#include <memory>
#include <vector>

#include "frame/CurrentError.h"
#include "frame/modFileExist.h"

namespace frame {
namespace {

constexpr std::size_t kMaxUrlLibraryName = 256;
constexpr DWORD kPlayResourceAsync = SND_RESOURCE | SND_ASYNC;

std::string Trim(const std::string& text) {
  auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  auto last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

void RaiseNotFound(const char* what, std::int32_t index) {
  RaiseError(kErrResourceNotFound, std::string(what) + " resource with identifier " +
                                       std::to_string(index) + " not found.");
}

}  // namespace

void CResDll::DllName(const std::string& vData) {
  library_.reset();
  name_.clear();
  library_.reset(::LoadLibraryA(vData.c_str()));
  if (library_) {
    name_ = vData;
  } else {
    RaiseError(kErrDllLoad, "Error in loading DLL: " + vData);
  }
}

std::string CResDll::LoadDllString(std::int32_t index, std::int32_t length) {
  const int bufferSize = length < 0 ? 1 : length + 1;
  std::vector<char> buffer(static_cast<std::size_t>(bufferSize), '\0');
  int count = 0;
  // Without a library LoadStringA would search the program file itself.
  if (library_) {
    count = ::LoadStringA(library_.get(), static_cast<UINT>(index), buffer.data(), bufferSize);
  }
  if (count <= 0) {
    RaiseError(kErrResourceNotFound,
               "String resource with identifier " + std::to_string(index) + " not found.");
    return {};
  }
  return std::string(buffer.data(), static_cast<std::size_t>(count));
}

std::string CResDll::LoadDllData(std::int32_t index, const std::string& resformat) {
  HRSRC resource = nullptr;
  if (library_) {
    resource = ::FindResourceA(library_.get(), MAKEINTRESOURCEA(index), resformat.c_str());
  }
  if (!resource) {
    RaiseNotFound("Custom", index);
    return {};
  }
  DWORD size = ::SizeofResource(library_.get(), resource);
  if (size == 0) return {};
  HGLOBAL loaded = ::LoadResource(library_.get(), resource);
  const void* bytes = loaded ? ::LockResource(loaded) : nullptr;
  if (!bytes) {
    RaiseError(kErrResourceLoad, "Error loading from file");
    return {};
  }
  return std::string(static_cast<const char*>(bytes), size);
}

std::string CResDll::LoadDllText(std::int16_t index, const std::string& resformat) {
  return LoadDllData(index, resformat);
}

std::int32_t CResDll::SaveDllData(std::int16_t index, const std::string& path,
                                  const std::string& resformat, bool overwrite) {
  if (FileExist(path)) {
    if (!overwrite) return kErrFileExists;
    if (!::DeleteFileA(path.c_str())) return static_cast<std::int32_t>(::GetLastError());
  }
  std::string data = LoadDllData(index, resformat);
  if (data.empty()) {
    RaiseError(kErrResourceNotFound,
               "Resource with identifier " + std::to_string(index) + " not found.");
    return kErrResourceNotFound;
  }
  toolkit::ScopedKernelHandle file(::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr,
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

toolkit::Picture CResDll::LoadDllPicture(std::int32_t index, std::int32_t pictureType) {
  HANDLE handle = nullptr;
  toolkit::Picture::Kind kind = toolkit::Picture::Kind::Icon;
  // Without a library these calls would hand out the system's own pictures.
  if (library_) {
    LPCSTR id = MAKEINTRESOURCEA(index);
    switch (pictureType) {
      case kBitmap:
        handle = ::LoadBitmapA(library_.get(), id);
        kind = toolkit::Picture::Kind::Bitmap;
        break;
      case kIcon: handle = ::LoadIconA(library_.get(), id); break;
      case kCursor: handle = ::LoadCursorA(library_.get(), id); break;
      default: break;
    }
  }
  if (!handle) {
    RaiseNotFound("Picture", index);
    return {};
  }
  toolkit::Picture picture = toolkit::Picture::Adopt(kind, handle);
  if (!picture) RaiseError(kErrInvalidPicture, "Invalid Picture");
  return picture;
}

bool CResDll::PlayWave(std::int32_t index) {
  if (!library_) return false;
  return ::PlaySoundA(MAKEINTRESOURCEA(index), library_.get(), kPlayResourceAsync) != FALSE;
}

std::string CResDll::GetDllURL(std::int16_t index, const std::string& resformat) const {
  if (name_.empty() || name_.size() > kMaxUrlLibraryName) return {};
  return "RES://" + name_ + "/" + Trim(resformat) + "/" + std::to_string(index);
}

namespace {
std::unique_ptr<CResDll> g_language;
std::unique_ptr<CResDll> g_picture;

CResDll& Instance(std::unique_ptr<CResDll>& slot) {
  if (!slot) slot = std::make_unique<CResDll>();
  return *slot;
}
}  // namespace

CResDll& LanguageLibrary() {
  return Instance(g_language);
}
CResDll& PictureLibrary() {
  return Instance(g_picture);
}
bool LibrariesHeld() {
  return g_language || g_picture;
}

void ReleaseLibraries() {
  g_picture.reset();
  g_language.reset();
}

}  // namespace frame
