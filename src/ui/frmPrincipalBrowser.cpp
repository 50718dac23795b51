// The icon browser of the main window: loading the icons of the current
// icon file, choosing one, applying by double-click, and browsing for
// another icon file.
#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>

#include <algorithm>

#include "folder/ApplyFolderIcon.h"
#include "folder/DefaultFolderIcon.h"
#include "folder/FolderSettings.h"
#include "frame/CResDll.h"
#include "frame/CWaitCursor.h"
#include "frame/RunState.h"
#include "icons/clsCommonDialog.h"
#include "icons/modExtractIcon.h"
#include "icons/modIcon.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"
#include "ui/frmPrincipal.h"
#include "ui/modDrawText.h"

namespace ui {
namespace {

constexpr int kIconSpacing = 43;
constexpr LPARAM kDefaultSpacing = -1;
constexpr std::int32_t kChooserFlags =
    OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;

}  // namespace

std::string FrmPrincipal::ProgressText(int position, int count) const {
  return loadingText_ + " " + std::to_string(position) + "/" + std::to_string(count);
}

void FrmPrincipal::ShowProgress(int position, int count, const toolkit::Picture& background) {
  // Giving the strip its picture clears it.
  picStatus_->SetPicture(background);
  DrawCaption(*picStatus_, ProgressText(position, count), WindowText::kLeave);
  picStatus_->Refresh();
}

void FrmPrincipal::AddIconImage(HICON icon, int position) {
  picTMP_->SetPicture({});
  icons::DrawIconInPicture(icon, *picTMP_, 0, 0);
  picTMP_->SetPicture(picTMP_->Image());
  picTMP_->Refresh();
  toolkit::TryProperty([&] { img32_->Add("c" + std::to_string(position), picTMP_->GetPicture()); });
}

void FrmPrincipal::ListIcons(int count) {
  toolkit::ListView::ItemBatch batch(*lvwIconos_);
  for (int j = 1; j <= count; ++j) {
    // Items whose image could not be made are refused by the list.
    toolkit::TryProperty([&] { lvwIconos_->AddItem("a" + std::to_string(j), "", j); });
    frame::iconListEmpty = false;
  }
}

void FrmPrincipal::CargarIconosdeArchivo() {
  // Without its window (none could be made) there is no list to fill.
  if (!Loaded()) return;
  frame::CWaitCursor wait;
  wait.SetCursor(toolkit::kPointerHourglass);

  frame::loadingIcons = true;
  toolkit::DoEvents();

  lvwIconos_->SetIcons(nullptr);
  lvwIconos_->SetSmallIcons(nullptr);
  lvwIconos_->Clear();
  img32_->Clear();

  const std::string file = frame::currentIconFile;
  const std::int32_t count = icons::GetIconCount(file);
  if (count < 1) {
    toolkit::Picture shellIcon = icons::GetShellIconPicture(file, icons::kLargeShellIcon);
    toolkit::TryProperty([&] { img32_->Add("c0", shellIcon); });
    lvwIconos_->SetIcons(img32_);
    toolkit::TryProperty([&] { lvwIconos_->AddItem("a1", "", 1); });
    frame::iconListEmpty = true;
    frame::loadingIcons = false;
    return;
  }

  img32_->Reserve(count);
  // The same bitmap every pass: loading it again for each icon cost as much
  // as a fifth of an extraction.
  const toolkit::Picture progressBackground = frame::PictureLibrary().LoadDllBitmap(IDB_SKIN);
  HICON icon = nullptr;
  std::int32_t i = 0;
  for (; i <= count; ++i) {
    ShowProgress(i, count, progressBackground);
    icons::ReleaseIcon(icon);
    icon = icons::ExtractLargeIcon(file, i);
    if (!icon) break;
    AddIconImage(icon, i);
  }
  frame::loadingIcons = false;
  icons::ReleaseIcon(icon);
  // The strip's window text catches up with the last progress it shows.
  if (picStatus_->Hwnd()) {
    ::SetWindowTextA(picStatus_->Hwnd(), ProgressText(std::min(i, count), count).c_str());
  }

  lvwIconos_->SetIcons(img32_);
  ListIcons(count);
}

void FrmPrincipal::SelectIcon(std::optional<int> item) {
  // Without an item every step that needs one fails and is stepped over:
  // no icon is drawn and the position keeps its value.
  HICON icon = item ? icons::ExtractLargeIcon(frame::currentIconFile, *item - 1) : nullptr;
  picNuevoIcono_->SetPicture({});
  icons::DrawIconInPicture(icon, *picNuevoIcono_, 0, 0);
  picNuevoIcono_->Refresh();
  picNuevoIcono_->SetPicture(picNuevoIcono_->Image());
  icons::ReleaseIcon(icon);
  folder::FolderSettings.iconFile = frame::currentIconFile;
  if (item) folder::FolderSettings.iconIndex = *item - 1;
}

void FrmPrincipal::OnIconsDblClick() {
  const int selected = lvwIconos_->SelectedIndex();
  SelectIcon(selected > 0 ? std::optional<int>(selected) : std::nullopt);
  OnPreviewDblClick();
}

void FrmPrincipal::OnPreviewDblClick() {
  if (!picNuevoIcono_->GetPicture().Handle()) return;
  folder::ApplyFolderIcon(false);
  Unload();
}

void FrmPrincipal::OnDefaultIconDblClick() {
  folder::RemoveFolderIcon();
  toolkit::DoEvents();
  Unload();
}

void FrmPrincipal::Browse() {
  if (frame::browsingForFile) return;
  icons::clsCommonDialog chooser;
  chooser.DialogTitle(frame::LanguageLibrary().LoadDllString(IDS_CHOOSER_TITLE));
  chooser.Filter(frame::LanguageLibrary().LoadDllString(IDS_CHOOSER_FILTER));
  chooser.Flags(kChooserFlags);
  chooser.InitDir(lastIconFolder_.empty() ? frame::targetFolder : lastIconFolder_);

  frame::browsingForFile = true;
  chooser.ShowOpen();
  frame::browsingForFile = false;
  if (chooser.Cancelled()) return;

  toolkit::DoEvents();
  std::string file = chooser.filename();
  recent_->OpenIconFile(file);
  lastIconFolder_ = file;
  const auto slash = file.rfind('\\');
  if (slash != std::string::npos) lastIconFolder_ = file.substr(0, slash);
}

bool FrmPrincipal::SetIconSpacing() {
  ::SendMessageA(lvwIconos_->Hwnd(), LVM_SETICONSPACING, 0, kDefaultSpacing);
  ::SendMessageA(lvwIconos_->Hwnd(), LVM_SETICONSPACING, 0, MAKELPARAM(kIconSpacing, kIconSpacing));
  return true;
}

void FrmPrincipal::ShowApplyButton(bool visible) {
  picAplicar_->SetVisible(visible);
}

void FrmPrincipal::ShowDefaultFolderIcon() {
  std::optional<folder::IconLocation> location = folder::DefaultFolderIcon();
  if (!location) return;
  HICON icon = icons::ExtractLargeIcon(location->file, location->index);
  if (!icon) return;
  picIconoDefaultFolder_->SetPicture({});
  ::DrawIcon(picIconoDefaultFolder_->hDC(), 0, 0, icon);
  picIconoDefaultFolder_->SetPicture(picIconoDefaultFolder_->Image());
  icons::ReleaseIcon(icon);
}

}  // namespace ui
