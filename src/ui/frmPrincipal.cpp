#include "ui/frmPrincipal.h"

#include <objbase.h>

#include "folder/ApplyFolderIcon.h"
#include "folder/FolderSettings.h"
#include "frame/CResDll.h"
#include "frame/EndProgram.h"
#include "frame/Modulo.h"
#include "frame/RunState.h"
#include "frame/modFileExist.h"
#include "icons/modIcon.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"
#include "ui/ControlIds.h"
#include "ui/frmShadow.h"
#include "ui/frmSplash.h"
#include "ui/modFuentes.h"
#include "ui/modRegionForm.h"

namespace ui {
using frame::LanguageText;
namespace {

using toolkit::TwipsRect;

constexpr int kClientWidth = 8655;
constexpr int kClientHeight = 6420;
constexpr char kIconLibrary[] = "iconos.dll";
constexpr int kRecentDropLines = 10;
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kLinkBlue = RGB(0, 0, 255);
// The white copy of a label pair stands this far right and down of the black.
constexpr int kPairOffsetTwips = 2;
// Gap between an icon picture and its label.
constexpr int kLabelGapTwips = 5;
constexpr int kStatusFontPoints = 9;
constexpr LONG_PTR kRefuseClose = 100;
// Tool tips of labels are areas of the form, known by these numbers.
constexpr UINT_PTR kSensibleTipId = 1;
constexpr UINT_PTR kHelpTipId = 2;

}  // namespace

FrmPrincipal::FrmPrincipal() : Form("frmPrincipal", kClientWidth, kClientHeight) {}

FrmPrincipal::~FrmPrincipal() = default;

FrmPrincipal& MainWindow() {
  static FrmPrincipal window;
  return window;
}

void FrmPrincipal::CreateLabelPair(const std::string& name, const TwipsRect& twips) {
  AddLabel(name, 0, twips);
  AddLabel(name, 1, twips);  // added after index 0, so drawn in front of it
}

toolkit::Label& FrmPrincipal::PairLabel(const std::string& name, int index) const {
  return *static_cast<toolkit::Label*>(Find(name, index));
}

void FrmPrincipal::CreateElements() {
  using toolkit::TextBox;
  lblSensible_ = &AddLabel("lblSensible", -1, {45, 0, 3750, 555});
  // Moved at set-up; the width of the first pair is worked out from here.
  CreateLabelPair("lblIconoActual", {720, 765, 3110, 480});
  picIconoActual_ = &AddPictureBox("picIconoActual", {135, 765, 480, 480}, ids::picIconoActual);
  CreateLabelPair("lblNuevoIcono", {720, 1350, 3110, 480});
  picNuevoIcono_ = &AddPictureBox("picNuevoIcono", {135, 1350, 480, 480}, ids::picNuevoIcono);
  CreateLabelPair("lblIconoDefaultFolder", {720, 1935, 3110, 480});
  picIconoDefaultFolder_ =
      &AddPictureBox("picIconoDefaultFolder", {135, 1935, 480, 480}, ids::picIconoDefaultFolder);
  CreateLabelPair("lblInfoCarpeta", {120, 2610, 3660, 240});
  txtInfoCarpeta_ = &AddTextBox("txtInfoCarpeta", {120, 2925, 3705, 1995}, ids::txtInfoCarpeta,
                                TextBox::Lines::kMultiple);
  CreateLabelPair("lblARA", {135, 5130, 3660, 195});
  cboARA_ = &AddComboBox("cboARA", {120, 5400, 3705, 315}, ids::cboARA, kRecentDropLines);
  AddLine("Line1", {3825, 0}, {3825, 495});
  lblHelp_ = &AddLabel("lblHelp", -1, {7785, 720, 735, 285});
  lvwIconos_ = &AddListView("lvwIconos", {3960, 1080, 4575, 4695}, ids::lvwIconos);
  img32_ = &AddImageList("img32", 32, 32);
  picBuscarArchivo_ =
      &AddPictureBox("picBuscarArchivo", {720, 5850, 2100, 375}, ids::picBuscarArchivo);
  picAplicar_ = &AddPictureBox("picAplicar", {3915, 5850, 1200, 375}, ids::picAplicar);
  picStatus_ = &AddPictureBox("picStatus", {5265, 5850, 2025, 375}, ids::picStatus);
  picSalir_ = &AddPictureBox("picSalir", {7380, 5850, 1200, 375}, ids::picSalir);
  picBack_ = &AddPictureBox("picBack", {4185, 45, 2955, 570}, ids::picBack);
  picTMP_ = &AddPictureBox("picTMP", {7245, 270, 480, 480}, ids::picTMP);

  // Design properties.
  SetScaleMode(toolkit::ScaleMode::kPixels);
  lblHelp_->SetForeColor(kLinkBlue);
  for (toolkit::PictureBox* icon :
       {picIconoActual_, picNuevoIcono_, picIconoDefaultFolder_, picTMP_}) {
    icon->SetBackColor(::GetSysColor(COLOR_WINDOW));
  }
  for (toolkit::PictureBox* surface : {picIconoDefaultFolder_, picBuscarArchivo_, picAplicar_,
                                       picStatus_, picSalir_, picBack_, picTMP_}) {
    surface->SetAutoRedraw(true);
  }
  picBack_->SetVisible(false);
  picTMP_->SetVisible(false);

  // Events.
  browseButton_ = std::make_unique<SkinnedButton>(
      *picBuscarArchivo_, SkinnedButton::Behaviour{false, nullptr, [this] { Browse(); }});
  applyButton_ = std::make_unique<SkinnedButton>(
      *picAplicar_,
      SkinnedButton::Behaviour{false, nullptr, [] { folder::ApplyFolderIcon(true); }});
  exitButton_ = std::make_unique<SkinnedButton>(
      *picSalir_, SkinnedButton::Behaviour{false, nullptr, [this] { Unload(); }});
  folder::RecentBox& box = *this;
  folder::IconFileLoader& loader = *this;
  recent_ = std::make_unique<folder::RecentList>(box, loader);

  auto tile = [this](const toolkit::MouseEvent&) { Tile(); };
  lvwIconos_->mouse.onMouseMove = tile;
  picIconoActual_->mouse.onMouseMove = tile;
  picStatus_->mouse.onMouseMove = tile;
  txtInfoCarpeta_->mouse.onMouseMove = tile;
  lvwIconos_->onItemClick = [this](int item) {
    SelectIcon(item);
    ShowApplyButton(true);
  };
  lvwIconos_->onDblClick = [this] { OnIconsDblClick(); };
  picNuevoIcono_->mouse.onDblClick = [this] { OnPreviewDblClick(); };
  picIconoDefaultFolder_->mouse.onDblClick = [this] { OnDefaultIconDblClick(); };
  txtInfoCarpeta_->onChange = [this] {
    folder::FolderSettings.infoTip = txtInfoCarpeta_->Text();
    ShowApplyButton(true);
  };
  cboARA_->onClick = [this] { recent_->OnChoose(); };
  lblSensible_->mouse.onMouseDown = [this](const toolkit::MouseEvent&) { DragWindow(*this); };
  lblSensible_->mouse.onDblClick = OpenAboutWindow;
  lblHelp_->mouse.onClick = OpenAboutWindow;
  cboARA_->onKeyPress = [this](char key) { recent_->OnKeyPress(key); };
}

void FrmPrincipal::OnLoad() {
  // 1 to 4.
  Move((toolkit::Screen::Width() - Width()) / 2, (toolkit::Screen::Height() - Height()) / 2);
  if (!InstallProgramFont(*this)) {
    Unload();  // the close sequence ends the program
    return;
  }
  ApplyWindowShape(*this);
  ShadowWindow().Load();
  // 5 to 8.
  img32_->SetMaskColor(lvwIconos_->BackColor());
  toolkit::TryProperty([this] { picStatus_->SetFontSize(kStatusFontPoints); });
  ::CoInitialize(nullptr);
  lvwIconos_->ArrangeFromTop();
  // 9, 10.
  if (frame::FileExist(frame::programFolder + kIconLibrary)) {
    frame::currentIconFile = frame::programFolder + kIconLibrary;
  }
  cboARA_->Clear();
  // 11 to 13.
  frame::ApplyInterfaceFont(*this);
  lblHelp_->SetCaption(LanguageText(IDS_HELP));
  LayOutLabelPairs();
  // 14.
  toolkit::Picture current =
      icons::GetShellIconPicture(frame::targetFolder, icons::kLargeShellIcon);
  picIconoActual_->SetPicture(current);
  picNuevoIcono_->SetPicture(current);
  // 15 to 19.
  SetToolTips();
  txtInfoCarpeta_->SetText(folder::FolderSettings.infoTip);
  Tips().SetTip(txtInfoCarpeta_->Hwnd(), LanguageText(IDS_TIP_INFOTIP));
  windowIcon_ = frame::PictureLibrary().LoadDllIcon(IDI_WINDOW);
  LPARAM icon = reinterpret_cast<LPARAM>(windowIcon_.Handle());
  ::SendMessageA(Hwnd(), WM_SETICON, ICON_BIG, icon);
  ::SendMessageA(Hwnd(), WM_SETICON, ICON_SMALL, icon);
  ::SetWindowTextA(
      Hwnd(), (LanguageText(IDS_PRODUCT_NAME) + " - " + LanguageText(IDS_PRODUCT_TAGLINE)).c_str());
  const std::string aboutTip = LanguageText(IDS_TIP_ABOUT);
  Tips().SetTip(kSensibleTipId, lblSensible_->Bounds(), aboutTip);
  Tips().SetTip(kHelpTipId, lblHelp_->Bounds(), aboutTip);
  // 20 to 22.
  ShowDefaultFolderIcon();
  ShowApplyButton(false);
  picBack_->SetPicture(frame::PictureLibrary().LoadDllBitmap(IDB_SKIN));
  picBack_->SetPicture(picBack_->Image());
  // 23 to 27.
  CacheTexts();
  LeerARA();
  recent_->FillRecentList(frame::currentIconFile);
  SetIconSpacing();
  toolkit::DoEvents();
}

// An element's position as the form designer gives it, in twips.
static TwipsRect DesignPosition(const toolkit::Element& element) {
  const RECT pixels = element.Bounds();
  return TwipsRect{toolkit::Screen::PixelsToTwipsX(pixels.left),
                   toolkit::Screen::PixelsToTwipsY(pixels.top),
                   toolkit::Screen::PixelsToTwipsX(pixels.right - pixels.left),
                   toolkit::Screen::PixelsToTwipsY(pixels.bottom - pixels.top)};
}

void FrmPrincipal::FinishPair(const std::string& name, const TwipsRect* frontSize) {
  toolkit::Label& back = PairLabel(name, 0);
  toolkit::Label& front = PairLabel(name, 1);
  back.SetForeColor(kBlack);
  front.SetCaption(back.Caption());
  front.SetForeColor(kWhite);
  TwipsRect place = back.Position();
  place.left += kPairOffsetTwips;
  place.top += kPairOffsetTwips;
  if (frontSize) {
    place.width = frontSize->width;
    place.height = frontSize->height;
  }
  front.Move(place);
}

void FrmPrincipal::LayOutLabelPairs() {
  toolkit::Label& current = PairLabel("lblIconoActual", 0);
  current.SetCaption(LanguageText(IDS_CURRENT_ICON_LABEL) + "\r\n" + frame::targetFolder);
  const TwipsRect picture = DesignPosition(*picIconoActual_);
  const int listLeft = DesignPosition(*lvwIconos_).left;
  current.Move({picture.left + picture.width + kLabelGapTwips, picture.top,
                std::abs(current.Position().left - listLeft) - picture.left + kLabelGapTwips,
                picture.height});
  FinishPair("lblIconoActual", nullptr);

  // The next two stand beside their pictures, aligned with the first.
  const std::pair<const char*, int> besideCaption[] = {
      {"lblNuevoIcono", IDS_NEW_ICON_LABEL}, {"lblIconoDefaultFolder", IDS_DEFAULT_ICON_LABEL}};
  const toolkit::PictureBox* besidePicture[] = {picNuevoIcono_, picIconoDefaultFolder_};
  for (int n = 0; n < 2; ++n) {
    toolkit::Label& label = PairLabel(besideCaption[n].first, 0);
    label.SetCaption(LanguageText(besideCaption[n].second));
    const TwipsRect beside = DesignPosition(*besidePicture[n]);
    label.Move({current.Position().left, beside.top, current.Position().width, beside.height});
    FinishPair(besideCaption[n].first, nullptr);
  }

  PairLabel("lblInfoCarpeta", 0).SetCaption(LanguageText(IDS_INFOTIP_LABEL));
  const TwipsRect currentSize = current.Position();
  FinishPair("lblInfoCarpeta", &currentSize);
  PairLabel("lblARA", 0).SetCaption(LanguageText(IDS_RECENT_LABEL));
  FinishPair("lblARA", nullptr);
}

void FrmPrincipal::SetToolTips() {
  toolkit::ToolTips& tips = Tips();
  tips.SetTip(picIconoActual_->Hwnd(), LanguageText(IDS_TIP_CURRENT_ICON));
  tips.SetTip(picNuevoIcono_->Hwnd(), LanguageText(IDS_TIP_NEW_ICON));
  tips.SetTip(picIconoDefaultFolder_->Hwnd(), LanguageText(IDS_TIP_DEFAULT_ICON));
  tips.SetTip(cboARA_->Hwnd(), LanguageText(IDS_TIP_RECENT));
  tips.SetTip(lvwIconos_->Hwnd(), LanguageText(IDS_TIP_ICON_LIST));
  tips.SetTip(picBuscarArchivo_->Hwnd(), LanguageText(IDS_TIP_BROWSE));
}

void FrmPrincipal::CacheTexts() {
  applyCaption_ = LanguageText(IDS_APPLY_BUTTON);
  exitCaption_ = LanguageText(IDS_EXIT_BUTTON);
  browseCaption_ = LanguageText(IDS_BROWSE_BUTTON);
  loadingText_ = LanguageText(IDS_STATUS_LOADING);
  fewIconsText_ = LanguageText(IDS_STATUS_FEW_ICONS);
  iconCountText_ = LanguageText(IDS_STATUS_ICON_COUNT);
}

void FrmPrincipal::LeerARA() {
  recent_->LeerARA();
}
void FrmPrincipal::EscribirARA(const std::string& sNombre) {
  recent_->EscribirARA(sNombre);
}

void FrmPrincipal::Clear() {
  cboARA_->Clear();
}
void FrmPrincipal::AddItem(const std::string& text) {
  cboARA_->AddItem(text);
}
void FrmPrincipal::SetListIndex(int index) {
  cboARA_->SetListIndex(index);
}
std::string FrmPrincipal::Text() const {
  return cboARA_->Text();
}

void FrmPrincipal::OnQueryUnload(std::int16_t& cancel, toolkit::UnloadMode) {
  if (frame::browsingForFile) cancel = kRefuseClose;
}

void FrmPrincipal::OnUnload() {
  ZoomWindow(*this, true);
  RemoveProgramFont();
  img32_->Clear();
  for (toolkit::PictureBox* surface :
       {picIconoActual_, picNuevoIcono_, picTMP_, picStatus_, picBuscarArchivo_,
        picIconoDefaultFolder_, picAplicar_, picSalir_}) {
    surface->SetPicture({});
  }
  lvwIconos_->SetIcons(nullptr);
  lvwIconos_->SetSmallIcons(nullptr);
  ShadowWindow().Unload();
  AboutWindow().Unload();
  frame::ReleaseLibraries();
  frame::EndProgram(false);
}

}  // namespace ui
