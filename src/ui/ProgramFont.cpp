#include "ui/ProgramFont.h"

#include <windows.h>

#include "platform/FileSystem.h"
#include "platform/ScopedHandle.h"
#include "platform/SystemPath.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"

namespace ui {

bool InstallProgramFont(toolkit::Form& mainWindow, const std::string& programFolder,
                        const platform::ResourceLibrary& pictures) {
  const std::string path = programFolder + kProgramFontFile;
  const std::string data = pictures.Data(IDR_FONT, "CUSTOM");
  {
    // Written over from the start and not shortened: a file left by an
    // earlier run, or one that cannot be written, is used as it is.
    platform::ScopedKernelHandle file(::CreateFileW(platform::FilePath(path).c_str(), GENERIC_WRITE,
                                                    FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.get() != INVALID_HANDLE_VALUE) {
      DWORD written = 0;
      ::WriteFile(file.get(), data.data(), static_cast<DWORD>(data.size()), &written, nullptr);
    } else {
      file.release();
    }
  }
  ::AddFontResourceW(platform::ShellPath(path).c_str());
  // Refused when the system would substitute another face; the check below
  // says so.
  toolkit::TryProperty([&] { mainWindow.SetFontName(kProgramFontFace); });
  return mainWindow.FontName() == kProgramFontFace;
}

void RemoveProgramFont(const std::string& programFolder) {
  const std::string path = programFolder + kProgramFontFile;
  ::RemoveFontResourceW(platform::ShellPath(path).c_str());
  toolkit::DoEvents();
  platform::RemoveFile(path);
}

}  // namespace ui
