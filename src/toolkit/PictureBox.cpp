#include "toolkit/PictureBox.h"

#include <windowsx.h>

#include <cstring>

#include "platform/Utf8.h"

namespace toolkit {
namespace {

constexpr char kPictureBoxClass[] = "MorvanePictureBox";

// A top-down 32-bit DIB section, so that callers can read its pixels.
HBITMAP CreateImageBitmap(int width, int height, void** bits) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, bits, nullptr, 0);
}

std::size_t ImageBytes(int width, int height) {
  return static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * sizeof(RGBQUAD);
}

}  // namespace

bool PictureSize(const platform::Picture& picture, SIZE& size) {
  HANDLE handle = picture.Handle();
  if (!handle) return false;
  if (picture.Type() == PICTYPE_ICON) {
    ICONINFO info{};
    if (!::GetIconInfo(static_cast<HICON>(handle), &info)) return false;
    BITMAP mask{};
    ::GetObjectW(info.hbmMask, sizeof mask, &mask);
    size = {mask.bmWidth, info.hbmColor ? mask.bmHeight : mask.bmHeight / 2};
    if (info.hbmColor) ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return true;
  }
  BITMAP bitmap{};
  if (!::GetObjectW(handle, sizeof bitmap, &bitmap)) return false;
  size = {bitmap.bmWidth, bitmap.bmHeight};
  return true;
}

namespace {

void DrawPicture(HDC dc, const platform::Picture& picture) {
  HANDLE handle = picture.Handle();
  if (!handle) return;
  if (picture.Type() == PICTYPE_ICON) {
    ::DrawIconEx(dc, 0, 0, static_cast<HICON>(handle), 0, 0, 0, nullptr, DI_NORMAL);
    return;
  }
  BITMAP info{};
  if (!::GetObjectW(handle, sizeof info, &info)) return;
  platform::ScopedMemoryDC source(::CreateCompatibleDC(dc));
  platform::ScopedSelect select(source.get(), handle);
  ::BitBlt(dc, 0, 0, info.bmWidth, info.bmHeight, source.get(), 0, 0, SRCCOPY);
}

}  // namespace

PictureBox::PictureBox(std::string name, HWND parent, const RECT& pixels, int id)
    : Element(std::move(name), "PictureBox"),
      width_(pixels.right - pixels.left),
      height_(pixels.bottom - pixels.top),
      backColor_(::GetSysColor(COLOR_BTNFACE)),
      foreColor_(::GetSysColor(COLOR_BTNTEXT)) {
  RegisterWindowClass(kPictureBoxClass, {CS_DBLCLKS | CS_OWNDC, nullptr});
  imageDC_.reset(::CreateCompatibleDC(nullptr));
  PrepareDC(imageDC_.get());
  MakeImage();
  CreateWindowOf(kPictureBoxClass, Name(), WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0, pixels,
                 parent, id);
  if (Hwnd()) PrepareDC(::GetDC(Hwnd()));  // CS_OWNDC: the window keeps this DC
  AttachWindow(Hwnd());
}

PictureBox::~PictureBox() {
  DestroyOwnWindow();
  // The image goes back out of its context before either is deleted.
  if (imageDCOriginal_) ::SelectObject(imageDC_.get(), imageDCOriginal_);
}

HDC PictureBox::hDC() const {
  if (autoRedraw_ || !Hwnd()) return imageDC_.get();
  return ::GetDC(Hwnd());  // CS_OWNDC: no release needed
}

void PictureBox::PrepareDC(HDC dc) const {
  if (!dc) return;
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, foreColor_);
  if (Font()) ::SelectObject(dc, Font());
}

void PictureBox::OnFontChanged() {
  PrepareDC(imageDC_.get());
  if (Hwnd()) PrepareDC(::GetDC(Hwnd()));
}

void PictureBox::SetForeColor(COLORREF colour) {
  foreColor_ = colour;
  OnFontChanged();
}

void PictureBox::SetBackColor(COLORREF colour) {
  backColor_ = colour;
  Cls();
}

void PictureBox::PaintBackground(HDC dc) const {
  RECT all{0, 0, width_, height_};
  platform::ScopedBrush brush(::CreateSolidBrush(backColor_));
  ::FillRect(dc, &all, brush.get());
  DrawPicture(dc, picture_);
}

void PictureBox::Cls() {
  PaintBackground(imageDC_.get());
  RequestRepaint();
}

// Each request is a trip to the Wine server, and a loop that draws for
// every icon it loads makes thousands. One request stands until the paint
// comes, and a hidden surface needs none: showing it repaints it whole.
void PictureBox::RequestRepaint() const {
  if (!Hwnd() || repaintRequested_ || !::IsWindowVisible(Hwnd())) return;
  ::InvalidateRect(Hwnd(), nullptr, FALSE);
  repaintRequested_ = true;
}

void PictureBox::MakeImage() {
  platform::ScopedBitmap fresh(
      CreateImageBitmap(width_ > 0 ? width_ : 1, height_ > 0 ? height_ : 1, &imageBits_));
  HGDIOBJ previous = ::SelectObject(imageDC_.get(), fresh.get());
  if (!imageDCOriginal_) imageDCOriginal_ = previous;
  image_ = std::move(fresh);
  Cls();
}

