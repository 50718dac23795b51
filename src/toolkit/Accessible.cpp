#include "toolkit/Accessible.h"

#include "platform/Utf8.h"

namespace toolkit {
namespace {

bool IsSelf(const VARIANT& child) {
  return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// The caller owns the string it is given.
HRESULT GiveText(const std::function<std::string()>& text, BSTR* out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (!text) return DISP_E_MEMBERNOTFOUND;
  *out = ::SysAllocString(platform::Wide(text()).c_str());
  return *out ? S_OK : E_OUTOFMEMORY;
}

// One client object of one element window. Clients in other processes reach
// it through COM, on the thread that made the window.
class AccessibleObject : public IAccessible {
 public:
  AccessibleObject(HWND window, std::weak_ptr<const Accessibility> accessibility)
      : window_(window), accessibility_(std::move(accessibility)) {}
  virtual ~AccessibleObject() = default;

  // IUnknown
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (id != IID_IUnknown && id != IID_IDispatch && id != __uuidof(IAccessible)) {
      return E_NOINTERFACE;
    }
    *out = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // IDispatch: clients use the interface's own calls.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count) *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

  // IAccessible
  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
    if (!parent) return E_POINTER;
    *parent = nullptr;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT, IDispatch** child) override {
    if (!child) return E_POINTER;
    *child = nullptr;
    return E_INVALIDARG;
  }
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
    return Text(child, &Accessibility::name, name);
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
    return Text(child, &Accessibility::value, value);
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
    return Text(child, &Accessibility::description, description);
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    const auto element = Element(child);
    if (!role) return E_POINTER;
    if (!element) return Failure(child);
    role->vt = VT_I4;
    role->lVal = element->role;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
    const auto element = Element(child);
    if (!state) return E_POINTER;
    if (!element) return Failure(child);
    LONG flags = element->extraState ? element->extraState() : 0;
    const LONG style = static_cast<LONG>(::GetWindowLongPtrW(window_, GWL_STYLE));
    if (style & WS_TABSTOP) flags |= STATE_SYSTEM_FOCUSABLE;
    if (::GetFocus() == window_) flags |= STATE_SYSTEM_FOCUSED;
    if (!::IsWindowVisible(window_)) flags |= STATE_SYSTEM_INVISIBLE;
    if (!::IsWindowEnabled(window_)) flags |= STATE_SYSTEM_UNAVAILABLE;
    state->vt = VT_I4;
    state->lVal = flags;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* help) override {
    if (help) *help = nullptr;
    return DISP_E_MEMBERNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, LONG*) override {
    if (file) *file = nullptr;
    return DISP_E_MEMBERNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
    const auto element = Element(child);
    if (!shortcut) return E_POINTER;
    *shortcut = nullptr;
    if (!element) return Failure(child);
    if (element->keyboardShortcut.empty()) return DISP_E_MEMBERNOTFOUND;
    *shortcut = ::SysAllocString(platform::Wide(element->keyboardShortcut).c_str());
    return *shortcut ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) override {
    if (!focus) return E_POINTER;
    focus->vt = VT_EMPTY;
    if (::GetFocus() != window_) return S_FALSE;
    focus->vt = VT_I4;
    focus->lVal = CHILDID_SELF;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) override {
    if (selection) selection->vt = VT_EMPTY;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT, BSTR* action) override {
    if (action) *action = nullptr;
    return DISP_E_MEMBERNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE accSelect(LONG, VARIANT) override { return DISP_E_MEMBERNOTFOUND; }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                        VARIANT child) override {
    if (!left || !top || !width || !height) return E_POINTER;
    if (!Element(child)) return Failure(child);
    RECT place{};
    ::GetWindowRect(window_, &place);
    *left = place.left;
    *top = place.top;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE accNavigate(LONG, VARIANT, VARIANT* end) override {
    if (end) end->vt = VT_EMPTY;
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* hit) override {
    if (!hit) return E_POINTER;
    RECT place{};
    ::GetWindowRect(window_, &place);
    hit->vt = VT_EMPTY;
    if (!::PtInRect(&place, POINT{x, y})) return S_FALSE;
    hit->vt = VT_I4;
    hit->lVal = CHILDID_SELF;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
    const auto element = Element(child);
    if (!element) return Failure(child);
    if (!element->defaultAction) return DISP_E_MEMBERNOTFOUND;
    return ::PostMessageW(window_, DefaultActionMessage(), 0, 0) ? S_OK : E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

 private:
  // The element's description while it and its window live; the object has
  // no children.
  std::shared_ptr<const Accessibility> Element(const VARIANT& child) const {
    if (!IsSelf(child) || !::IsWindow(window_)) return nullptr;
    return accessibility_.lock();
  }
  HRESULT Failure(const VARIANT& child) const {
    return IsSelf(child) ? RPC_E_DISCONNECTED : E_INVALIDARG;
  }
  HRESULT Text(const VARIANT& child, std::function<std::string()> Accessibility::*which,
               BSTR* out) const {
    const auto element = Element(child);
    if (!element) {
      if (out) *out = nullptr;
      return Failure(child);
    }
    try {
      return GiveText((*element).*which, out);
    } catch (...) {
      // No exception may cross into the system.
      return E_FAIL;
    }
  }

  HWND window_;
  std::weak_ptr<const Accessibility> accessibility_;
  ULONG references_ = 1;
};

}  // namespace

LRESULT AccessibleObjectResult(HWND window, WPARAM wParam, LPARAM lParam,
                               const std::shared_ptr<const Accessibility>& accessibility) {
  if (static_cast<LONG>(lParam) != OBJID_CLIENT || !accessibility || !accessibility->name) return 0;
  auto* object = new AccessibleObject(window, accessibility);
  // The result holds its own reference (or none, on failure); ours ends here.
  // The import library's IID_IAccessible is the address of a function, not
  // the interface's identifier.
  const LRESULT result = ::LresultFromObject(__uuidof(IAccessible), wParam, object);
  object->Release();
  return result < 0 ? 0 : result;
}

UINT DefaultActionMessage() {
  static const UINT message = ::RegisterWindowMessageW(L"Morvane.DefaultAction");
  return message;
}

void AnnounceChange(HWND window, DWORD event) {
  if (window) ::NotifyWinEvent(event, window, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace toolkit
