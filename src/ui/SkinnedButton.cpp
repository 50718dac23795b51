#include "ui/SkinnedButton.h"

#include "ui/Drawing.h"

namespace ui {
namespace {
constexpr int kFrameThickness = 1;
constexpr int kFrameDistance = 0;
}  // namespace

SkinnedButton::SkinnedButton(toolkit::PictureBox& face, Behaviour behaviour)
    : face_(face), behaviour_(std::move(behaviour)) {
  face_.mouse.onMouseMove = [this](const toolkit::MouseEvent&) {
    if (hoverShown_) return;
    hoverShown_ = true;
    DrawBevel(face_, kFrameThickness, kFrameDistance, Bevel::kRaised, true);
  };
  face_.mouse.onMouseDown = [this](const toolkit::MouseEvent&) {
    DrawBevel(face_, kFrameThickness, kFrameDistance, Bevel::kSunken, true);
    // The press's action may keep the program busy for a while (opening a
    // web page takes most of a second): the frame shows first.
    if (behaviour_.onPress) {
      face_.Refresh();
      behaviour_.onPress();
    }
  };
  if (behaviour_.raiseOnRelease) {
    face_.mouse.onMouseUp = [this](const toolkit::MouseEvent&) {
      DrawBevel(face_, kFrameThickness, kFrameDistance, Bevel::kRaised, true);
    };
  }
  face_.mouse.onClick = [this] {
    if (behaviour_.onClick) behaviour_.onClick();
  };
}

void SkinnedButton::ResetFace(const toolkit::PictureBox& skin) {
  face_.SetPicture(skin.Image());
}

}  // namespace ui
