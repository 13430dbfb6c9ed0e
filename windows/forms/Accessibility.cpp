#include "windows/forms/Accessibility.h"

#include <algorithm>

#include "forms/TextField.h"
#include "forms/Toggle.h"
#include "windows/Paths.h"

namespace nv::windows {

namespace {

Library systemLibrary(const wchar_t* name) {
  HMODULE module = LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  // Windows 7 without the update KB2533623 does not know that search.
  if (module == nullptr && GetLastError() == ERROR_INVALID_PARAMETER)
    module = LoadLibraryW(joined(directory(GetSystemDirectoryW), name).c_str());
  return Library(module);
}

long systemRole(forms::Role role) {
  constexpr long roles[] = {ROLE_SYSTEM_STATICTEXT,  ROLE_SYSTEM_TEXT,        ROLE_SYSTEM_GROUPING,
                            ROLE_SYSTEM_CHECKBUTTON, ROLE_SYSTEM_RADIOBUTTON, ROLE_SYSTEM_COMBOBOX,
                            ROLE_SYSTEM_PUSHBUTTON,  ROLE_SYSTEM_LINK,        ROLE_SYSTEM_GRAPHIC};
  return roles[static_cast<std::size_t>(role)];
}

bool isMarked(const forms::Control& control) {
  if (control.kind() == forms::Kind::checkBox) return static_cast<const forms::CheckBox&>(control).checked();
  return control.kind() == forms::Kind::optionButton && static_cast<const forms::OptionButton&>(control).selected();
}

}  // namespace

Told toldOf(const forms::Control& control) {
  Told told{.name = nameOf(control), .role = systemRole(roleOf(control)), .key = keyOf(control)};
  if (isRequired(control)) told.description = L"Required";
  // As it is seen: what is greyed is out of use, what is not is there to be read.
  const bool greyed = control.look().greyed;
  (greyed ? told.state : told.noState) |= STATE_SYSTEM_UNAVAILABLE;
  if (control.reachable()) {
    told.action = actionOf(control);
  } else {
    told.noState |= STATE_SYSTEM_FOCUSABLE;
    if (!greyed && control.takesFocus()) told.state |= STATE_SYSTEM_READONLY;
  }
  if (isMarked(control)) told.state |= STATE_SYSTEM_CHECKED;
  if (told.role == ROLE_SYSTEM_LINK) told.state |= STATE_SYSTEM_LINKED;
  if (control.kind() == forms::Kind::textBox && static_cast<const forms::TextBox&>(control).passwordChar() != 0) {
    told.secret = true;
    told.state |= STATE_SYSTEM_PROTECTED;
  }
  return told;
}

/// One window's object. What is asked of the window itself is answered by the teller, what is asked of its rows, too;
/// all else by the system's object.
class Accessibles::Object final : public IAccessible {
 public:
  Object(const Teller& teller, HWND window, Library library, ComPtr<IAccessible> system)
      : library_(std::move(library)), teller_(&teller), window_(window), system_(std::move(system)) {}

  HWND window() const { return window_; }
  /// Nothing is told from now on.
  void disconnect() {
    teller_ = nullptr;
    CoDisconnectObject(this, 0);
  }
  LRESULT result(WPARAM wparam) {
    const auto handOut = reinterpret_cast<decltype(&LresultFromObject)>(
        reinterpret_cast<void*>(GetProcAddress(library_.get(), "LresultFromObject")));
    return handOut == nullptr ? 0 : handOut(__uuidof(IAccessible), wparam, this);
  }

