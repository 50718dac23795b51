// A picture surface that works as a button: its face is a piece of the
// window's skin with a caption, and it shows its state only by a one-pixel
// frame: raised while the mouse is over it, sunken while pressed. The frame
// goes when the window repaints all its faces (its Tile). Tab reaches it;
// with the keyboard focus it shows a dotted frame in its caption's colour,
// and Enter and Space press it as the left mouse button does.
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
  // A whole press and release, as an access key gives: what a left click
  // gives, frames included. A hidden or disabled button does nothing.
  void Press();

 private:
  void PressDown();
  void Release();
  void OnKey(UINT message, WPARAM key, LPARAM flags);
  void DrawFocusFrame(HDC dc) const;

  toolkit::PictureBox& face_;
  Behaviour behaviour_;
  bool hoverShown_ = false;
  bool focused_ = false;
  // A key press that began on this button; a release without one (the end
  // of a key that answered a message box) is no click.
  bool keyHeld_ = false;
};

}  // namespace ui
