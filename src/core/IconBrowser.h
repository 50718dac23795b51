// What the icon browser shows and what it is doing: the icon file whose
// icons are listed, the one the user last opened, and its two states. The
// main window draws it; this decides the paths and the texts.
#pragma once

#include <optional>
#include <string>

namespace core {

class IconBrowser {
 public:
  const std::string& CurrentFile() const { return currentFile_; }
  void SetCurrentFile(std::string path) { currentFile_ = std::move(path); }

  // The file the user last opened; a second open of it does nothing.
  const std::string& LastOpened() const { return lastOpened_; }
  void SetLastOpened(std::string path) { lastOpened_ = std::move(path); }

  // True while the list shows only the shell's icon of a file without icons:
  // nothing there can be applied.
  bool Empty() const { return empty_; }
  void SetEmpty(bool empty) { empty_ = empty; }

  // True while the icons of a file are being loaded.
  bool Loading() const { return loading_; }
  void SetLoading(bool loading) { loading_ = loading; }

  // The folder the file chooser opens in: the last chosen file's, else `fallback`.
  std::string ChooserFolder(const std::string& fallback) const;
  void RememberChosenFile(const std::string& path);

 private:
  std::string currentFile_;
  std::string lastOpened_;
  std::string chooserFolder_;
  bool empty_ = false;
  bool loading_ = false;
};

// The form an icon file's path is opened and stored in: without the blanks
// around it and in lower case.
std::string NormalIconPath(const std::string& typed);

// NormalIconPath of `typed`; nothing when it is blank or names the file
// opened last.
std::optional<std::string> IconPathToOpen(const std::string& typed, const std::string& lastOpened);

// "<loading> <position>/<count>", shown while icons are extracted.
std::string ProgressText(const std::string& loading, int position, int count);

// "<items> <icons>" for more than one listed item, else `fewIcons`.
std::string StatusText(int items, const std::string& icons, const std::string& fewIcons);

}  // namespace core