  // IUnknown

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IAccessible)) {
      *object = static_cast<IAccessible*>(this);
      AddRef();
      return S_OK;
    }
    // The window behind the object, and the windows in it. Rows are counted, not enumerated.
    const bool systems = iid == IID_IOleWindow || (iid == IID_IEnumVARIANT && rows() == nullptr);
    return systems && teller_ != nullptr ? system_->QueryInterface(iid, object) : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // IDispatch: no names to call by. Who scripts, scripts the component.

  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }

  // IAccessible

  STDMETHODIMP get_accParent(IDispatch** parent) override {
    return told([&] { return system_->get_accParent(parent); });
  }
  STDMETHODIMP get_accChildCount(long* count) override {
    return told([&] {
      if (const auto* list = rows()) return *count = list->count(), S_OK;
      return system_->get_accChildCount(count);
    });
  }
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
    return of(
        child, [&](const Told&) { return system_->get_accChild(child, object); },
        [&](const RowTeller&, long) { return *object = nullptr, S_FALSE; },
        [&] { return system_->get_accChild(child, object); });
  }
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
    return of(
        child, [&](const Told& self) { return text(self.name, name); },
        [&](const RowTeller& list, long row) { return text(list.name(row), name); },
        [&] { return system_->get_accName(child, name); });
  }
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
    return of(
        child,
        [&](const Told& self) {
          if (self.secret) return *value = nullptr, E_ACCESSDENIED;
          return self.value ? text(*self.value, value) : system_->get_accValue(child, value);
        },
        [&](const RowTeller&, long) { return text({}, value); }, [&] { return system_->get_accValue(child, value); });
  }
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override {
    return of(
        child, [&](const Told& self) { return text(self.description, description); },
        [&](const RowTeller&, long) { return text({}, description); },
        [&] { return system_->get_accDescription(child, description); });
  }
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
    return of(
        child, [&](const Told& self) { return number(self.role, role); },
        [&](const RowTeller&, long) { return number(ROLE_SYSTEM_LISTITEM, role); },
        [&] { return system_->get_accRole(child, role); });
  }
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
    return of(
        child,
        [&](const Told& self) {
          const HRESULT result = system_->get_accState(child, state);
          const long found = SUCCEEDED(result) && state->vt == VT_I4 ? state->lVal : 0;
          return number((found & ~self.noState) | self.state, state);
        },
        [&](const RowTeller& list, long row) {
          const RECT area = list.area(row);
          return number(STATE_SYSTEM_SELECTABLE | (row == list.selected() ? STATE_SYSTEM_SELECTED : 0) |
                            (IsRectEmpty(&area) ? STATE_SYSTEM_OFFSCREEN : 0),
                        state);
        },
        [&] { return system_->get_accState(child, state); });
  }
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
    return told([&] { return system_->get_accHelp(child, help); });
  }
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
    return told([&] { return system_->get_accHelpTopic(file, child, topic); });
  }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* key) override {
    return of(
        child, [&](const Told& self) { return text(self.key, key); },
        [&](const RowTeller&, long) { return text({}, key); },
        [&] { return system_->get_accKeyboardShortcut(child, key); });
  }
  STDMETHODIMP get_accFocus(VARIANT* focus) override {
    return told([&] { return system_->get_accFocus(focus); });
  }
  STDMETHODIMP get_accSelection(VARIANT* selection) override {
    return told([&] {
      const auto* list = rows();
      if (list == nullptr) return system_->get_accSelection(selection);
      VariantInit(selection);
      return list->selected() < 0 ? S_FALSE : number(list->selected() + 1, selection);
    });
  }
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
    return of(
        child, [&](const Told& self) { return text(self.action, action); },
        [&](const RowTeller&, long) { return text(L"Choose", action); },
        [&] { return system_->get_accDefaultAction(child, action); });
  }
  STDMETHODIMP accSelect(long flags, VARIANT child) override {
    return of(
        child, [&](const Told&) { return system_->accSelect(flags, child); },
        [&](const RowTeller& list, long row) {
          if ((flags & SELFLAG_TAKESELECTION) == 0) return E_INVALIDARG;
          return list.pick(row), S_OK;
        },
        [&] { return system_->accSelect(flags, child); });
  }
  STDMETHODIMP accLocation(long* left, long* top, long* width, long* height, VARIANT child) override {
    return of(
        child, [&](const Told&) { return system_->accLocation(left, top, width, height, child); },
        [&](const RowTeller& list, long row) {
          const RECT area = list.area(row);
          *left = area.left, *top = area.top, *width = area.right - area.left, *height = area.bottom - area.top;
          return S_OK;
        },
        [&] { return system_->accLocation(left, top, width, height, child); });
  }
  STDMETHODIMP accNavigate(long direction, VARIANT from, VARIANT* to) override {
    return told([&] { return system_->accNavigate(direction, from, to); });
  }
  STDMETHODIMP accHitTest(long x, long y, VARIANT* child) override {
    return told([&] {
      const auto* list = rows();
      const long row = list == nullptr ? -1 : list->at({x, y});
      return row < 0 ? system_->accHitTest(x, y, child) : number(row + 1, child);
    });
  }
  STDMETHODIMP accDoDefaultAction(VARIANT child) override {
    return of(
        child,
        [&](const Told& self) {
          if (self.action.empty()) return DISP_E_MEMBERNOTFOUND;
          return teller_->act(window_), S_OK;
        },
        [&](const RowTeller& list, long row) { return list.pick(row), S_OK; },
        [&] { return system_->accDoDefaultAction(child); });
  }
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
    return told([&] { return system_->put_accValue(child, value); });
  }

 private:
  ~Object() = default;

  const RowTeller* rows() const { return teller_ == nullptr ? nullptr : teller_->rows(window_); }

  /// Answers, unless the window is gone. No exception leaves the object.
  template <class Answer>
  HRESULT told(Answer&& answer) const noexcept {
    if (teller_ == nullptr) return CO_E_OBJNOTCONNECTED;
    try {
      return answer();
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }
  /// Answers for the window itself, for one of its rows, or for anything else in it.
  template <class Self, class Row, class Other>
  HRESULT of(const VARIANT& child, Self&& self, Row&& row, Other&& other) const noexcept {
    return told([&]() -> HRESULT {
      if (child.vt != VT_I4) return E_INVALIDARG;
      if (child.lVal == CHILDID_SELF) return self(teller_->tell(window_));
      const auto* list = rows();
      if (list == nullptr) return other();
      return child.lVal >= 1 && child.lVal <= list->count() ? row(*list, child.lVal - 1) : E_INVALIDARG;
    });
  }

  static HRESULT text(const std::wstring& from, BSTR* to) {
    *to = nullptr;
    if (from.empty()) return S_FALSE;
    *to = Bstr::copyOf(from).release();
    return *to == nullptr ? E_OUTOFMEMORY : S_OK;
  }
  static HRESULT number(long from, VARIANT* to) {
    VariantInit(to);
    to->vt = VT_I4;
    to->lVal = from;
    return S_OK;
  }

  Library library_;  // first: what it made goes before it
  const Teller* teller_;
  HWND window_;
  ComPtr<IAccessible> system_;
  ULONG references_ = 1;  // other threads reach it through COM, in the windows' thread
};

