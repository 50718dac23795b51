#include "toolkit/Form.h"

#include <commctrl.h>
#include <windowsx.h>

#include "platform/Dpi.h"
#include "toolkit/MessageLoop.h"
#include "toolkit/Screen.h"

namespace toolkit {
namespace {

constexpr char kFormClass[] = "MorvaneForm";
// The context bit of a key message: Alt was held.
constexpr LPARAM kAltHeld = LPARAM{1} << 29;

bool Contains(const RECT& area, POINT point) {
  return ::PtInRect(&area, point) != FALSE;
}

// Asking again is harmless: the classes are registered once per process.
void RegisterCommonControlClasses() {
  INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX),
                               ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
  ::InitCommonControlsEx(&classes);
}

}  // namespace

Form::Form(std::string name, int clientWidthTwips, int clientHeightTwips)
    : Element(std::move(name), "Form"),
      widthTwips_(clientWidthTwips),
      heightTwips_(clientHeightTwips) {
  RegisterCommonControlClasses();
  RegisterWindowClass(kFormClass, {CS_DBLCLKS | CS_OWNDC, nullptr});
  formMouse_.onMouseDown = [this](const MouseEvent& e) { OnMouseDown(e); };
  formMouse_.onMouseMove = [this](const MouseEvent& e) { OnMouseMove(e); };
  formMouse_.onMouseUp = [this](const MouseEvent& e) { OnMouseUp(e); };
  formMouse_.onClick = [this] { OnClick(); };
  formMouse_.onDblClick = [this] { OnDblClick(); };
}

Form::~Form() {
  DestroyElements();
  DestroyOwnWindow();
}

void Form::Load() {
  if (Loaded()) return;
  SetDpi(Screen::Dpi());
  RECT pixels = ToPixels({0, 0, widthTwips_, heightTwips_});
  if (!CreateWindowOf(kFormClass, Name(), WS_POPUP | WS_CLIPCHILDREN, ExtendedStyle(), pixels,
                      nullptr, 0)) {
    return;
  }
  AttachWindow(Hwnd());
  // Made where the system's DPI holds, the window may stand on a monitor of
  // another.
  if (platform::WindowDpi(Hwnd()) != Dpi()) {
    SetDpi(platform::WindowDpi(Hwnd()));
    Resize(widthTwips_, heightTwips_);
  }
  CreateElements();
  for (const Timer& timer : timers_) ::SetTimer(Hwnd(), timer.id, timer.interval, nullptr);
  OnLoad();
}

// Shown while another form stands in front, it waits to become active until
// that rule lifts: under Wine, becoming active raises it over the front form.
void Form::Show() {
  Load();
  if (!Loaded()) return;
  const bool activate = ActivatesOnShow() && !(front_ && front_->Visible());
  ::ShowWindow(Hwnd(), activate ? SW_SHOW : SW_SHOWNA);
}

void Form::StayBehind(const Form* front) {
  const bool lifted = front_ && !front;
  front_ = front;
  if (lifted && Visible() && ActivatesOnShow()) ::SetForegroundWindow(Hwnd());
}

