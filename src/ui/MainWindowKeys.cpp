// The main window for the keyboard and for screen readers: Esc, F1 and the
// access keys, and what each element tells assistive tools.
#include <windows.h>

#include "platform/Utf8.h"
#include "resource_ids.h"
#include "ui/ControlIds.h"
#include "ui/MainWindow.h"

namespace ui {
namespace {

constexpr char kAltPlus[] = "Alt+";

// A label's caption as one line: its line breaks only fit it to the label.
std::string OneLine(std::string text) {
  for (std::size_t at; (at = text.find("\r\n")) != std::string::npos;) text.replace(at, 2, " ");
  return text;
}

std::string FileName(const std::string& path) {
  const std::size_t slash = path.find_last_of("\\/");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

wchar_t UpperCase(wchar_t letter) {
  return static_cast<wchar_t>(reinterpret_cast<ULONG_PTR>(
      ::CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(letter)))));
}

}  // namespace

// Esc asks to close as the exit button does, by pressing it.
bool MainWindow::OnKeyDown(int virtualKey) {
  switch (virtualKey) {
    case VK_ESCAPE: exitButton_->Press(); return true;
    case VK_F1: about_.Open(Hwnd()); return true;
    default: return false;
  }
}

bool MainWindow::OnAccessKey(wchar_t key) {
  for (const AccessKey& access : accessKeys_) {
    if (access.key != UpperCase(key)) continue;
    access.button->Press();
    return true;
  }
  return false;
}

// The key is the first letter of its text in the language library; a
// library without one gives the button no access key.
std::string MainWindow::AccessKeyOf(SkinnedButton& button, int keyText) {
  const std::wstring key = platform::Wide(context_.Text(keyText)).substr(0, 1);
  if (key.empty()) return {};
  accessKeys_.push_back({UpperCase(key[0]), &button});
  return kAltPlus + platform::Utf8(key);
}

void MainWindow::DescribeElements() {
  auto labelOf = [this](const char* pair) {
    return [this, pair] { return OneLine(PairLabel(pair, 0).Caption()); };
  };
  auto text = [this](int id) { return [this, id] { return context_.Text(id); }; };
  auto graphic = [&](toolkit::PictureBox& picture, const char* pair, int tip) {
    picture.SetAccessibility(
        {.role = ROLE_SYSTEM_GRAPHIC, .name = labelOf(pair), .description = text(tip)});
  };
  graphic(*currentIcon_, names::kCurrentIconLabel, IDS_TIP_CURRENT_ICON);
  graphic(*newIcon_, names::kNewIconLabel, IDS_TIP_NEW_ICON);
  graphic(*defaultIcon_, names::kDefaultIconLabel, IDS_TIP_DEFAULT_ICON);
  infoTipBox_->SetAccessibility({.role = ROLE_SYSTEM_TEXT,
                                 .name = labelOf(names::kInfoTipLabel),
                                 .value = [this] { return infoTipBox_->Text(); },
                                 .description = text(IDS_TIP_INFOTIP)});
  recentBox_->SetAccessibility({.role = ROLE_SYSTEM_COMBOBOX,
                                .name = labelOf(names::kRecentLabel),
                                .value = [this] { return recentBox_->Text(); },
                                .description = text(IDS_TIP_RECENT)});
  iconList_->SetAccessibility(
      {.role = ROLE_SYSTEM_LIST,
       .name =
           [this] {
             return context_.Text(IDS_ICON_LIST_NAME) + " " + FileName(browser_.CurrentFile());
           },
       .description = text(IDS_TIP_ICON_LIST),
       .extraState = [this] { return browser_.Loading() ? STATE_SYSTEM_BUSY : 0; }});
  statusStrip_->SetAccessibility({.role = ROLE_SYSTEM_STATUSBAR, .name = [this] {
                                    return toolkit::WindowText(statusStrip_->Hwnd());
                                  }});
  const struct {
    SkinnedButton& button;
    int caption, key, tip;
  } buttons[] = {{*browseButton_, IDS_BROWSE_BUTTON, IDS_BROWSE_KEY, IDS_TIP_BROWSE},
                 {*applyButton_, IDS_APPLY_BUTTON, IDS_APPLY_KEY, 0},
                 {*exitButton_, IDS_EXIT_BUTTON, IDS_EXIT_KEY, 0}};
  accessKeys_.clear();
  for (const auto& each : buttons) {
    SkinnedButton& button = each.button;
    button.Face().SetAccessibility(
        {.role = ROLE_SYSTEM_PUSHBUTTON,
         .name = text(each.caption),
         .description = each.tip ? std::function<std::string()>(text(each.tip)) : nullptr,
         .keyboardShortcut = AccessKeyOf(button, each.key),
         .defaultAction = [&button] { button.Press(); }});
  }
  SetAccessibility(
      {.role = ROLE_SYSTEM_CLIENT, .name = [this] { return toolkit::WindowText(Hwnd()); }});
}

void MainWindow::AnnounceIconList() const {
  toolkit::AnnounceChange(iconList_->Hwnd(), EVENT_OBJECT_STATECHANGE);
  toolkit::AnnounceChange(iconList_->Hwnd(), EVENT_OBJECT_NAMECHANGE);
}

}  // namespace ui
