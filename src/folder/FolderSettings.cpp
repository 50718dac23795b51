#include "folder/FolderSettings.h"

#include <string>

#include "folder/TextRules.h"
#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "frame/modINI.h"
#include "resource_ids.h"

namespace folder {
namespace {

constexpr char kShellSection[] = ".ShellClassInfo";
constexpr char kConfirmFileOpKey[] = "ConfirmFileOp";
constexpr char kNoSharingKey[] = "NoSharing";
constexpr char kIconFileKey[] = "IconFile";
constexpr char kIconIndexKey[] = "IconIndex";
constexpr char kInfoTipKey[] = "InfoTip";
// Marks a Desktop.ini this program created, in a section named after it.
constexpr char kMarkKey[] = "Mark";
constexpr char kMarkValue[] = "-1";

constexpr std::int32_t kNewFileConfirmFileOp = 1;
constexpr std::int32_t kNewFileNoSharing = 0;

std::string ReadKey(const char* key) {
  return frame::ReadIniValue(kShellSection, key, SettingsFilePath());
}

void ReadNumber(const char* key, std::int32_t& field) {
  if (auto number = ToWholeNumber(ReadKey(key))) field = *number;
}

void WriteKey(const char* key, const std::string& value) {
  frame::WriteIniValue(kShellSection, key, value, SettingsFilePath());
}

}  // namespace

std::string SettingsFilePath() {
  return frame::targetFolder + "\\" + kSettingsFileName;
}

std::string DefaultInfoTip() {
  frame::CResDll& texts = frame::LanguageLibrary();
  return texts.LoadDllString(IDS_DEFAULT_INFOTIP_LEAD) + " " +
         texts.LoadDllString(IDS_PRODUCT_NAME) + " - " + texts.LoadDllString(IDS_PRODUCT_TAGLINE) +
         ".  " + texts.LoadDllString(IDS_COPYRIGHT);
}

void ReadFolderSettings() {
  ReadNumber(kConfirmFileOpKey, FolderSettings.confirmFileOp);
  ReadNumber(kNoSharingKey, FolderSettings.noSharing);
  FolderSettings.iconFile = ReadKey(kIconFileKey);
  ReadNumber(kIconIndexKey, FolderSettings.iconIndex);
  FolderSettings.infoTip = ReadKey(kInfoTipKey);
}

void WriteFolderSettings() {
  if (!settingsFileExisted) {
    FolderSettings.noSharing = kNewFileNoSharing;
    FolderSettings.confirmFileOp = kNewFileConfirmFileOp;
    if (TrimBlanks(FolderSettings.infoTip).empty()) FolderSettings.infoTip = DefaultInfoTip();
  }

  WriteKey(kConfirmFileOpKey, std::to_string(FolderSettings.confirmFileOp));
  WriteKey(kNoSharingKey, std::to_string(FolderSettings.noSharing));
  WriteKey(kIconFileKey, FolderSettings.iconFile);
  WriteKey(kIconIndexKey, std::to_string(FolderSettings.iconIndex));
  WriteKey(kInfoTipKey, FolderSettings.infoTip);

  if (!settingsFileExisted) {
    frame::WriteIniValue(frame::LanguageLibrary().LoadDllString(IDS_PRODUCT_NAME), kMarkKey,
                         kMarkValue, SettingsFilePath());
  }
}

}  // namespace folder
