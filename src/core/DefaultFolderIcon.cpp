#include "core/DefaultFolderIcon.h"

#include "platform/Registry.h"
#include "platform/TextRules.h"

namespace core {
namespace {

constexpr char kShellIconsKey[] =
    "Software\\Microsoft\\Windows\\CurrentVersion\\explorer\\Shell Icons";
// The shell's number for the closed-folder icon.
constexpr char kClosedFolderValue[] = "3";
constexpr char kFolderClassIconKey[] = "Folder\\DefaultIcon";
constexpr char kDefaultValue[] = "";
constexpr char kLocationSeparator = ',';
constexpr std::int32_t kIndexWithoutSeparator = 0;

std::string TextAt(const RegistryPlace& place) {
  return platform::RegistryText(
      platform::GetRegistryValue(place.hive, place.keyName, place.valueName));
}

}  // namespace

RegistryPlace ShellFolderIconPlace() {
  return {HKEY_LOCAL_MACHINE, kShellIconsKey, kClosedFolderValue};
}

RegistryPlace FolderClassIconPlace() {
  return {HKEY_CLASSES_ROOT, kFolderClassIconKey, kDefaultValue};
}

std::string IconLocationFile(const std::string& location) {
  return location.substr(0, location.find(kLocationSeparator));
}

std::optional<std::int32_t> IconLocationIndex(const std::string& location) {
  auto separator = location.find(kLocationSeparator);
  if (separator == std::string::npos) return kIndexWithoutSeparator;
  return platform::ToWholeNumber(location.substr(separator + 1));
}

std::string DefaultFolderIconLocation() {
  std::string location = TextAt(ShellFolderIconPlace());
  if (location.empty()) location = TextAt(FolderClassIconPlace());
  return platform::TextBeforeNul(location);
}

std::optional<IconLocation> DefaultFolderIcon() {
  const std::string location = DefaultFolderIconLocation();
  std::optional<std::int32_t> index = IconLocationIndex(location);
  if (!index) return std::nullopt;
  return IconLocation{IconLocationFile(location), *index};
}

}  // namespace core
