#include "folder/ApplyFolderIcon.h"

#include <shellapi.h>
#include <shlobj.h>

#include <string>

#include "folder/FolderMessages.h"
#include "folder/FolderSettings.h"
#include "folder/ShellNotifier.h"
#include "frame/RunState.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"

namespace folder {
namespace {

constexpr DWORD kHiddenAttribute = FILE_ATTRIBUTE_HIDDEN;
constexpr DWORD kSystemAttribute = FILE_ATTRIBUTE_SYSTEM;
constexpr DWORD kFolderAttribute = FILE_ATTRIBUTE_DIRECTORY;
constexpr DWORD kArchiveAttribute = FILE_ATTRIBUTE_ARCHIVE;
constexpr DWORD kNormalAttribute = FILE_ATTRIBUTE_NORMAL;
constexpr DWORD kNoFileAttributes = 0;

constexpr UINT kSystemIconIndexFlag = SHGFI_SYSICONINDEX;
// 352 bytes in a 32-bit build; the pointer-sized icon handle makes the
// record larger here, and the system must be told the size it writes into.
constexpr UINT kFileInfoSize = sizeof(SHFILEINFOA);

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

// The folder's index in the system image list; 0 when the lookup fails.
int SystemIconIndex(const std::string& folderPath) {
  SHFILEINFOA info{};
  ::SHGetFileInfoA(folderPath.c_str(), kNoFileAttributes, &info, kFileInfoSize,
                   kSystemIconIndexFlag);
  return info.iIcon;
}

// A number item travels in the pointer itself.
const void* NumberItem(int number) {
  return reinterpret_cast<const void*>(static_cast<INT_PTR>(number));
}

// The image and association notifications both operations end with.
void NotifyImageChanged(int iconIndex) {
  ShellNotifier& shell = CurrentShellNotifier();
  shell.Notify(kImageChanged, kNumbers, NumberItem(iconIndex), nullptr);
  shell.Notify(kAssociationsChanged, kNoItems, nullptr, nullptr);
}

}  // namespace

DWORD SettingsFileAttributes(DWORD folderAttributes) {
  return (folderAttributes | kSystemAttribute | kHiddenAttribute) & ~kFolderAttribute;
}

void ApplyFolderIcon(bool askConfirmation) {
  if (frame::iconListEmpty) return;
  if (askConfirmation && !ConfirmWithUser(IDS_APPLY_PROMPT)) return;

  WriteFolderSettings();

  const std::string& folderPath = frame::targetFolder;
  const std::string settingsFile = SettingsFilePath();
  DWORD attributes = 0;
  if (ReadAttributes(folderPath, attributes)) {
    ::SetFileAttributesA(settingsFile.c_str(), SettingsFileAttributes(attributes));
  }
  if (ReadAttributes(folderPath, attributes)) {
    ::SetFileAttributesA(folderPath.c_str(), attributes | kSystemAttribute);
  }
  const int iconIndex = SystemIconIndex(folderPath);

  ShellNotifier& shell = CurrentShellNotifier();
  shell.Notify(kAttributesChanged, kPathsHandled, settingsFile.c_str(), nullptr);
  shell.Notify(kAttributesChanged, kPathsHandled, folderPath.c_str(), nullptr);
  NotifyImageChanged(iconIndex);
}

void RemoveFolderIcon() {
  if (!ConfirmWithUser(IDS_REMOVE_PROMPT)) return;

  const std::string& folderPath = frame::targetFolder;
  const std::string settingsFile = SettingsFilePath();
  // A hidden, system or read-only file could not be deleted otherwise.
  ::SetFileAttributesA(settingsFile.c_str(), kArchiveAttribute);
  ::DeleteFileA((folderPath + "\\" + kProgramIconFile).c_str());
  ::DeleteFileA(settingsFile.c_str());
  toolkit::DoEvents();
  ::SetFileAttributesA(folderPath.c_str(), kNormalAttribute);
  const int iconIndex = SystemIconIndex(folderPath);

  // The deleted file itself is not announced.
  CurrentShellNotifier().Notify(kAttributesChanged, kPathsHandled, folderPath.c_str(), nullptr);
  NotifyImageChanged(iconIndex);
}

}  // namespace folder
