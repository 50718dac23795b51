// The program's working window: the folder's current icon, the preview of
// the chosen one, the system's default folder icon, the info tip, the recent
// icon files, the icons of the current icon file, a status strip and three
// skinned buttons.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/FolderSettings.h"
#include "core/IconBrowser.h"
#include "core/RecentIconFiles.h"
#include "platform/ShellNotifier.h"
#include "toolkit/Form.h"
#include "ui/AboutWindow.h"
#include "ui/ShadowWindow.h"
#include "ui/SkinnedButton.h"
#include "ui/WindowContext.h"

namespace ui {

class MainWindow : public toolkit::Form {
 public:
  // `settings` is the target folder's record, `settingsFileExisted` whether
  // its Desktop.ini was there when the program started. `onClosed` runs at
  // the end of the window's close sequence, which never returns to the
  // window: it ends the program.
  MainWindow(const WindowContext& context, core::FolderSettings& settings, bool settingsFileExisted,
             AboutWindow& about, std::function<void()> onClosed);
  ~MainWindow() override;

  ShadowWindow& Shadow() { return shadow_; }

  // Loads the icons of the current icon file into the list.
  void LoadIcons();
  // Repaints the button faces in their normal state and the status strip.
  void Tile();
  // Opens an icon file the user chose: a missing file is reported, a new one
  // goes on the recent list, and its icons are listed.
  void OpenIconFile(const std::string& typed);

  // The steps of LoadIcons, open so that each can be timed alone: the
  // progress text on the status strip over `background`; one icon rendered on
  // the scratch surface and added to the image list as image "c" +
  // `position`; and the items for `count` images.
  void ShowProgress(int position, int count, const platform::Picture& background);
  void AddIconImage(HICON icon, int position);
  void ListIcons(int count);

 protected:
  DWORD ExtendedStyle() const override;
  void CreateElements() override;
  void OnLoad() override;
  void OnQueryUnload(std::int16_t& cancel, toolkit::UnloadMode mode) override;
  void OnUnload() override;
  void OnPaint(HDC dc) override;
  void OnMouseDown(const toolkit::MouseEvent& event) override;
  void OnMouseMove(const toolkit::MouseEvent& event) override;
  void OnActivate() override;
  void OnDpiChanged() override;
  bool OnKeyDown(int virtualKey) override;
  bool OnAccessKey(wchar_t key) override;

 private:
  void CreateLabelPair(const std::string& name, const toolkit::TwipsRect& twips);
  void LayOutLabelPairs();
  // Colours index 0 and copies it to index 1, in front and offset; index 1
  // takes `frontSize`'s width and height when given.
  void FinishPair(const std::string& name, const toolkit::TwipsRect* frontSize);
  toolkit::Label& PairLabel(const std::string& name, int index) const;
  void SetToolTips();
  void SetLabelTips();
  void KeepTexts();
  void FillRecentBox();
  void SetIconSpacing();
  void ShowApplyButton(bool visible);
  void ShowDefaultFolderIcon();
  // Names, roles and access keys, in the language of the texts shown.
  void DescribeElements();
  std::string AccessKeyOf(SkinnedButton& button, int keyText);
  // Tells screen readers the list's state and name (its file) changed.
  void AnnounceIconList() const;

  // The icon browser.
  void SelectIcon(std::optional<int> item);
  void OnIconsDblClick();
  void OnPreviewDblClick();
  void OnDefaultIconDblClick();
  void OnRecentChosen();
  void Browse();
  // Nothing while the list shows no icons; after a Yes when `askFirst`.
  void Apply(bool askFirst);
  void RemoveCustomisation();

  const WindowContext& context_;
  core::FolderSettings& settings_;
  const bool settingsFileExisted_;
  AboutWindow& about_;
  std::function<void()> onClosed_;
  ShadowWindow shadow_{*this};
  core::IconBrowser browser_;
  core::RecentIconFiles recent_;
  platform::SystemShellNotifier shell_;
  // True while the icon-file chooser is open: the window cannot close then.
  bool browsing_ = false;

  toolkit::Label* dragStrip_ = nullptr;
  toolkit::Label* helpLink_ = nullptr;
  toolkit::PictureBox* currentIcon_ = nullptr;
  toolkit::PictureBox* newIcon_ = nullptr;
  toolkit::PictureBox* defaultIcon_ = nullptr;
  toolkit::TextBox* infoTipBox_ = nullptr;
  toolkit::ComboBox* recentBox_ = nullptr;
  toolkit::ListView* iconList_ = nullptr;
  toolkit::ImageList* iconImages_ = nullptr;
  toolkit::PictureBox* browseFace_ = nullptr;
  toolkit::PictureBox* applyFace_ = nullptr;
  toolkit::PictureBox* statusStrip_ = nullptr;
  toolkit::PictureBox* exitFace_ = nullptr;
  toolkit::PictureBox* skin_ = nullptr;
  toolkit::PictureBox* scratch_ = nullptr;

  std::unique_ptr<SkinnedButton> browseButton_, applyButton_, exitButton_;
  struct AccessKey {
    wchar_t key;
    SkinnedButton* button;
  };
  std::vector<AccessKey> accessKeys_;
  platform::Picture windowIcon_;

  // Texts fetched once at set-up and kept for the run.
  std::string applyCaption_, loadingText_, fewIconsText_, iconCountText_;
  // The progress text the status strip shows while icons load.
  std::string shownProgress_;
  std::chrono::steady_clock::time_point progressPresented_;
};

}  // namespace ui
