#include "ui/SkinnedButton.h"

#include "ui/modDrawBorder.h"

namespace ui {
namespace {
constexpr int kFrameThickness = 1;
constexpr int kFrameDistance = 0;
constexpr int kRaised = 0;
constexpr int kSunken = 1;
}  // namespace

SkinnedButton::SkinnedButton(toolkit::PictureBox& face, Behaviour behaviour)
    : face_(face), behaviour_(std::move(behaviour)) {
  face_.mouse.onMouseMove = [this](const toolkit::MouseEvent&) {
    if (hoverShown_) return;
    hoverShown_ = true;
    DrawBorder(face_, kFrameThickness, kFrameDistance, kRaised, true);
  };
  face_.mouse.onMouseDown = [this](const toolkit::MouseEvent&) {
    DrawBorder(face_, kFrameThickness, kFrameDistance, kSunken, true);
    if (behaviour_.onPress) behaviour_.onPress();
  };
  if (behaviour_.raiseOnRelease) {
    face_.mouse.onMouseUp = [this](const toolkit::MouseEvent&) {
      DrawBorder(face_, kFrameThickness, kFrameDistance, kRaised, true);
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