void Form::SetOwner(const Form* owner) {
  if (!Loaded()) return;
  HWND ownerWindow = owner ? owner->Hwnd() : nullptr;
  ::SetWindowLongPtrW(Hwnd(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(ownerWindow));
  // The system keeps an owned window above its owner only once it stands
  // there: a new owner made later than this form would otherwise cover it.
  if (owner) ::SetWindowPos(Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Form::Hide() {
  if (Loaded()) ::ShowWindow(Hwnd(), SW_HIDE);
}

bool Form::Visible() const {
  return Loaded() && ::IsWindowVisible(Hwnd());
}

void Form::ShowModal() {
  Load();
  if (!Loaded()) return;
  // The other windows of the program wait until this one is done.
  std::vector<HWND> disabled;
  ::EnumThreadWindows(
      ::GetCurrentThreadId(),
      [](HWND window, LPARAM data) -> BOOL {
        if (::IsWindowVisible(window) && ::IsWindowEnabled(window)) {
          reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&disabled));
  for (HWND window : disabled) ::EnableWindow(window, FALSE);
  HWND previouslyActive = ::GetActiveWindow();
  Show();

  MSG message;
  while (Visible()) {
    BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0) {
      if (got == 0) ::PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    Dispatch(message);
  }
  for (HWND window : disabled) {
    if (::IsWindow(window)) ::EnableWindow(window, TRUE);
  }
  // As after a dialog, the keys go back to the window they left; the system
  // finds none to activate while they are all disabled.
  if (::IsWindow(previouslyActive) && ::IsWindowVisible(previouslyActive)) {
    ::SetForegroundWindow(previouslyActive);
  }
}

void Form::Unload(UnloadMode mode) {
  if (!Loaded() || closing_) return;
  std::int16_t cancel = 0;
  OnQueryUnload(cancel, mode);
  if (cancel != 0) return;
  closing_ = true;
  OnUnload();
  for (const Timer& timer : timers_) ::KillTimer(Hwnd(), timer.id);
  DestroyElements();
  DestroyOwnWindow();
  closing_ = false;
}

void Form::DestroyElements() {
  tips_.reset();
  controls_.clear();
  placed_.clear();
  labels_.clear();
  lines_.clear();
  timers_.clear();
  pressed_ = nullptr;
  elements_.clear();
}

int Form::Left() const {
  RECT outer{};
  if (Loaded()) ::GetWindowRect(Hwnd(), &outer);
  return Screen::PixelsToTwips(outer.left, Dpi());
}

int Form::Top() const {
  RECT outer{};
  if (Loaded()) ::GetWindowRect(Hwnd(), &outer);
  return Screen::PixelsToTwips(outer.top, Dpi());
}

void Form::Move(int left, int top) {
  if (!Loaded()) return;
  ::SetWindowPos(Hwnd(), nullptr, ToPixels(left), ToPixels(top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Form::Resize(int width, int height) {
  widthTwips_ = width;
  heightTwips_ = height;
  if (!Loaded()) return;
  ::SetWindowPos(Hwnd(), nullptr, 0, 0, ToPixels(width), ToPixels(height),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int Form::ScalePixels(int pixels) const {
  return platform::ScalePixels(pixels, Dpi());
}

int Form::ScaleX(int pixels) const {
  double per = UnitsPerPixelX();
  return per > 0 ? static_cast<int>(pixels * per) : pixels;
}

int Form::ScaleY(int pixels) const {
  double per = UnitsPerPixelY();
  return per > 0 ? static_cast<int>(pixels * per) : pixels;
}

void Form::SetBackColor(COLORREF colour) {
  backColor_ = colour;
  if (Loaded()) ::InvalidateRect(Hwnd(), nullptr, TRUE);
}

HDC Form::hDC() const {
  return Loaded() ? ::GetDC(Hwnd()) : nullptr;
}  // CS_OWNDC

ElementList Form::Elements() const {
  ElementList list;
  for (const auto& element : elements_) list.push_back(element.get());
  return list;
}

Element* Form::Find(const std::string& name, int index) const {
  for (const auto& element : elements_) {
    if (element->Name() != name) continue;
    auto* label = dynamic_cast<Label*>(element.get());
    if (!label || label->Index() == index) return element.get();
  }
  return nullptr;
}

template <typename T>
T& Form::Keep(std::unique_ptr<T> element) {
  T& kept = *element;
  kept.SetParent(this);
  kept.SetDpi(Dpi());
  elements_.push_back(std::move(element));
  return kept;
}

template <typename T>
T& Form::Place(std::unique_ptr<T> element, const TwipsRect& twips) {
  T& kept = Keep(std::move(element));
  placed_.emplace_back(&kept, twips);
  return kept;
}

Label& Form::AddLabel(const std::string& name, int index, const TwipsRect& twips) {
  Label& label = Keep(std::make_unique<Label>(name, index, twips));
  label.invalidate = [this](const RECT& pixels) { Invalidate(pixels); };
  labels_.push_back(&label);
  return label;
}

PictureBox& Form::AddPictureBox(const std::string& name, const TwipsRect& twips, int id) {
  return Place(std::make_unique<PictureBox>(name, Hwnd(), ToPixels(twips), id), twips);
}

Line& Form::AddLine(const std::string& name, POINT fromTwips, POINT toTwips) {
  Line& line = Keep(std::make_unique<Line>(name, fromTwips, toTwips));
  lines_.push_back(&line);
  return line;
}

TextBox& Form::AddTextBox(const std::string& name, const TwipsRect& twips, int id,
                          TextBox::Lines lines) {
  TextBox& box = Place(std::make_unique<TextBox>(name, Hwnd(), ToPixels(twips), id, lines), twips);
  controls_.push_back(&box);
  return box;
}

ComboBox& Form::AddComboBox(const std::string& name, const TwipsRect& twips, int id,
                            int dropLines) {
  ComboBox& box =
      Place(std::make_unique<ComboBox>(name, Hwnd(), ToPixels(twips), id, dropLines), twips);
  controls_.push_back(&box);
  return box;
}

ListView& Form::AddListView(const std::string& name, const TwipsRect& twips, int id) {
  ListView& list = Place(std::make_unique<ListView>(name, Hwnd(), ToPixels(twips), id), twips);
  controls_.push_back(&list);
  return list;
}

ImageList& Form::AddImageList(const std::string& name, int width, int height) {
  return Keep(std::make_unique<ImageList>(name, width, height));
}

ToolTips& Form::Tips() {
  if (!tips_) tips_ = std::make_unique<ToolTips>(Hwnd());
  return *tips_;
}

Control* Form::ControlOf(HWND window) const {
  for (Control* control : controls_) {
    if (control->Hwnd() == window) return control;
  }
  return nullptr;
}

void Form::AddTimer(int id, UINT intervalMs, std::function<void()> onTick) {
  timers_.push_back({id, intervalMs, std::move(onTick)});
  if (Loaded()) ::SetTimer(Hwnd(), id, intervalMs, nullptr);
}

void Form::Invalidate(const RECT& pixels) const {
  if (Loaded()) ::InvalidateRect(Hwnd(), &pixels, TRUE);
}

Label* Form::LabelAt(POINT pixels) const {
  // The label drawn last is in front.
  for (auto it = labels_.rbegin(); it != labels_.rend(); ++it) {
    if ((*it)->Visible() && Contains((*it)->Bounds(), pixels)) return *it;
  }
  return nullptr;
}

void Form::OnPaintMessage() {
  PAINTSTRUCT paint;
  HDC dc = ::BeginPaint(Hwnd(), &paint);
  OnPaint(dc);
  for (const Line* line : lines_) {
    HPEN pen = ::CreatePen(PS_SOLID, 1, line->Colour());
    HGDIOBJ old = ::SelectObject(dc, pen);
    ::MoveToEx(dc, ToPixels(line->From().x), ToPixels(line->From().y), nullptr);
    ::LineTo(dc, ToPixels(line->To().x), ToPixels(line->To().y));
    ::SelectObject(dc, old);
    ::DeleteObject(pen);
  }
  for (const Label* label : labels_) label->Draw(dc);
  ::EndPaint(Hwnd(), &paint);
}

void Form::OnMouseMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  // Holding the mouse while a button is down lets a release outside count
  // as no click.
  if (message == WM_LBUTTONDOWN) ::SetCapture(Hwnd());
  if (message == WM_LBUTTONUP && ::GetCapture() == Hwnd()) ::ReleaseCapture();
  RECT client{};
  ::GetClientRect(Hwnd(), &client);
  const bool inside = Contains(client, at);
  const int button = ButtonOf(message, wParam);

  Label* label = inside ? LabelAt(at) : nullptr;
  if (label) {
    RECT bounds = label->Bounds();
    RaiseMouseEvent(label->mouse, message, {button, at.x - bounds.left, at.y - bounds.top},
                    pressed_, inside);
  } else {
    RaiseMouseEvent(formMouse_, message, {button, ScaleX(at.x), ScaleY(at.y)}, pressed_, inside);
  }
}

// The element that had the keyboard focus gets it back when the form is
// active again, after a message box for instance, as in a dialog. Without
// one the form itself takes the keys, as the default handling would have it:
// with no focus at all, Wine gives a window no keys.
void Form::OnActivateMessage(WORD state) {
  if (state == WA_INACTIVE) {
    HWND focus = ::GetFocus();
    if (focus && ::IsChild(Hwnd(), focus)) focusToRestore_ = focus;
    return;
  }
  if (focusToRestore_ && ::IsChild(Hwnd(), focusToRestore_)) {
    ::SetFocus(focusToRestore_);
  } else if (!::GetFocus()) {
    ::SetFocus(Hwnd());
  }
  OnActivate();
}

void Form::OnDpiChangedMessage(int dpi, const RECT& suggested) {
  SetDpi(dpi);
  for (const auto& element : elements_) element->SetDpi(dpi);
  for (const auto& [element, twips] : placed_) element->Place(ToPixels(twips));
  ::SetWindowPos(Hwnd(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
  OnDpiChanged();
  ::InvalidateRect(Hwnd(), nullptr, TRUE);
}

// An open drop-down list keeps every key: Esc and Enter close it.
bool Form::PreviewKey(const MSG& key) {
  auto* box = dynamic_cast<ComboBox*>(ControlOf(::GetFocus()));
  if (box && box->DroppedDown()) return false;
  const bool alt = (key.lParam & kAltHeld) != 0;
  if (key.message == WM_SYSCHAR) return alt && OnAccessKey(static_cast<wchar_t>(key.wParam));
  if (key.message != WM_KEYDOWN && key.message != WM_SYSKEYDOWN) return false;
  if (alt || ::GetKeyState(VK_CONTROL) < 0) return false;
  if (key.wParam == VK_TAB) {
    MoveFocus(::GetKeyState(VK_SHIFT) < 0);
    return true;
  }
  return OnKeyDown(static_cast<int>(key.wParam));
}

// Through the visible, enabled elements that take the focus, in the order
// they were made, which is the order they are read in. A text box reached
// this way has its text selected, as in a dialog.
void Form::MoveFocus(bool backwards) {
  HWND focus = ::GetFocus();
  // From outside the elements Wine finds no previous one: the last is the
  // one before the first.
  if (!focus || !::IsChild(Hwnd(), focus)) {
    focus = backwards ? ::GetNextDlgTabItem(Hwnd(), nullptr, FALSE) : nullptr;
  }
  HWND next = ::GetNextDlgTabItem(Hwnd(), focus, backwards);
  if (!next) return;
  ::SetFocus(next);
  if (::SendMessageW(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) {
    ::SendMessageW(next, EM_SETSEL, 0, -1);
  }
}

// The front form rises rather than this one sinking below it: Wine restacks
// the X windows only for the window that becomes the topmost one, and when X
// exposes a window that it still shows over the front form, Wine quietly
// brings that window back up over the front form.
void Form::KeepBehindFront() {
  if (!front_ || !front_->Visible()) return;
  for (HWND above = ::GetWindow(Hwnd(), GW_HWNDPREV); above;
       above = ::GetWindow(above, GW_HWNDPREV)) {
    if (above == front_->Hwnd()) return;
  }
  ::SetWindowPos(front_->Hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

LRESULT Form::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == KeyPreviewMessage()) return PreviewKey(*reinterpret_cast<const MSG*>(lParam));
  switch (message) {
    case WM_WINDOWPOSCHANGED:
      if (!(reinterpret_cast<WINDOWPOS*>(lParam)->flags & SWP_NOZORDER)) KeepBehindFront();
      return Default(message, wParam, lParam);
    case WM_PAINT: OnPaintMessage(); return 0;
    case WM_CLOSE: Unload(kUnloadFromWindow); return 0;
    case WM_ERASEBKGND: {
      RECT client;
      ::GetClientRect(Hwnd(), &client);
      platform::ScopedBrush brush(::CreateSolidBrush(backColor_));
      ::FillRect(reinterpret_cast<HDC>(wParam), &client, brush.get());
      return 1;
    }
    case WM_ACTIVATE: OnActivateMessage(LOWORD(wParam)); return 0;
    case WM_DPICHANGED:
      OnDpiChangedMessage(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return 0;
    case WM_GETOBJECT:
      if (LRESULT object = AccessibleObject(wParam, lParam)) return object;
      return Default(message, wParam, lParam);
    // Wine activates a clicked window whatever its style says.
    case WM_MOUSEACTIVATE:
      if (ExtendedStyle() & WS_EX_NOACTIVATE) return MA_NOACTIVATE;
      return Default(message, wParam, lParam);
    case WM_TIMER:
      for (const Timer& timer : timers_) {
        if (static_cast<WPARAM>(timer.id) == wParam && timer.onTick) timer.onTick();
      }
      return 0;
    case WM_COMMAND:
      if (Control* control = ControlOf(reinterpret_cast<HWND>(lParam))) {
        control->OnCommand(HIWORD(wParam));
      }
      return 0;
    case WM_NOTIFY: {
      auto* header = reinterpret_cast<NMHDR*>(lParam);
      Control* control = ControlOf(header->hwndFrom);
      return control ? control->OnNotify(*header) : 0;
    }
    default:
      if (IsMouseMessage(message)) {
        OnMouseMessage(message, wParam, lParam);
        return 0;
      }
      return Default(message, wParam, lParam);
  }
}

}  // namespace toolkit
