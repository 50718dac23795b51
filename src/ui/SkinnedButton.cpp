#include "ui/SkinnedButton.h"

#include "platform/ScopedHandle.h"
#include "ui/Drawing.h"

namespace ui {
namespace {
constexpr int kFrameThickness = 1;
constexpr int kFrameDistance = 0;
// The focus frame stands this far inside the face's edge, clear of the
// one-pixel raised and sunken frames.
constexpr int kFocusInset = 3;
// The key was already down: a repeat while it is held.
constexpr LPARAM kRepeatFlag = LPARAM{1} << 30;
}  // namespace

SkinnedButton::SkinnedButton(toolkit::PictureBox& face, Behaviour behaviour)
    : face_(face), behaviour_(std::move(behaviour)) {
  face_.mouse.onMouseMove = [this](const toolkit::MouseEvent&) {
    if (hoverShown_) return;
    hoverShown_ = true;
    DrawBevel(face_, kFrameThickness, kFrameDistance, Bevel::kRaised, true);
  };
  face_.mouse.onMouseDown = [this](const toolkit::MouseEvent&) { PressDown(); };
  if (behaviour_.raiseOnRelease) {
    face_.mouse.onMouseUp = [this](const toolkit::MouseEvent&) {
      DrawBevel(face_, kFrameThickness, kFrameDistance, Bevel::kRaised, true);
    };
  }
  face_.mouse.onClick = [this] {
    if (behaviour_.onClick) behaviour_.onClick();
  };
  face_.SetTabStop(true);
  face_.onFocus = [this](bool focused) {
    focused_ = focused;
    keyHeld_ = false;
    face_.Refresh();
  };
  face_.onKey = [this](UINT message, WPARAM key, LPARAM flags) { OnKey(message, key, flags); };
  face_.onPaintOver = [this](HDC dc) { DrawFocusFrame(dc); };
}

void SkinnedButton::ResetFace(const toolkit::PictureBox& skin) {
  face_.SetPicture(skin.Image());
}

void SkinnedButton::PressDown() {
  DrawBevel(face_, kFrameThickness, kFrameDistance, Bevel::kSunken, true);
  // The press's action may keep the program busy for a while (opening a
  // web page takes most of a second): the frame shows first.
  if (behaviour_.onPress) {
    face_.Refresh();
    behaviour_.onPress();
  }
}

void SkinnedButton::Release() {
  if (behaviour_.raiseOnRelease) {
    DrawBevel(face_, kFrameThickness, kFrameDistance, Bevel::kRaised, true);
  }
  if (behaviour_.onClick) behaviour_.onClick();
}

void SkinnedButton::Press() {
  if (!face_.Visible() || !::IsWindowEnabled(face_.Hwnd())) return;
  PressDown();
  face_.Refresh();
  Release();
}

void SkinnedButton::OnKey(UINT message, WPARAM key, LPARAM flags) {
  if (key != VK_RETURN && key != VK_SPACE) return;
  if (message == WM_KEYDOWN && !(flags & kRepeatFlag)) {
    keyHeld_ = true;
    PressDown();
  } else if (message == WM_KEYUP && keyHeld_) {
    keyHeld_ = false;
    Release();
  }
}

void SkinnedButton::DrawFocusFrame(HDC dc) const {
  if (!focused_) return;
  platform::ScopedPen pen(::CreatePen(PS_DOT, 1, face_.ForeColor()));
  platform::ScopedSelect usePen(dc, pen.get());
  platform::ScopedSelect noFill(dc, ::GetStockObject(NULL_BRUSH));
  const int previousMode = ::SetBkMode(dc, TRANSPARENT);
  ::Rectangle(dc, kFocusInset, kFocusInset, face_.ScaleWidth() - kFocusInset,
              face_.ScaleHeight() - kFocusInset);
  ::SetBkMode(dc, previousMode);
}

}  // namespace ui
