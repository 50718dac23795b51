#include "ui/MainWindow.h"

#include <objbase.h>

#include <cstdlib>

#include "platform/Dpi.h"
#include "platform/FileSystem.h"
#include "platform/ShellIcon.h"
#include "platform/Utf8.h"
#include "resource_ids.h"
#include "toolkit/MessageLoop.h"
#include "ui/ControlIds.h"
#include "ui/Drawing.h"
#include "ui/InterfaceFont.h"
#include "ui/ProgramFont.h"
#include "ui/WindowShape.h"

namespace ui {
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
constexpr std::int16_t kRefuseClose = 100;
// Tool tips of labels are areas of the form, known by these numbers.
constexpr UINT_PTR kDragStripTipId = 1;
constexpr UINT_PTR kHelpTipId = 2;
constexpr UINT_PTR kFolderTipId = 3;

// An element's position as the form designer gives it, in twips.
TwipsRect DesignPosition(const toolkit::Element& element) {
  const RECT pixels = element.Bounds();
  const int dpi = element.Dpi();
  using toolkit::Screen::PixelsToTwips;
  return TwipsRect{PixelsToTwips(pixels.left, dpi), PixelsToTwips(pixels.top, dpi),
                   PixelsToTwips(pixels.right - pixels.left, dpi),
                   PixelsToTwips(pixels.bottom - pixels.top, dpi)};
}

}  // namespace

MainWindow::MainWindow(const WindowContext& context, core::FolderSettings& settings,
                       bool settingsFileExisted, AboutWindow& about, std::function<void()> onClosed)
    : Form(names::kMainWindow, kClientWidth, kClientHeight),
      context_(context),
      settings_(settings),
      settingsFileExisted_(settingsFileExisted),
      about_(about),
      onClosed_(std::move(onClosed)),
      recent_(context.programFolder + core::kRecentFileName) {}

MainWindow::~MainWindow() = default;

// Owned by its shadow, the window still belongs in the taskbar.
DWORD MainWindow::ExtendedStyle() const {
  return WS_EX_APPWINDOW;
}

void MainWindow::CreateLabelPair(const std::string& name, const TwipsRect& twips) {
  AddLabel(name, 0, twips);
  AddLabel(name, 1, twips);  // added after index 0, so drawn in front of it
}

toolkit::Label& MainWindow::PairLabel(const std::string& name, int index) const {
  return *static_cast<toolkit::Label*>(Find(name, index));
}

