#include "folder/RecentList.h"

#include <algorithm>
#include <cstdio>

#include "folder/FolderMessages.h"
#include "folder/TextRules.h"
#include "frame/RunState.h"
#include "frame/modFileExist.h"
#include "frame/modINI.h"
#include "toolkit/MessageLoop.h"

namespace folder {
namespace {

constexpr char kRecentSection[] = "Recent";
constexpr char kEnterKey = '\r';

std::string RecentFilePath() {
  return frame::programFolder + kRecentFileName;
}

// "ARA01" to "ARA10" for positions 1 to 10.
std::string RecentKey(int position) {
  char key[8];
  std::snprintf(key, sizeof key, "ARA%02d", position);
  return key;
}

void WriteRecentKey(int position, const std::string& value) {
  frame::WriteIniValue(kRecentSection, RecentKey(position), value, RecentFilePath());
}

}  // namespace

void RecentList::LeerARA() {
  for (int position = 1; position <= kRecentCount; ++position) {
    entries_[position - 1] =
        frame::ReadIniValue(kRecentSection, RecentKey(position), RecentFilePath());
  }
}

void RecentList::EscribirARA(const std::string& sNombre) {
  if (std::find(entries_.begin(), entries_.end(), sNombre) != entries_.end()) return;

  std::shift_right(entries_.begin(), entries_.end(), 1);
  entries_[0] = sNombre;

  WriteRecentKey(1, sNombre);
  if (sNombre.empty()) return;
  for (int position = 1; position <= kRecentCount; ++position) {
    WriteRecentKey(position, entries_[position - 1]);
  }
}

void RecentList::FillRecentList(const std::string& path) {
  box_.Clear();
  for (int position = 1; position <= kRecentCount; ++position) {
    box_.AddItem(entries_[position - 1]);
    if (entries_[position - 1] == path) lastOpenedPosition_ = position;
  }
}

void RecentList::OpenIconFile(std::string& path) {
  toolkit::DoEvents();
  if (TrimBlanks(path).empty()) return;
  path = LowerCase(TrimBlanks(path));
  if (path == lastOpenedIconFile_) return;
  if (!frame::FileExist(path)) {
    WarnMissingIconFile();
    return;
  }

  EscribirARA(path);
  LeerARA();
  FillRecentList(path);

  frame::currentIconFile = path;
  loader_.CargarIconosdeArchivo();
  // Set before the selection below, whose choose event comes back here and
  // must stop at the test above.
  lastOpenedIconFile_ = path;

  // Box lines count from 0, so position 0 selects no line.
  box_.SetListIndex(lastOpenedPosition_ - 1);
  frame::currentIconFile = box_.Text();
}

void RecentList::OnChoose() {
  std::string text = box_.Text();
  OpenIconFile(text);
}

void RecentList::OnKeyPress(char key) {
  if (key == kEnterKey) OnChoose();
}

}  // namespace folder
