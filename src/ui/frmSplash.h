// One window, two uses: the splash while the program starts, and the modal
// about window afterwards, with the information text and the buttons that
// lead to the maker's web pages.
#pragma once

#include <memory>
#include <string>

#include "toolkit/Form.h"
#include "ui/SkinnedButton.h"

namespace ui {

class FrmSplash : public toolkit::Form {
 public:
  FrmSplash();
  ~FrmSplash() override;

  void Tile();

 protected:
  DWORD ExtendedStyle() const override;
  void CreateElements() override;
  void OnLoad() override;
  void OnUnload() override;
  void OnPaint(HDC dc) override;
  void OnClick() override;
  void OnMouseMove(const toolkit::MouseEvent& event) override;

 private:
  void DisableButtons();
  std::string InformationText() const;

  toolkit::TextBox* txtInfo_ = nullptr;
  toolkit::PictureBox* picActualizar_ = nullptr;
  toolkit::PictureBox* picWebPage_ = nullptr;
  toolkit::PictureBox* picAyuda_ = nullptr;
  toolkit::PictureBox* picAceptar_ = nullptr;
  toolkit::PictureBox* picConfig_ = nullptr;
  toolkit::PictureBox* picBack_ = nullptr;
  toolkit::PictureBox* picImagen_ = nullptr;
  toolkit::Label* lblInfo_ = nullptr;
  std::unique_ptr<SkinnedButton> updates_, webPage_, help_, ok_, config_;
  // Captions fetched at set-up.
  std::string updatesCaption_, helpCaption_, webPageCaption_, okCaption_, configCaption_;
};

// The program's about window; created on first use.
FrmSplash& AboutWindow();

// Opens the about window modally. While the same window still stands as the
// splash (start-up lets messages run as it lists the icons), the request is
// ignored: the splash already shows the information and start-up closes it.
void OpenAboutWindow();

}  // namespace ui
