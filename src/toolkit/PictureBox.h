// A picture surface: a child window that shows a picture over its back
// colour, and keeps a persistent image (a 32-bit DIB) that drawing goes into
// while persistent drawing (AutoRedraw) is on. The window repaints itself
// from the persistent image then; otherwise drawing goes straight to the
// screen and is lost at the next repaint.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "platform/Picture.h"
#include "platform/ScopedHandle.h"
#include "toolkit/Canvas.h"
#include "toolkit/Element.h"
#include "toolkit/MouseEvents.h"
#include "toolkit/WindowBase.h"

namespace toolkit {

// The size of a picture in pixels; false for no picture.
bool PictureSize(const platform::Picture& picture, SIZE& size);

class PictureBox : public Element, public Canvas, private WindowBase {
 public:
  // `pixels`: position and size in the parent's client area.
  PictureBox(std::string name, HWND parent, const RECT& pixels, int id);
  ~PictureBox() override;

  using WindowBase::Hwnd;

  int ScaleWidth() const { return width_; }  // inner size, pixels
  int ScaleHeight() const { return height_; }

  bool AutoRedraw() const { return autoRedraw_; }
  void SetAutoRedraw(bool on) { autoRedraw_ = on; }

  // Where drawing goes now: the persistent image while AutoRedraw is on,
  // else the window itself.
  HDC hDC() const override;

  // Picture surfaces measure in pixels unless told otherwise.
  ScaleMode Scale() const override { return scaleMode_; }
  void SetScaleMode(ScaleMode mode) override { scaleMode_ = mode; }
  int DrawWidth() const override { return drawWidth_; }
  void SetDrawWidth(int pixels) override { drawWidth_ = pixels; }
  int DrawingDpi() const override { return Dpi(); }

  // Shows what should be seen now, synchronously.
  void Refresh();
  // Erases everything drawn: the persistent image becomes back colour and
  // picture again.
  void Cls();

  const platform::Picture& GetPicture() const { return picture_; }
  // A new picture erases everything drawn on the surface.
  void SetPicture(platform::Picture picture);
  // A copy of the persistent image as a new bitmap picture.
  platform::Picture Image() const;

  COLORREF BackColor() const { return backColor_; }
  void SetBackColor(COLORREF colour);
  COLORREF ForeColor() const { return foreColor_; }
  void SetForeColor(COLORREF colour);

  // With AutoSize the surface takes the size of each picture given to it.
  bool AutoSize() const { return autoSize_; }
  void SetAutoSize(bool on) { autoSize_ = on; }
  // New inner size in pixels; the persistent image starts afresh.
  void Resize(int width, int height);
  void Place(const RECT& pixels) override;

  void SetVisible(bool visible);
  bool Visible() const;
  // Whether Tab reaches the surface.
  void SetTabStop(bool on);

  // The keyboard focus came (true) or went.
  std::function<void(bool focused)> onFocus;
  // WM_KEYDOWN and WM_KEYUP while the surface has the focus.
  std::function<void(UINT message, WPARAM key, LPARAM flags)> onKey;
  // Draws over every repaint, leaving the persistent image as it is.
  std::function<void(HDC dc)> onPaintOver;

  // Raised when the window is repainted without AutoRedraw, after the back
  // colour and the picture.
  std::function<void()> onPaint;
  // Event positions are pixels relative to the surface.
  MouseHandlers mouse;

 private:
  LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnFontChanged() override;
  void OnPaint();
  void OnMouseMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
  void Drawn() const override;
  void PaintBackground(HDC dc) const;
  void PrepareDC(HDC dc) const;
  void MakeImage();
  void RequestRepaint() const;

  int width_;
  int height_;
  bool autoRedraw_ = false;
  bool autoSize_ = false;
  ScaleMode scaleMode_ = ScaleMode::kPixels;
  int drawWidth_ = 1;
  COLORREF backColor_;
  COLORREF foreColor_;
  platform::Picture picture_;
  platform::ScopedMemoryDC imageDC_;
  platform::ScopedBitmap image_;
  void* imageBits_ = nullptr;  // the pixels of image_
  HGDIOBJ imageDCOriginal_ = nullptr;
  MouseHandlers* pressed_ = nullptr;
  // A repaint was asked for and the paint has not come yet.
  mutable bool repaintRequested_ = false;
};

// Draws `icon` at its own size with its top-left corner at (x, y), into the
// surface's persistent image; transparent parts of the icon leave the
// surface's pixels as they were. True when drawn. The surface's AutoRedraw
// switch is the same afterwards, whatever happened.
bool DrawIconInPicture(HICON icon, PictureBox& surface, int x, int y);

}  // namespace toolkit
