#include "core/RecentIconFiles.h"

#include <algorithm>
#include <cstdio>

#include "platform/IniFile.h"

namespace core {
namespace {

constexpr char kRecentSection[] = "Recent";

// "ARA01" to "ARA10" for positions 1 to 10.
std::string RecentKey(int position) {
  char key[8];
  std::snprintf(key, sizeof key, "ARA%02d", position);
  return key;
}

}  // namespace

void RecentIconFiles::Load() {
  for (int position = 1; position <= kRecentCount; ++position) {
    entries_[position - 1] = platform::ReadIniValue(kRecentSection, RecentKey(position), iniFile_);
  }
}

void RecentIconFiles::Remember(const std::string& path) {
  if (std::find(entries_.begin(), entries_.end(), path) != entries_.end()) return;

  std::shift_right(entries_.begin(), entries_.end(), 1);
  entries_[0] = path;

  auto save = [&](int position, const std::string& value) {
    platform::WriteIniValue(kRecentSection, RecentKey(position), value, iniFile_);
  };
  save(1, path);
  if (path.empty()) return;
  for (int position = 1; position <= kRecentCount; ++position) {
    save(position, entries_[position - 1]);
  }
}

int RecentIconFiles::PositionOf(const std::string& path) const {
  auto found = std::find(entries_.begin(), entries_.end(), path);
  return found == entries_.end() ? 0 : static_cast<int>(found - entries_.begin()) + 1;
}

}  // namespace core
