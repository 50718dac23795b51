// The icon browser of the main window: loading the icons of the current
// icon file, choosing one, applying, removing, and opening another icon file.
#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>

#include "core/DefaultFolderIcon.h"
#include "core/FolderCustomisation.h"
#include "platform/CommonDialog.h"
#include "platform/Dpi.h"
#include "platform/FileSystem.h"
#include "platform/IconFile.h"
#include "platform/MessageBoxes.h"
#include "platform/ShellIcon.h"
#include "platform/Utf8.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"
#include "toolkit/WaitCursor.h"
#include "ui/Drawing.h"
#include "ui/MainWindow.h"

namespace ui {
namespace {

constexpr int kIconSpacing = 43;
constexpr LPARAM kDefaultSpacing = -1;
// One frame of a 60 Hz display, the commonest refresh rate.
constexpr std::chrono::milliseconds kFrame{16};
constexpr std::int32_t kChooserFlags =
    OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
// Room for the longest path Windows allows, so that a file deep in the tree
// can be chosen.
constexpr std::int32_t kLongestPath = 32767;

}  // namespace

void MainWindow::ShowProgress(int position, int count, const platform::Picture& background) {
  // Giving the strip its picture clears it.
  statusStrip_->SetPicture(background);
  shownProgress_ = core::ProgressText(loadingText_, position, count);
  DrawCaption(*statusStrip_, shownProgress_, WindowText::kLeave);
  // Each step is drawn into the strip's image, but the screen is given at
  // most one frame of it per refresh of the display, and always the last.
  const auto now = std::chrono::steady_clock::now();
  if (position < count && now - progressPresented_ < kFrame) return;
  progressPresented_ = now;
  statusStrip_->Refresh();
}

void MainWindow::AddIconImage(HICON icon, int position) {
  scratch_->SetPicture({});
  toolkit::DrawIconInPicture(icon, *scratch_, 0, 0);
  scratch_->SetPicture(scratch_->Image());
  scratch_->Refresh();
  toolkit::TryProperty(
      [&] { iconImages_->Add("c" + std::to_string(position), scratch_->GetPicture()); });
}

void MainWindow::ListIcons(int count) {
  toolkit::ListView::ItemBatch batch(*iconList_);
  for (int j = 1; j <= count; ++j) {
    // Items whose image could not be made are refused by the list.
    toolkit::TryProperty([&] { iconList_->AddItem("a" + std::to_string(j), "", j); });
    browser_.SetEmpty(false);
  }
}

void MainWindow::LoadIcons() {
  // Without its window (none could be made) there is no list to fill.
  if (!Loaded()) return;
  toolkit::WaitCursor wait;
  wait.SetPointer(toolkit::kPointerHourglass);

  browser_.SetLoading(true);
  AnnounceIconList();
  toolkit::DoEvents();

  iconList_->SetIcons(nullptr);
  iconList_->SetSmallIcons(nullptr);
  iconList_->Clear();
  iconImages_->Clear();

  const platform::IconFile file(browser_.CurrentFile());
  const std::int32_t count = file.Count();
  if (count < 1) {
    platform::Picture shellIcon =
        platform::ShellIconPicture(file.Path(), platform::kLargeShellIcon);
    toolkit::TryProperty([&] { iconImages_->Add("c0", shellIcon); });
    iconList_->SetIcons(iconImages_);
    toolkit::TryProperty([&] { iconList_->AddItem("a1", "", 1); });
    browser_.SetEmpty(true);
    browser_.SetLoading(false);
    AnnounceIconList();
    return;
  }

  iconImages_->Reserve(count);
  // The same bitmap every pass: loading it again for each icon cost as much
  // as a fifth of an extraction.
  const platform::Picture progressBackground =
      SkinForDpi(context_.pictures.Bitmap(IDB_SKIN), Dpi());
  const int iconSize = platform::LargeIconSize(Dpi());
  HICON icon = nullptr;
  std::int32_t i = 0;
  for (; i <= count; ++i) {
    ShowProgress(i, count, progressBackground);
    platform::ReleaseIcon(icon);
    icon = file.Extract(i, iconSize);
    if (!icon) break;
    AddIconImage(icon, i);
  }
  browser_.SetLoading(false);
  platform::ReleaseIcon(icon);
  // The strip's window text catches up with the last progress it shows.
  if (statusStrip_->Hwnd()) {
    ::SetWindowTextW(statusStrip_->Hwnd(), platform::Wide(shownProgress_).c_str());
  }

  iconList_->SetIcons(iconImages_);
  ListIcons(count);
  AnnounceIconList();
}

void MainWindow::SelectIcon(std::optional<int> item) {
  // Without an item every step that needs one fails and is stepped over:
  // no icon is drawn and the position keeps its value.
  HICON icon = item ? platform::IconFile(browser_.CurrentFile())
                          .Extract(*item - 1, platform::LargeIconSize(Dpi()))
                    : nullptr;
  newIcon_->SetPicture({});
  toolkit::DrawIconInPicture(icon, *newIcon_, 0, 0);
  newIcon_->Refresh();
  newIcon_->SetPicture(newIcon_->Image());
  platform::ReleaseIcon(icon);
  settings_.iconFile = browser_.CurrentFile();
  if (item) settings_.iconIndex = *item - 1;
}

void MainWindow::Apply(bool askFirst) {
  if (browser_.Empty()) return;
  if (askFirst && !platform::AskYesNo(::GetActiveWindow(), context_.Text(IDS_APPLY_PROMPT),
                                      context_.Text(IDS_CONFIRM_TITLE))) {
    return;
  }
  core::ApplyFolderIcon(context_.targetFolder, settings_, !settingsFileExisted_, context_.language,
                        shell_);
}

void MainWindow::OnIconsDblClick() {
  const int selected = iconList_->SelectedIndex();
  SelectIcon(selected > 0 ? std::optional<int>(selected) : std::nullopt);
  OnPreviewDblClick();
}

void MainWindow::OnPreviewDblClick() {
  if (!newIcon_->GetPicture().Handle()) return;
  Apply(false);
  Unload();
}

void MainWindow::RemoveCustomisation() {
  if (!platform::AskYesNo(::GetActiveWindow(), context_.Text(IDS_REMOVE_PROMPT),
                          context_.Text(IDS_CONFIRM_TITLE))) {
    return;
  }
  core::DeleteCustomisationFiles(context_.targetFolder);
  toolkit::DoEvents();
  core::UnmarkFolder(context_.targetFolder, shell_);
}

void MainWindow::OnDefaultIconDblClick() {
  RemoveCustomisation();
  toolkit::DoEvents();
  Unload();
}

// The line's text comes from the list the box was filled from, which holds
// the path exactly as opened, not back from the box (Wine's ANSI form of that
// message faulted on lines beyond 512 characters).
void MainWindow::OnRecentChosen() {
  const int line = recentBox_->ListIndex();
  const core::RecentIconFiles::Entries& entries = recent_.List();
  if (line < 0 || line >= static_cast<int>(entries.size())) return;
  OpenIconFile(entries[static_cast<std::size_t>(line)]);
}

void MainWindow::OpenIconFile(const std::string& typed) {
  toolkit::DoEvents();
  const std::optional<std::string> path = core::IconPathToOpen(typed, browser_.LastOpened());
  if (!path) return;
  if (!platform::FileExists(*path)) {
    platform::Warn(::GetActiveWindow(), context_.Text(IDS_MISSING_FILE_PROMPT),
                   context_.Text(IDS_MISSING_FILE_TITLE));
    return;
  }

  recent_.Remember(*path);
  recent_.Load();
  FillRecentBox();
  browser_.SetCurrentFile(*path);
  LoadIcons();
  browser_.SetLastOpened(*path);
  // Box lines count from 0, so position 0 selects no line.
  recentBox_->SetListIndex(recent_.PositionOf(*path) - 1);
}

void MainWindow::Browse() {
  if (browsing_) return;
  platform::CommonDialog chooser;
  chooser.DialogTitle(context_.Text(IDS_CHOOSER_TITLE));
  chooser.Filter(context_.Text(IDS_CHOOSER_FILTER));
  chooser.Flags(kChooserFlags);
  chooser.MaxFileSize(kLongestPath);
  chooser.InitDir(browser_.ChooserFolder(context_.targetFolder));

  browsing_ = true;
  chooser.ShowOpen();
  browsing_ = false;
  if (chooser.Cancelled()) return;

  toolkit::DoEvents();
  OpenIconFile(chooser.FileName());
  browser_.RememberChosenFile(core::NormalIconPath(chooser.FileName()));
}

void MainWindow::SetIconSpacing() {
  ::SendMessageW(iconList_->Hwnd(), LVM_SETICONSPACING, 0, kDefaultSpacing);
  const int spacing = ScalePixels(kIconSpacing);
  ::SendMessageW(iconList_->Hwnd(), LVM_SETICONSPACING, 0, MAKELPARAM(spacing, spacing));
}

void MainWindow::ShowApplyButton(bool visible) {
  applyFace_->SetVisible(visible);
}

void MainWindow::ShowDefaultFolderIcon() {
  std::optional<core::IconLocation> location = core::DefaultFolderIcon();
  if (!location) return;
  HICON icon =
      platform::IconFile(location->file).Extract(location->index, platform::LargeIconSize(Dpi()));
  if (!icon) return;
  defaultIcon_->SetPicture({});
  ::DrawIconEx(defaultIcon_->hDC(), 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL);
  defaultIcon_->SetPicture(defaultIcon_->Image());
  platform::ReleaseIcon(icon);
}

}  // namespace ui
