// The ten icon files most recently opened, kept in ARA.INI beside the
// program, most recent first.
#pragma once

#include <array>
#include <string>

namespace core {

inline constexpr int kRecentCount = 10;
inline constexpr char kRecentFileName[] = "ARA.INI";

class RecentIconFiles {
 public:
  using Entries = std::array<std::string, kRecentCount>;  // [0] = the most recent

  // `iniFile`: the full path of ARA.INI.
  explicit RecentIconFiles(std::string iniFile) : iniFile_(std::move(iniFile)) {}

  // Reads the list from the file; missing keys give empty entries.
  void Load();
  // Puts `path` on top unless it is listed already (an empty path is, while
  // the list has an empty slot), and saves the list; an empty path that goes
  // on top is saved as the top entry alone.
  void Remember(const std::string& path);

  const Entries& List() const { return entries_; }
  // The line holding `path`, from 1; 0 when it is not listed.
  int PositionOf(const std::string& path) const;

 private:
  std::string iniFile_;
  Entries entries_;
};

}  // namespace core
