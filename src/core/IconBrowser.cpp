#include "core/IconBrowser.h"

#include "platform/TextRules.h"

namespace core {

std::string IconBrowser::ChooserFolder(const std::string& fallback) const {
  return chooserFolder_.empty() ? fallback : chooserFolder_;
}

void IconBrowser::RememberChosenFile(const std::string& path) {
  const auto slash = path.rfind('\\');
  chooserFolder_ = slash == std::string::npos ? path : path.substr(0, slash);
}

std::string NormalIconPath(const std::string& typed) {
  return platform::LowerCase(platform::TrimBlanks(typed));
}

std::optional<std::string> IconPathToOpen(const std::string& typed, const std::string& lastOpened) {
  std::string path = NormalIconPath(typed);
  if (path.empty() || path == lastOpened) return std::nullopt;
  return path;
}

std::string ProgressText(const std::string& loading, int position, int count) {
  return loading + " " + std::to_string(position) + "/" + std::to_string(count);
}

std::string StatusText(int items, const std::string& icons, const std::string& fewIcons) {
  return items > 1 ? std::to_string(items) + " " + icons : fewIcons;
}

}  // namespace core
