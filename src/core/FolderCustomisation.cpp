#include "core/FolderCustomisation.h"

#include <shlobj.h>

#include "platform/ShellIcon.h"
#include "platform/ShellNotifier.h"

namespace core {
namespace {

constexpr DWORD kHiddenAttribute = FILE_ATTRIBUTE_HIDDEN;
constexpr DWORD kSystemAttribute = FILE_ATTRIBUTE_SYSTEM;
constexpr DWORD kFolderAttribute = FILE_ATTRIBUTE_DIRECTORY;
constexpr DWORD kArchiveAttribute = FILE_ATTRIBUTE_ARCHIVE;
constexpr DWORD kNormalAttribute = FILE_ATTRIBUTE_NORMAL;

constexpr LONG kAttributesChanged = SHCNE_ATTRIBUTES;
constexpr LONG kImageChanged = SHCNE_UPDATEIMAGE;
constexpr LONG kAssociationsChanged = SHCNE_ASSOCCHANGED;
constexpr UINT kPathsHandled = SHCNF_PATHA | SHCNF_FLUSH;
constexpr UINT kNumbers = SHCNF_DWORD;
constexpr UINT kNoItems = 0;

constexpr char kProgramIconFile[] = "morvane.ico";

// The attribute word of `path`, or nothing when the system cannot read it.
bool ReadAttributes(const std::string& path, DWORD& attributes) {
  attributes = ::GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES;
}

// A number item travels in the pointer itself.
const void* NumberItem(int number) {
  return reinterpret_cast<const void*>(static_cast<INT_PTR>(number));
}

// The image and association notifications both operations end with.
void NotifyImageChanged(platform::ShellNotifier& shell, int iconIndex) {
  shell.Notify(kImageChanged, kNumbers, NumberItem(iconIndex), nullptr);
  shell.Notify(kAssociationsChanged, kNoItems, nullptr, nullptr);
}

}  // namespace

DWORD SettingsFileAttributes(DWORD folderAttributes) {
  return (folderAttributes | kSystemAttribute | kHiddenAttribute) & ~kFolderAttribute;
}

void ApplyFolderIcon(const std::string& folder, FolderSettings& settings, bool fileIsNew,
                     const platform::ResourceLibrary& language, platform::ShellNotifier& shell) {
  WriteFolderSettings(folder, settings, fileIsNew, language);

  const std::string settingsFile = SettingsFilePath(folder);
  DWORD attributes = 0;
  if (ReadAttributes(folder, attributes)) {
    ::SetFileAttributesA(settingsFile.c_str(), SettingsFileAttributes(attributes));
  }
  if (ReadAttributes(folder, attributes)) {
    ::SetFileAttributesA(folder.c_str(), attributes | kSystemAttribute);
  }
  const int iconIndex = platform::SystemIconIndex(folder);

  shell.Notify(kAttributesChanged, kPathsHandled, settingsFile.c_str(), nullptr);
  shell.Notify(kAttributesChanged, kPathsHandled, folder.c_str(), nullptr);
  NotifyImageChanged(shell, iconIndex);
}

void DeleteCustomisationFiles(const std::string& folder) {
  const std::string settingsFile = SettingsFilePath(folder);
  // A hidden, system or read-only file could not be deleted otherwise.
  ::SetFileAttributesA(settingsFile.c_str(), kArchiveAttribute);
  ::DeleteFileA((folder + "\\" + kProgramIconFile).c_str());
  ::DeleteFileA(settingsFile.c_str());
}

void UnmarkFolder(const std::string& folder, platform::ShellNotifier& shell) {
  ::SetFileAttributesA(folder.c_str(), kNormalAttribute);
  const int iconIndex = platform::SystemIconIndex(folder);
  shell.Notify(kAttributesChanged, kPathsHandled, folder.c_str(), nullptr);
  NotifyImageChanged(shell, iconIndex);
}

}  // namespace core