void MainWindow::CreateElements() {
  using toolkit::TextBox;
  dragStrip_ = &AddLabel(names::kDragStrip, -1, {45, 0, 3750, 555});
  // Moved at set-up; the width of the first pair is worked out from here.
  CreateLabelPair(names::kCurrentIconLabel, {720, 765, 3110, 480});
  currentIcon_ = &AddPictureBox(names::kCurrentIcon, {135, 765, 480, 480}, ids::currentIcon);
  CreateLabelPair(names::kNewIconLabel, {720, 1350, 3110, 480});
  newIcon_ = &AddPictureBox(names::kNewIcon, {135, 1350, 480, 480}, ids::newIcon);
  CreateLabelPair(names::kDefaultIconLabel, {720, 1935, 3110, 480});
  defaultIcon_ = &AddPictureBox(names::kDefaultIcon, {135, 1935, 480, 480}, ids::defaultFolderIcon);
  CreateLabelPair(names::kInfoTipLabel, {120, 2610, 3660, 240});
  infoTipBox_ = &AddTextBox(names::kInfoTip, {120, 2925, 3705, 1995}, ids::infoTip,
                            TextBox::Lines::kMultiple);
  CreateLabelPair(names::kRecentLabel, {135, 5130, 3660, 195});
  recentBox_ =
      &AddComboBox(names::kRecentFiles, {120, 5400, 3705, 315}, ids::recentFiles, kRecentDropLines);
  AddLine(names::kTopLine, {3825, 0}, {3825, 495});
  helpLink_ = &AddLabel(names::kHelpLink, -1, {7785, 720, 735, 285});
  iconList_ = &AddListView(names::kIconList, {3960, 1080, 4575, 4695}, ids::iconList);
  const int iconSize = platform::LargeIconSize(Dpi());
  iconImages_ = &AddImageList(names::kIconImages, iconSize, iconSize);
  browseFace_ = &AddPictureBox(names::kBrowseButton, {720, 5850, 2100, 375}, ids::browseButton);
  applyFace_ = &AddPictureBox(names::kApplyButton, {3915, 5850, 1200, 375}, ids::applyButton);
  statusStrip_ = &AddPictureBox(names::kStatusStrip, {5265, 5850, 2025, 375}, ids::statusStrip);
  exitFace_ = &AddPictureBox(names::kExitButton, {7380, 5850, 1200, 375}, ids::exitButton);
  skin_ = &AddPictureBox(names::kMainSkin, {4185, 45, 2955, 570}, ids::mainSkin);
  scratch_ = &AddPictureBox(names::kScratch, {7245, 270, 480, 480}, ids::scratch);

  // Design properties.
  SetScaleMode(toolkit::ScaleMode::kPixels);
  helpLink_->SetForeColor(kLinkBlue);
  for (toolkit::PictureBox* icon : {currentIcon_, newIcon_, defaultIcon_, scratch_}) {
    icon->SetBackColor(::GetSysColor(COLOR_WINDOW));
  }
  for (toolkit::PictureBox* surface :
       {defaultIcon_, browseFace_, applyFace_, statusStrip_, exitFace_, skin_, scratch_}) {
    surface->SetAutoRedraw(true);
  }
  skin_->SetVisible(false);
  scratch_->SetVisible(false);

  // Events.
  using Behaviour = SkinnedButton::Behaviour;
  browseButton_ = std::make_unique<SkinnedButton>(*browseFace_,
                                                  Behaviour{false, nullptr, [this] { Browse(); }});
  applyButton_ = std::make_unique<SkinnedButton>(
      *applyFace_, Behaviour{false, nullptr, [this] { Apply(true); }});
  exitButton_ =
      std::make_unique<SkinnedButton>(*exitFace_, Behaviour{false, nullptr, [this] { Unload(); }});

  auto tile = [this](const toolkit::MouseEvent&) { Tile(); };
  iconList_->mouse.onMouseMove = tile;
  currentIcon_->mouse.onMouseMove = tile;
  statusStrip_->mouse.onMouseMove = tile;
  infoTipBox_->mouse.onMouseMove = tile;
  iconList_->onItemClick = [this](int item) {
    SelectIcon(item);
    ShowApplyButton(true);
  };
  iconList_->onDblClick = [this] { OnIconsDblClick(); };
  iconList_->onEnter = [this] { OnIconsDblClick(); };
  newIcon_->mouse.onDblClick = [this] { OnPreviewDblClick(); };
  defaultIcon_->mouse.onDblClick = [this] { OnDefaultIconDblClick(); };
  infoTipBox_->onChange = [this] {
    settings_.infoTip = infoTipBox_->Text();
    ShowApplyButton(true);
  };
  recentBox_->onClick = [this] { OnRecentChosen(); };
  recentBox_->onKeyPress = [this](wchar_t key) {
    if (key == L'\r') OnRecentChosen();
  };
  dragStrip_->mouse.onMouseDown = [this](const toolkit::MouseEvent&) { DragWindow(*this); };
  dragStrip_->mouse.onDblClick = [this] { about_.Open(Hwnd()); };
  helpLink_->mouse.onClick = [this] { about_.Open(Hwnd()); };
}

void MainWindow::OnLoad() {
  // Shape, font and shadow come first: without the program's font the
  // window has no shape and the program closes.
  Move((toolkit::Screen::Width(Dpi()) - Width()) / 2,
       (toolkit::Screen::Height(Dpi()) - Height()) / 2);
  if (!InstallProgramFont(*this, context_.programFolder, context_.pictures)) {
    Unload();  // the close sequence ends the program
    return;
  }
  ApplyWindowShape(*this);
  shadow_.Load();
  SetOwner(&shadow_);

  iconImages_->SetMaskColor(iconList_->BackColor());
  toolkit::TryProperty([this] { statusStrip_->SetFontSize(kStatusFontPoints); });
  ::CoInitialize(nullptr);
  iconList_->ArrangeFromTop();

  // The icon library shipped beside the program is the first one shown.
  if (platform::FileExists(context_.programFolder + kIconLibrary)) {
    browser_.SetCurrentFile(context_.programFolder + kIconLibrary);
  }
  recentBox_->Clear();

  ApplyInterfaceFont(*this, context_.ConfigFile());
  helpLink_->SetCaption(context_.Text(IDS_HELP));
  LayOutLabelPairs();

  platform::Picture current =
      platform::ShellIconPicture(context_.targetFolder, platform::kLargeShellIcon);
  currentIcon_->SetPicture(current);
  newIcon_->SetPicture(current);

  SetToolTips();
  infoTipBox_->SetText(settings_.infoTip);
  Tips().SetTip(infoTipBox_->Hwnd(), context_.Text(IDS_TIP_INFOTIP));
  windowIcon_ = context_.pictures.Icon(IDI_WINDOW);
  LPARAM icon = reinterpret_cast<LPARAM>(windowIcon_.Handle());
  ::SendMessageW(Hwnd(), WM_SETICON, ICON_BIG, icon);
  ::SendMessageW(Hwnd(), WM_SETICON, ICON_SMALL, icon);
  ::SetWindowTextW(Hwnd(), platform::Wide(context_.Text(IDS_PRODUCT_NAME) + " - " +
                                          context_.Text(IDS_PRODUCT_TAGLINE))
                               .c_str());
  SetLabelTips();

  ShowDefaultFolderIcon();
  ShowApplyButton(false);
  skin_->SetPicture(SkinForDpi(context_.pictures.Bitmap(IDB_SKIN), Dpi()));
  skin_->SetPicture(skin_->Image());

  KeepTexts();
  DescribeElements();
  recent_.Load();
  FillRecentBox();
  SetIconSpacing();
  toolkit::DoEvents();
}