void PictureBox::Resize(int width, int height) {
  width_ = width;
  height_ = height;
  if (Hwnd()) {
    ::SetWindowPos(Hwnd(), nullptr, 0, 0, width, height,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  MakeImage();
}

void PictureBox::Place(const RECT& pixels) {
  if (Hwnd()) {
    ::SetWindowPos(Hwnd(), nullptr, pixels.left, pixels.top, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  Resize(pixels.right - pixels.left, pixels.bottom - pixels.top);
}

void PictureBox::SetPicture(platform::Picture picture) {
  picture_ = std::move(picture);
  SIZE size{};
  if (autoSize_ && PictureSize(picture_, size)) {
    width_ = size.cx;
    height_ = size.cy;
    Resize(size.cx, size.cy);
    return;
  }
  Cls();
}

platform::Picture PictureBox::Image() const {
  void* bits = nullptr;
  HBITMAP copy = CreateImageBitmap(width_, height_, &bits);
  if (!copy) return {};
  // Both are top-down 32-bit images of the same size: a plain copy of the
  // pixels saves the device contexts a blit needs, once per loaded icon.
  if (imageBits_ && width_ > 0 && height_ > 0) {
    ::GdiFlush();
    std::memcpy(bits, imageBits_, ImageBytes(width_, height_));
  }
  return platform::Picture::Adopt(platform::Picture::Kind::Bitmap, copy);
}

void PictureBox::Drawn() const {
  if (autoRedraw_) RequestRepaint();
}

void PictureBox::Refresh() {
  RequestRepaint();
  if (repaintRequested_) ::UpdateWindow(Hwnd());
}

void PictureBox::SetVisible(bool visible) {
  if (Hwnd()) ::ShowWindow(Hwnd(), visible ? SW_SHOWNA : SW_HIDE);
}

bool PictureBox::Visible() const {
  return Hwnd() && ::IsWindowVisible(Hwnd());
}

void PictureBox::OnPaint() {
  repaintRequested_ = false;
  PAINTSTRUCT paint;
  HDC dc = ::BeginPaint(Hwnd(), &paint);
  if (autoRedraw_) {
    ::BitBlt(dc, 0, 0, width_, height_, imageDC_.get(), 0, 0, SRCCOPY);
  } else {
    PaintBackground(dc);
  }
  if (onPaintOver) onPaintOver(dc);
  ::EndPaint(Hwnd(), &paint);
  if (!autoRedraw_ && onPaint) onPaint();
}

void PictureBox::SetTabStop(bool on) {
  if (!Hwnd()) return;
  LONG_PTR style = ::GetWindowLongPtrW(Hwnd(), GWL_STYLE) & ~static_cast<LONG_PTR>(WS_TABSTOP);
  ::SetWindowLongPtrW(Hwnd(), GWL_STYLE, style | (on ? WS_TABSTOP : 0));
}

// A surface whose text is what it shows (the status strip) tells screen
// readers of a new text; the same text set again is no news.
LRESULT PictureBox::OnSetText(WPARAM wParam, LPARAM lParam) {
  const auto* text = reinterpret_cast<const wchar_t*>(lParam);
  const std::string old = WindowText(Hwnd());
  const LRESULT result = Default(WM_SETTEXT, wParam, lParam);
  if (text && old != platform::Utf8(text)) AnnounceChange(Hwnd(), EVENT_OBJECT_NAMECHANGE);
  return result;
}

void PictureBox::OnMouseMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (message == WM_LBUTTONDOWN) ::SetCapture(Hwnd());
  if (message == WM_LBUTTONUP && ::GetCapture() == Hwnd()) ::ReleaseCapture();
  RECT client{0, 0, width_, height_};
  RaiseMouseEvent(mouse, message, {ButtonOf(message, wParam), at.x, at.y}, pressed_,
                  ::PtInRect(&client, at) != FALSE);
}

LRESULT PictureBox::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == DefaultActionMessage()) {
    DoDefaultAction();
    return 0;
  }
  switch (message) {
    case WM_PAINT: OnPaint(); return 0;
    case WM_ERASEBKGND: return 1;
    case WM_SETTEXT: return OnSetText(wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      if (onFocus) onFocus(message == WM_SETFOCUS);
      return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
      if (onKey) onKey(message, wParam, lParam);
      return 0;
    case WM_GETOBJECT:
      if (LRESULT object = AccessibleObject(wParam, lParam)) return object;
      return Default(message, wParam, lParam);
    default:
      if (IsMouseMessage(message)) {
        OnMouseMessage(message, wParam, lParam);
        return 0;
      }
      return Default(message, wParam, lParam);
  }
}

bool DrawIconInPicture(HICON icon, PictureBox& surface, int x, int y) {
  const bool wasPersistent = surface.AutoRedraw();
  surface.SetAutoRedraw(true);
  // At the icon's own size: DrawIcon would make it the system's large size,
  // which a window on a monitor of another DPI does not use.
  const bool drawn = ::DrawIconEx(surface.hDC(), x, y, icon, 0, 0, 0, nullptr, DI_NORMAL) != FALSE;
  if (drawn) surface.Refresh();
  surface.SetAutoRedraw(wasPersistent);
  return drawn;
}

}  // namespace toolkit