Accessibles::Accessibles() = default;

Accessibles::~Accessibles() {
  for (const auto& object : objects_) object->disconnect();
}

std::optional<LRESULT> Accessibles::answer(const Teller& teller, HWND window, WPARAM wparam, LPARAM lparam) noexcept {
  if (static_cast<LONG>(lparam) != OBJID_CLIENT) return std::nullopt;
  try {
    auto found = std::ranges::find(objects_, window, [](const auto& object) { return object->window(); });
    if (found == objects_.end()) {
      Library library = systemLibrary(L"oleacc.dll");
      const auto create = reinterpret_cast<decltype(&CreateStdAccessibleObject)>(
          reinterpret_cast<void*>(GetProcAddress(library.get(), "CreateStdAccessibleObject")));
      ComPtr<IAccessible> system;
      if (create == nullptr || FAILED(create(window, OBJID_CLIENT, __uuidof(IAccessible), &system)))
        return std::nullopt;
      objects_.reserve(objects_.size() + 1);
      ComPtr<Object> object;
      *object.GetAddressOf() = new Object(teller, window, std::move(library), std::move(system));
      found = objects_.insert(objects_.end(), std::move(object));
    }
    const LRESULT result = (*found)->result(wparam);
    if (result > 0) return result;
  } catch (...) {  // NOLINT(bugprone-empty-catch): the system answers, then
  }
  return std::nullopt;
}

void Accessibles::disconnect(HWND window) noexcept {
  const auto found = std::ranges::find(objects_, window, [](const auto& object) { return object->window(); });
  if (found == objects_.end()) return;
  const ComPtr<Object> object = *found;
  objects_.erase(found);
  object->disconnect();
}

}  // namespace nv::windows
