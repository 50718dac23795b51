// How the main window looks: its painting and the normal-state repaint of
// its buttons and status strip.
#include "frame/CResDll.h"
#include "frame/RunState.h"
#include "resource_ids.h"
#include "ui/frmPrincipal.h"
#include "ui/modCustomBlt.h"
#include "ui/modDrawBorder.h"
#include "ui/modDrawText.h"
#include "ui/modLine3D.h"
#include "ui/modRegionForm.h"
#include "ui/modTileBMP.h"

namespace ui {
namespace {

constexpr COLORREF kLogoTransparent = RGB(255, 255, 0);
constexpr int kLogoLeft = 50;
constexpr int kLogoTop = 5;
constexpr int kScratchSize = 32;
constexpr float kEtchedLineTop = 42;
constexpr float kEtchedLineLength = 300;

}  // namespace

void FrmPrincipal::Tile() {
  // Without its window (none could be made) there are no faces to paint.
  if (frame::loadingIcons || !Loaded()) return;
  for (SkinnedButton* button : {browseButton_.get(), applyButton_.get(), exitButton_.get()}) {
    button->ClearHover();
    button->ResetFace(*picBack_);
  }
  picStatus_->SetPicture(picBack_->GetPicture());

  DrawCaption(*picAplicar_, applyCaption_);
  frame::CResDll& texts = frame::LanguageLibrary();
  DrawCaption(*picSalir_, texts.LoadDllString(IDS_EXIT_BUTTON));
  DrawCaption(*picBuscarArchivo_, texts.LoadDllString(IDS_BROWSE_BUTTON));

  const int items = lvwIconos_->Count();
  DrawCaption(*picStatus_,
              items > 1 ? std::to_string(items) + " " + iconCountText_ : fewIconsText_);
}

void FrmPrincipal::OnPaint(HDC) {
  toolkit::Picture skin = frame::PictureLibrary().LoadDllBitmap(IDB_SKIN);
  TileBitmap(Hwnd(), static_cast<HBITMAP>(skin.Handle()));

  float x1 = 0, y1 = kEtchedLineTop, x2 = kEtchedLineLength, y2 = kEtchedLineTop;
  Line3D(*this, x1, y1, x2, y2);

  picTMP_->SetAutoSize(true);
  picTMP_->SetPicture(frame::PictureLibrary().LoadDllBitmap(IDB_LOGO));
  CustomBlt(hDC(), kLogoLeft, kLogoTop, picTMP_->ScaleWidth(), picTMP_->ScaleHeight(),
            picTMP_->hDC(), 0, 0, kLogoTransparent);
  picTMP_->SetAutoSize(false);
  picTMP_->Resize(kScratchSize, kScratchSize);

  constexpr int kRaised = 0, kSunken = 1;
  for (toolkit::Element* framed : std::initializer_list<toolkit::Element*>{
           picNuevoIcono_, picIconoActual_, picIconoDefaultFolder_, txtInfoCarpeta_, cboARA_,
           lvwIconos_}) {
    DrawBorder(*framed, 1, 0, kRaised, false);
  }
  DrawBorder(*picStatus_, 1, 0, kSunken, false);
}

void FrmPrincipal::OnMouseDown(const toolkit::MouseEvent&) {
  DragWindow(*this);
}

void FrmPrincipal::OnMouseMove(const toolkit::MouseEvent&) {
  Tile();
}

}  // namespace ui
