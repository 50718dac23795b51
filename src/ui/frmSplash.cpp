#include "ui/frmSplash.h"

#include "frame/CResDll.h"
#include "frame/Modulo.h"
#include "frame/RunState.h"
#include "resource_ids.h"
#include "system/modWeb.h"
#include "ui/ControlIds.h"
#include "ui/modCustomBlt.h"
#include "ui/modDrawText.h"
#include "ui/modLine3D.h"
#include "ui/modTileBMP.h"

namespace ui {
using frame::LanguageText;
namespace {

using toolkit::TwipsRect;

constexpr int kClientWidth = 6630;
constexpr int kClientHeight = 4845;
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kLogoTransparent = RGB(255, 255, 0);
constexpr int kLogoLeft = 5;
constexpr int kLogoTop = 5;
constexpr float kEtchedLineTop = 50;
constexpr double kSplashTextPoints = 16;
constexpr TwipsRect kSplashTextPlace{4395, 1665, 2100, 4335};
constexpr char kLineBreak[] = "\r\n";

}  // namespace

FrmSplash::FrmSplash() : Form("frmSplash", kClientWidth, kClientHeight) {}
FrmSplash::~FrmSplash() = default;

FrmSplash& AboutWindow() {
  static FrmSplash window;
  return window;
}

void OpenAboutWindow() {
  if (!AboutWindow().Loaded()) AboutWindow().ShowModal();
}

// The splash stays in front of the main window, which shows while the icons
// are still loading, so that it can be read and clicked away until start-up
// closes it. The about window is an ordinary window.
DWORD FrmSplash::ExtendedStyle() const {
  return frame::startingUp ? WS_EX_TOPMOST : 0;
}

void FrmSplash::CreateElements() {
  txtInfo_ = &AddTextBox("txtInfo", {135, 945, 4020, 3795}, ids::txtInfo,
                         toolkit::TextBox::Lines::kMultiple);
  picActualizar_ = &AddPictureBox("picActualizar", {4395, 2355, 2100, 375}, ids::picActualizar);
  picWebPage_ = &AddPictureBox("picWebPage", {4410, 3060, 2100, 375}, ids::picWebPage);
  picAyuda_ = &AddPictureBox("picAyuda", {4410, 3750, 2100, 375}, ids::picAyuda);
  picAceptar_ = &AddPictureBox("picAceptar", {4395, 4335, 2100, 420}, ids::picAceptar);
  picConfig_ = &AddPictureBox("picConfig", {4410, 990, 2100, 375}, ids::picConfig);
  picBack_ = &AddPictureBox("picBack", {4365, 4410, 2865, 750}, ids::splashPicBack);
  picImagen_ = &AddPictureBox("picImagen", {4995, 3690, 480, 480}, ids::picImagen);
  lblInfo_ = &AddLabel("lblInfo", -1, {45, 135, 645, 510});

  SetScaleMode(toolkit::ScaleMode::kPixels);
  ::SendMessageA(txtInfo_->Hwnd(), EM_SETREADONLY, TRUE, 0);
  for (toolkit::PictureBox* face :
       {picActualizar_, picWebPage_, picAyuda_, picAceptar_, picConfig_, picBack_, picImagen_}) {
    face->SetAutoRedraw(true);
    face->SetForeColor(kBlue);
  }
  for (toolkit::PictureBox* hidden : {picConfig_, picBack_, picImagen_}) hidden->SetVisible(false);
  lblInfo_->SetVisible(false);

  auto web = [this](integration::WebPage page) {
    return [this, page] { integration::OpenWebPage(page, Hwnd()); };
  };
  updates_ = std::make_unique<SkinnedButton>(
      *picActualizar_, SkinnedButton::Behaviour{true, web(integration::kUpdates), nullptr});
  webPage_ = std::make_unique<SkinnedButton>(
      *picWebPage_, SkinnedButton::Behaviour{true, web(integration::kWebPage), nullptr});
  help_ = std::make_unique<SkinnedButton>(
      *picAyuda_, SkinnedButton::Behaviour{true, web(integration::kHelpPage), nullptr});
  ok_ = std::make_unique<SkinnedButton>(
      *picAceptar_, SkinnedButton::Behaviour{true, nullptr, [this] { Unload(); }});
  config_ = std::make_unique<SkinnedButton>(*picConfig_,
                                            SkinnedButton::Behaviour{true, nullptr, nullptr});
  lblInfo_->mouse.onClick = [this] { Unload(); };
}

void FrmSplash::OnLoad() {
  Move((toolkit::Screen::Width() - Width()) / 2, (toolkit::Screen::Height() - Height()) / 2);
  picBack_->SetPicture(frame::PictureLibrary().LoadDllBitmap(IDB_SKIN));
  picBack_->SetPicture(picBack_->Image());
  frame::ApplyInterfaceFont(*this);
  if (frame::startingUp) {
    DisableButtons();
    lblInfo_->Move(kSplashTextPlace);
    lblInfo_->SetCaption(LanguageText(IDS_SPLASH_INFO));
    toolkit::TryProperty([this] { lblInfo_->SetFontBold(true); });
    toolkit::TryProperty([this] { lblInfo_->SetFontSize(kSplashTextPoints); });
    lblInfo_->SetForeColor(kBlue);
    lblInfo_->SetVisible(true);
    for (toolkit::PictureBox* hidden :
         {picAceptar_, picActualizar_, picAyuda_, picBack_, picImagen_, picWebPage_}) {
      hidden->SetVisible(false);
    }
  }
  updatesCaption_ = LanguageText(IDS_ABOUT_UPDATE);
  helpCaption_ = LanguageText(IDS_HELP);
  webPageCaption_ = LanguageText(IDS_ABOUT_WEB_PAGE);
  okCaption_ = LanguageText(IDS_ABOUT_OK);
  configCaption_ = LanguageText(IDS_ABOUT_SETTINGS);
  txtInfo_->SetText(InformationText());
  Tile();
}

std::string FrmSplash::InformationText() const {
  std::string text = LanguageText(IDS_PRODUCT_NAME) + " ";
  const int pieces[] = {IDS_ABOUT_VERSION,
                        -1,
                        -1,
                        IDS_ABOUT_SUMMARY,
                        -1,
                        IDS_COPYRIGHT,
                        -1,
                        IDS_ABOUT_RIGHTS,
                        -1,
                        IDS_ABOUT_WEB_ADDRESS,
                        -1,
                        -1,
                        IDS_ABOUT_THANKS,
                        -1,
                        IDS_ABOUT_CREDITS,
                        -1,
                        IDS_ABOUT_CONTACT,
                        -1};
  for (int piece : pieces) text += piece < 0 ? std::string(kLineBreak) : LanguageText(piece);
  return text;
}

void FrmSplash::DisableButtons() {
  for (toolkit::Element* element : Elements()) {
    if (auto* surface = dynamic_cast<toolkit::PictureBox*>(element)) {
      ::EnableWindow(surface->Hwnd(), FALSE);
    }
  }
}

void FrmSplash::Tile() {
  for (SkinnedButton* button :
       {help_.get(), updates_.get(), webPage_.get(), ok_.get(), config_.get()}) {
    button->ClearHover();
  }
  for (SkinnedButton* button :
       {help_.get(), updates_.get(), webPage_.get(), ok_.get(), config_.get()}) {
    button->ResetFace(*picBack_);
  }
  DrawCaption(*picActualizar_, updatesCaption_);
  DrawCaption(*picAyuda_, helpCaption_);
  DrawCaption(*picWebPage_, webPageCaption_);
  DrawCaption(*picAceptar_, okCaption_);
  DrawCaption(*picConfig_, configCaption_);
}

void FrmSplash::OnPaint(HDC) {
  toolkit::Picture skin = frame::PictureLibrary().LoadDllBitmap(IDB_SKIN);
  TileBitmap(Hwnd(), static_cast<HBITMAP>(skin.Handle()));
  float x1 = 0, y1 = kEtchedLineTop, y2 = kEtchedLineTop;
  float x2 = static_cast<float>(toolkit::Screen::TwipsToPixelsX(Width()));
  Line3D(*this, x1, y1, x2, y2);
  picImagen_->SetAutoSize(true);
  picImagen_->SetPicture(frame::PictureLibrary().LoadDllBitmap(IDB_LOGO));
  CustomBlt(hDC(), kLogoLeft, kLogoTop, picImagen_->ScaleWidth(), picImagen_->ScaleHeight(),
            picImagen_->hDC(), 0, 0, kLogoTransparent);
  picImagen_->SetAutoSize(false);
}

void FrmSplash::OnClick() {
  Unload();
}

void FrmSplash::OnMouseMove(const toolkit::MouseEvent&) {
  Tile();
}

void FrmSplash::OnUnload() {
  for (toolkit::PictureBox* surface :
       {picImagen_, picActualizar_, picAyuda_, picWebPage_, picAceptar_, picConfig_}) {
    surface->SetPicture({});
  }
}

}  // namespace ui
