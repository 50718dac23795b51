#include "core/FolderCustomisation.h"

#include <shlobj.h>

#include "platform/FileSystem.h"
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

constexpr char kProgramIconFile[] = "morvane.ico";

// The image and association notifications both operations end with.
void NotifyImageChanged(platform::ShellNotifier& shell, int iconIndex) {
  shell.NotifyNumber(kImageChanged, iconIndex);
  shell.Notify(kAssociationsChanged);
}

}  // namespace

DWORD SettingsFileAttributes(DWORD folderAttributes) {
  return (folderAttributes | kSystemAttribute | kHiddenAttribute) & ~kFolderAttribute;
}

void ApplyFolderIcon(const std::string& folder, FolderSettings& settings, bool fileIsNew,
                     const platform::ResourceLibrary& language, platform::ShellNotifier& shell) {
  WriteFolderSettings(folder, settings, fileIsNew, language);

  const std::string settingsFile = SettingsFilePath(folder);
  if (auto attributes = platform::ReadAttributes(folder)) {
    platform::WriteAttributes(settingsFile, SettingsFileAttributes(*attributes));
  }
  if (auto attributes = platform::ReadAttributes(folder)) {
    platform::WriteAttributes(folder, *attributes | kSystemAttribute);
  }
  const int iconIndex = platform::SystemIconIndex(folder);

  shell.NotifyPath(kAttributesChanged, settingsFile);
  shell.NotifyPath(kAttributesChanged, folder);
  NotifyImageChanged(shell, iconIndex);
}

void DeleteCustomisationFiles(const std::string& folder) {
  const std::string settingsFile = SettingsFilePath(folder);
  // A hidden, system or read-only file could not be deleted otherwise.
  platform::WriteAttributes(settingsFile, kArchiveAttribute);
  platform::RemoveFile(folder + "\\" + kProgramIconFile);
  platform::RemoveFile(settingsFile);
}

void UnmarkFolder(const std::string& folder, platform::ShellNotifier& shell) {
  platform::WriteAttributes(folder, kNormalAttribute);
  const int iconIndex = platform::SystemIconIndex(folder);
  shell.NotifyPath(kAttributesChanged, folder);
  NotifyImageChanged(shell, iconIndex);
}

}  // namespace core
