// How the main window looks: its painting and the normal-state repaint of
// its buttons and status strip.
#include "platform/Dpi.h"
#include "resource_ids.h"
#include "ui/Drawing.h"
#include "ui/MainWindow.h"
#include "ui/WindowShape.h"

namespace ui {
namespace {

constexpr POINT kLogoAt{50, 5};
constexpr float kEtchedLineTop = 42;
constexpr float kEtchedLineLength = 300;

}  // namespace

void MainWindow::Tile() {
  // Without its window (none could be made) there are no faces to paint.
  if (browser_.Loading() || !Loaded()) return;
  for (SkinnedButton* button : {browseButton_.get(), applyButton_.get(), exitButton_.get()}) {
    button->ClearHover();
    button->ResetFace(*skin_);
  }
  statusStrip_->SetPicture(skin_->GetPicture());

  DrawCaption(*applyFace_, applyCaption_);
  DrawCaption(*exitFace_, context_.Text(IDS_EXIT_BUTTON));
  DrawCaption(*browseFace_, context_.Text(IDS_BROWSE_BUTTON));
  DrawCaption(*statusStrip_, core::StatusText(iconList_->Count(), iconCountText_, fewIconsText_));
}

void MainWindow::OnPaint(HDC) {
  PaintSkin(*this, context_.pictures.Bitmap(IDB_SKIN), context_.pictures.Bitmap(LogoForDpi(Dpi())),
            *scratch_, kEtchedLineTop, kEtchedLineLength, kLogoAt);
  // The scratch surface lent itself to the logo; icons are rendered on it.
  const int iconSize = platform::LargeIconSize(Dpi());
  scratch_->Resize(iconSize, iconSize);

  for (toolkit::Element* framed : std::initializer_list<toolkit::Element*>{
           newIcon_, currentIcon_, defaultIcon_, infoTipBox_, recentBox_, iconList_}) {
    DrawBevel(*framed, 1, 0, Bevel::kRaised, false);
  }
  DrawBevel(*statusStrip_, 1, 0, Bevel::kSunken, false);
}

void MainWindow::OnMouseDown(const toolkit::MouseEvent&) {
  DragWindow(*this);
}

void MainWindow::OnMouseMove(const toolkit::MouseEvent&) {
  Tile();
}

// The elements stand at their places for the new DPI; what is sized in
// pixels follows: the shape, the skin, and every icon, extracted again at
// the size the new DPI calls for.
void MainWindow::OnDpiChanged() {
  ApplyWindowShape(*this);
  SetLabelTips();
  skin_->SetPicture(SkinForDpi(context_.pictures.Bitmap(IDB_SKIN), Dpi()));
  skin_->SetPicture(skin_->Image());
  const int iconSize = platform::LargeIconSize(Dpi());
  iconImages_->SetImageSize(iconSize, iconSize);
  const int selected = iconList_->SelectedIndex();
  ShowDefaultFolderIcon();
  SetIconSpacing();
  LoadIcons();
  if (selected > 0) SelectIcon(selected);
  Tile();
}

// Whatever brought the window forward, a window manager or the system, may
// have left the shadow behind other windows.
void MainWindow::OnActivate() {
  shadow_.StandBeneath();
}

}  // namespace ui
