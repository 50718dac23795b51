// One resource-only library (a language library or Resource.DLL), loaded by
// file name, handing out strings, raw data, pictures and sounds by number.
// Lookups never throw: a failure is recorded as the current error
// (frame/CurrentError.h) and the caller gets an empty result.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/Picture.h"
#include "toolkit/ScopedHandle.h"

namespace frame {

class CResDll {
 public:
  enum PictureType : std::int32_t { kBitmap = 0, kIcon = 1, kCursor = 2 };
  static constexpr std::int32_t kDefaultStringLength = 255;

  CResDll() = default;
  CResDll(const CResDll&) = delete;
  CResDll& operator=(const CResDll&) = delete;

  std::string LoadDllData(std::int32_t index, const std::string& resformat = "CUSTOM");
  // Returns 0 on success, otherwise the number of the failure that stopped it.
  std::int32_t SaveDllData(std::int16_t index, const std::string& path,
                           const std::string& resformat, bool overwrite);
  toolkit::Picture LoadDllPicture(std::int32_t index, std::int32_t pictureType);
  void DllName(const std::string& vData);
  const std::string& DllName() const { return name_; }
  bool PlayWave(std::int32_t index);
  std::string LoadDllString(std::int32_t index, std::int32_t length = kDefaultStringLength);
  std::string GetDllURL(std::int16_t index, const std::string& resformat = "CUSTOM") const;
  std::string LoadDllText(std::int16_t index, const std::string& resformat = "CUSTOM");
  toolkit::Picture LoadDllIcon(std::int32_t index) { return LoadDllPicture(index, kIcon); }
  toolkit::Picture LoadDllCursor(std::int32_t index) { return LoadDllPicture(index, kCursor); }
  toolkit::Picture LoadDllBitmap(std::int32_t index) { return LoadDllPicture(index, kBitmap); }

  HMODULE Handle() const { return library_.get(); }

 private:
  toolkit::ScopedModule library_;
  std::string name_;
};

// The two libraries of the run. Each comes into existence on first use,
// empty; ReleaseLibraries frees both, and a later use starts a fresh one.
CResDll& LanguageLibrary();
CResDll& PictureLibrary();
bool LibrariesHeld();
void ReleaseLibraries();

// String `id` of the language library.
inline std::string LanguageText(std::int32_t id) {
  return LanguageLibrary().LoadDllString(id);
}

}  // namespace frame
