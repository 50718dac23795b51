#include "core/FolderSettings.h"

#include "platform/IniFile.h"
#include "platform/ResourceLibrary.h"
#include "platform/TextRules.h"
#include "resource_ids.h"

namespace core {
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

void ReadNumber(const std::string& file, const char* key, std::int32_t& field) {
  if (auto number = platform::ToWholeNumber(platform::ReadIniValue(kShellSection, key, file))) {
    field = *number;
  }
}

}  // namespace

std::string SettingsFilePath(const std::string& folder) {
  return folder + "\\" + kSettingsFileName;
}

std::string DefaultInfoTip(const platform::ResourceLibrary& language) {
  return language.String(IDS_DEFAULT_INFOTIP_LEAD) + " " + language.String(IDS_PRODUCT_NAME) +
         " - " + language.String(IDS_PRODUCT_TAGLINE) + ".  " + language.String(IDS_COPYRIGHT);
}

void ReadFolderSettings(const std::string& folder, FolderSettings& settings) {
  const std::string file = SettingsFilePath(folder);
  ReadNumber(file, kConfirmFileOpKey, settings.confirmFileOp);
  ReadNumber(file, kNoSharingKey, settings.noSharing);
  settings.iconFile = platform::ReadIniValue(kShellSection, kIconFileKey, file);
  ReadNumber(file, kIconIndexKey, settings.iconIndex);
  settings.infoTip = platform::ReadIniValue(kShellSection, kInfoTipKey, file);
}

void WriteFolderSettings(const std::string& folder, FolderSettings& settings, bool fileIsNew,
                         const platform::ResourceLibrary& language) {
  if (fileIsNew) {
    settings.noSharing = kNewFileNoSharing;
    settings.confirmFileOp = kNewFileConfirmFileOp;
    if (platform::TrimBlanks(settings.infoTip).empty()) settings.infoTip = DefaultInfoTip(language);
  }

  const std::string file = SettingsFilePath(folder);
  auto write = [&](const char* key, const std::string& value) {
    platform::WriteIniValue(kShellSection, key, value, file);
  };
  write(kConfirmFileOpKey, std::to_string(settings.confirmFileOp));
  write(kNoSharingKey, std::to_string(settings.noSharing));
  write(kIconFileKey, settings.iconFile);
  write(kIconIndexKey, std::to_string(settings.iconIndex));
  write(kInfoTipKey, settings.infoTip);

  if (fileIsNew) {
    platform::WriteIniValue(language.String(IDS_PRODUCT_NAME), kMarkKey, kMarkValue, file);
  }
}

}  // namespace core
