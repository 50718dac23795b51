// A picture surface that works as a button: its face is a piece of the
// window's skin with a caption, and it shows its state only by a one-pixel
// frame: raised while the mouse is over it, sunken while pressed. The frame
// goes when the window repaints all its faces (its Tile).
#pragma once

#include <functional>

#include "toolkit/PictureBox.h"

namespace ui {

class SkinnedButton {
 public:
  struct Behaviour {
    // About-window buttons rise again when the mouse button is released;
    // main-window buttons stay sunken until the next Tile.
    bool raiseOnRelease = false;
    // Runs on the press of any mouse button, after the sunken frame.
    std::function<void()> onPress;
    // Runs on a click of the left button.
    std::function<void()> onClick;
  };

  SkinnedButton(toolkit::PictureBox& face, Behaviour behaviour);

  toolkit::PictureBox& Face() const { return face_; }
  bool HoverShown() const { return hoverShown_; }
  void ClearHover() { hoverShown_ = false; }
  // Gives the face a copy of the skin surface's current image, which also
  // erases any frame and caption.
  void ResetFace(const toolkit::PictureBox& skin);

 private:
  toolkit::PictureBox& face_;
  Behaviour behaviour_;
  bool hoverShown_ = false;
};

}  // namespace ui
