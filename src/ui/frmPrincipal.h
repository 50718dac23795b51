// The program's working window: the folder's current icon, the preview of
// the chosen one, the system's default folder icon, the info tip, the recent
// icon files, the icons of the current icon file, a status strip and three
// skinned buttons.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "folder/RecentList.h"
#include "toolkit/Form.h"
#include "ui/SkinnedButton.h"

namespace ui {

class FrmPrincipal : public toolkit::Form,
                     private folder::RecentBox,
                     private folder::IconFileLoader {
 public:
  FrmPrincipal();
  ~FrmPrincipal() override;

  void LeerARA();
  void EscribirARA(const std::string& sNombre);
  void CargarIconosdeArchivo() override;
  // Repaints the button faces in their normal state and the status strip.
  void Tile();
  bool SetIconSpacing();
  void ShowApplyButton(bool visible);
  void ShowDefaultFolderIcon();

  // The steps of CargarIconosdeArchivo, open so that each can be timed alone:
  // the progress text on the status strip over `background`; one icon
  // rendered on the scratch surface and added to the image list as image
  // "c" + `position`; and the items for `count` images.
  void ShowProgress(int position, int count, const toolkit::Picture& background);
  void AddIconImage(HICON icon, int position);
  void ListIcons(int count);

 protected:
  void CreateElements() override;
  void OnLoad() override;
  void OnQueryUnload(std::int16_t& cancel, toolkit::UnloadMode mode) override;
  void OnUnload() override;
  void OnPaint(HDC dc) override;
  void OnMouseDown(const toolkit::MouseEvent& event) override;
  void OnMouseMove(const toolkit::MouseEvent& event) override;

 private:
  // folder::RecentBox, on cboARA.
  void Clear() override;
  void AddItem(const std::string& text) override;
  void SetListIndex(int index) override;
  std::string Text() const override;

  void CreateLabelPair(const std::string& name, const toolkit::TwipsRect& twips);
  void LayOutLabelPairs();
  // Colours index 0 and copies it to index 1, in front and offset; index 1
  // takes `frontSize`'s width and height when given.
  void FinishPair(const std::string& name, const toolkit::TwipsRect* frontSize);
  toolkit::Label& PairLabel(const std::string& name, int index) const;
  void SetToolTips();
  void CacheTexts();

  // The icon browser.
  void SelectIcon(std::optional<int> item);
  void OnIconsDblClick();
  void OnPreviewDblClick();
  void OnDefaultIconDblClick();
  void Browse();
  std::string ProgressText(int position, int count) const;

  toolkit::Label* lblSensible_ = nullptr;
  toolkit::Label* lblHelp_ = nullptr;
  toolkit::PictureBox* picIconoActual_ = nullptr;
  toolkit::PictureBox* picNuevoIcono_ = nullptr;
  toolkit::PictureBox* picIconoDefaultFolder_ = nullptr;
  toolkit::TextBox* txtInfoCarpeta_ = nullptr;
  toolkit::ComboBox* cboARA_ = nullptr;
  toolkit::ListView* lvwIconos_ = nullptr;
  toolkit::ImageList* img32_ = nullptr;
  toolkit::PictureBox* picBuscarArchivo_ = nullptr;
  toolkit::PictureBox* picAplicar_ = nullptr;
  toolkit::PictureBox* picStatus_ = nullptr;
  toolkit::PictureBox* picSalir_ = nullptr;
  toolkit::PictureBox* picBack_ = nullptr;
  toolkit::PictureBox* picTMP_ = nullptr;

  std::unique_ptr<SkinnedButton> browseButton_, applyButton_, exitButton_;
  std::unique_ptr<folder::RecentList> recent_;
  toolkit::Picture windowIcon_;

  // Texts fetched once at set-up.
  std::string applyCaption_, exitCaption_, browseCaption_;
  std::string loadingText_, fewIconsText_, iconCountText_;

  std::string lastIconFolder_;
};

// The program's one main window.
FrmPrincipal& MainWindow();

}  // namespace ui
