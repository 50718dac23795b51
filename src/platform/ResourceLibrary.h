// One resource-only library (a language library or Resource.DLL), loaded by
// file name, handing out strings, raw data, pictures and sounds by number.
// Lookups never throw: a failure is recorded as the library's last error and
// the caller gets an empty result.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Picture.h"
#include "platform/ScopedHandle.h"

namespace platform {

// The last failure a library met; tests and diagnostics read it, nothing
// shows it to the user.
struct ResourceError {
  long number = 0;  // 0 = no error
  std::string description;
};

inline constexpr long kErrDllLoad = 48;
inline constexpr long kErrFileExists = 58;
inline constexpr long kErrResourceNotFound = 326;
inline constexpr long kErrInvalidPicture = 481;
inline constexpr long kErrResourceLoad = 31037;

class ResourceLibrary {
 public:
  enum PictureType : std::int32_t { kBitmap = 0, kIcon = 1, kCursor = 2 };
  static constexpr std::int32_t kDefaultStringLength = 255;

  ResourceLibrary() = default;
  ResourceLibrary(const ResourceLibrary&) = delete;
  ResourceLibrary& operator=(const ResourceLibrary&) = delete;

  // Loads the library at `path`, dropping the one held before; Name() stays
  // empty when it cannot be loaded.
  void Open(const std::string& path);
  // Frees the library; later lookups find nothing.
  void Close();
  const std::string& Name() const { return name_; }
  HMODULE Handle() const { return library_.get(); }

  std::string String(std::int32_t id, std::int32_t length = kDefaultStringLength) const;
  std::string Data(std::int32_t id, const std::string& format = "CUSTOM") const;
  // Returns 0 on success, otherwise the number of the failure that stopped it.
  std::int32_t SaveData(std::int16_t id, const std::string& path, const std::string& format,
                        bool overwrite) const;
  Picture LoadPicture(std::int32_t id, std::int32_t pictureType) const;
  Picture Icon(std::int32_t id) const { return LoadPicture(id, kIcon); }
  Picture Cursor(std::int32_t id) const { return LoadPicture(id, kCursor); }
  Picture Bitmap(std::int32_t id) const { return LoadPicture(id, kBitmap); }
  bool PlayWave(std::int32_t id) const;
  // The address a browser control opens the resource by; "" without a
  // library or for a name too long for it.
  std::string Url(std::int16_t id, const std::string& format = "CUSTOM") const;

  const ResourceError& LastError() const { return lastError_; }
  void ClearError() const { lastError_ = {}; }

 private:
  void Fail(long number, std::string description) const;

  ScopedModule library_;
  std::string name_;
  // Recording a failure does not change what the library holds.
  mutable ResourceError lastError_;
};

}  // namespace platform