void MainWindow::FinishPair(const std::string& name, const TwipsRect* frontSize) {
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

void MainWindow::LayOutLabelPairs() {
  toolkit::Label& current = PairLabel(names::kCurrentIconLabel, 0);
  current.SetCaption(context_.Text(IDS_CURRENT_ICON_LABEL) + "\r\n" + context_.targetFolder);
  const TwipsRect picture = DesignPosition(*currentIcon_);
  const int listLeft = DesignPosition(*iconList_).left;
  current.Move({picture.left + picture.width + kLabelGapTwips, picture.top,
                std::abs(current.Position().left - listLeft) - picture.left + kLabelGapTwips,
                picture.height});
  FinishPair(names::kCurrentIconLabel, nullptr);

  // The next two stand beside their pictures, aligned with the first.
  const struct {
    const char* label;
    int caption;
    const toolkit::PictureBox* picture;
  } beside[] = {{names::kNewIconLabel, IDS_NEW_ICON_LABEL, newIcon_},
                {names::kDefaultIconLabel, IDS_DEFAULT_ICON_LABEL, defaultIcon_}};
  for (const auto& pair : beside) {
    toolkit::Label& label = PairLabel(pair.label, 0);
    label.SetCaption(context_.Text(pair.caption));
    const TwipsRect place = DesignPosition(*pair.picture);
    label.Move({current.Position().left, place.top, current.Position().width, place.height});
    FinishPair(pair.label, nullptr);
  }

  PairLabel(names::kInfoTipLabel, 0).SetCaption(context_.Text(IDS_INFOTIP_LABEL));
  const TwipsRect currentSize = current.Position();
  FinishPair(names::kInfoTipLabel, &currentSize);
  PairLabel(names::kRecentLabel, 0).SetCaption(context_.Text(IDS_RECENT_LABEL));
  FinishPair(names::kRecentLabel, nullptr);
}

void MainWindow::SetToolTips() {
  toolkit::ToolTips& tips = Tips();
  tips.SetTip(currentIcon_->Hwnd(), context_.Text(IDS_TIP_CURRENT_ICON));
  tips.SetTip(newIcon_->Hwnd(), context_.Text(IDS_TIP_NEW_ICON));
  tips.SetTip(defaultIcon_->Hwnd(), context_.Text(IDS_TIP_DEFAULT_ICON));
  tips.SetTip(recentBox_->Hwnd(), context_.Text(IDS_TIP_RECENT));
  tips.SetTip(iconList_->Hwnd(), context_.Text(IDS_TIP_ICON_LIST));
  tips.SetTip(browseFace_->Hwnd(), context_.Text(IDS_TIP_BROWSE));
}

// Labels have no windows: their tips are areas of the form, in pixels.
void MainWindow::SetLabelTips() {
  const std::string aboutTip = context_.Text(IDS_TIP_ABOUT);
  Tips().SetTip(kDragStripTipId, dragStrip_->Bounds(), aboutTip);
  Tips().SetTip(kHelpTipId, helpLink_->Bounds(), aboutTip);
  // The label has room for the start of a long path only; its tip holds all of it.
  Tips().SetTip(kFolderTipId, PairLabel(names::kCurrentIconLabel, 1).Bounds(),
                context_.targetFolder);
}

void MainWindow::KeepTexts() {
  applyCaption_ = context_.Text(IDS_APPLY_BUTTON);
  loadingText_ = context_.Text(IDS_STATUS_LOADING);
  fewIconsText_ = context_.Text(IDS_STATUS_FEW_ICONS);
  iconCountText_ = context_.Text(IDS_STATUS_ICON_COUNT);
}

void MainWindow::FillRecentBox() {
  recentBox_->Clear();
  for (const std::string& entry : recent_.List()) recentBox_->AddItem(entry);
}

void MainWindow::OnQueryUnload(std::int16_t& cancel, toolkit::UnloadMode) {
  if (browsing_) cancel = kRefuseClose;
}

void MainWindow::OnUnload() {
  ZoomWindow(*this, true, context_.startRect);
  RemoveProgramFont(context_.programFolder);
  iconImages_->Clear();
  for (toolkit::PictureBox* surface : {currentIcon_, newIcon_, scratch_, statusStrip_, browseFace_,
                                       defaultIcon_, applyFace_, exitFace_}) {
    surface->SetPicture({});
  }
  iconList_->SetIcons(nullptr);
  iconList_->SetSmallIcons(nullptr);
  // Destroying an owner destroys what it owns; this window goes when the
  // program ends.
  SetOwner(nullptr);
  shadow_.Unload();
  about_.Unload();
  if (onClosed_) onClosed_();
}

}  // namespace ui
