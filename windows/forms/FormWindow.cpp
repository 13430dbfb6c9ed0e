#include "windows/forms/FormWindow.h"

#include <algorithm>
#include <map>

#include "forms/Frame.h"
#include "windows/Scopes.h"
#include "windows/ThreadWindows.h"
#include "windows/forms/ControlWindows.h"
#include "windows/forms/WindowClasses.h"

namespace nv::windows {

using forms::Attribute;
using forms::UnloadMode;

namespace {

// Messages of a form's window to itself, for what must not happen inside the message that asks for it.
constexpr UINT messageActivated = WM_APP + 1;
constexpr UINT messageFocus = WM_APP + 2;  // wparam: the control's position in the form
constexpr UINT messageKey = WM_APP + 3;    // wparam: the character

// Messages of newer systems than the oldest supported one.
constexpr UINT messageDpiChanged = 0x02E0;             // WM_DPICHANGED
constexpr UINT messageDpiChangedAfterParent = 0x02E3;  // WM_DPICHANGED_AFTERPARENT

DWORD styleOf(const forms::Form& form) {
  const DWORD common = WS_POPUP | WS_CLIPCHILDREN;
  return form.border() == forms::Border::embedded ? common : common | WS_CAPTION | WS_SYSMENU;
}

DWORD extendedStyleOf(const forms::Form& form) {
  return form.border() == forms::Border::embedded ? WS_EX_CONTROLPARENT : WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME;
}

/// The host's window that a new dialog belongs to.
HWND hostWindow() {
  const HWND front = frontWindow();
  return front == nullptr ? nullptr : GetAncestor(front, GA_ROOT);
}

/// The system's window of the thread's input method, or one of the method's own.
bool isInputMethod(HWND window) {
  wchar_t name[8] = L"";
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return std::wstring_view(name) == L"IME" || (GetClassLongPtrW(window, GCL_STYLE) & CS_IME) != 0;
}

/// What the windows of a form are made under.
struct MakingScope {
  explicit MakingScope(const forms::Form& form) {
    // An embedded form is the host's child, and follows its dpi.
    if (form.border() == forms::Border::dialog) dpi.emplace();
  }
  ActivationContextScope controls;
  std::optional<DpiAwarenessScope> dpi;
};

SIZE sizeOf(const RECT& rect) {
  return {rect.right - rect.left, rect.bottom - rect.top};
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, Palette& palette) : MessageHandler(form), palette_(palette) {
  const MakingScope scope(form);
  registerWindowClasses();
  const HWND owner = embedded() ? nullptr : hostWindow();
  // Created on its owner's screen: the dpi is that of the window.
  const RECT work = screens.workAreaOf(owner);
  window_ = createWindow({formClass, styleOf(form), extendedStyleOf(form)}, form.caption().c_str(),
                         {work.left, work.top, work.left, work.top}, owner);
  try {
    scale_ = Scale(screens.dpiOf(window_));
    scroller_ = Scroller(window_);
    nameWindow(window_, form.windowName());
    if (embedded()) session_ = createWindow({sessionClass, WS_POPUP}, L"", {}, nullptr);
    for (forms::Control* control : form.controls()) {
      control->attach(controls_.emplace_back(makeControlWindow(*this, *control)).get());
    }
    makeWindows();
    SendMessageW(window_, WM_UPDATEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    arrange(Where::centre);
  } catch (...) {
    FormWindow::close();
    throw;
  }
}

FormWindow::~FormWindow() {
  close();
}

void FormWindow::makeWindows() {
  const MakingScope scope(form());
  const bool someAreThere = std::ranges::any_of(controls_, [](const auto& each) { return each->window() != nullptr; });
  std::map<HWND, HWND> last;  // of the windows in each parent so far
  for (const auto& each : controls_) {
    const forms::Frame* const frame = each->control().frame();
    const HWND parent = frame == nullptr ? window_ : static_cast<const ControlWindow*>(frame->peer())->window();
    if (parent == nullptr) continue;
    if (each->window() == nullptr && each->control().visible()) {
      each->create(parent);
      // It stands where it would if all were made at once: tools and screen readers go by that order.
      if (someAreThere) {
        SetWindowPos(each->window(), last[parent], 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      }
    }
    if (each->window() != nullptr) last[parent] = each->window();
  }
}

// What the form asks for

void FormWindow::update(Attribute attribute) {
  if (window_ == nullptr) return;
  switch (attribute) {
    case Attribute::text:
      SetWindowTextW(window_, form().caption().c_str());
      break;
    case Attribute::place:
    case Attribute::size:
      arrange(attribute == Attribute::size ? Where::here : Where::asFormSays);
      break;
    case Attribute::appearance:
      RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      break;
    default:
      break;
  }
}

void FormWindow::show(bool modal) {
  if (modal) {
    focusRestorer_.emplace();
    disableOthers();
  } else {
    adoptParent();
  }
  // Each window's background is erased when it is painted, not those of all before.
  SetWindowPos(window_, nullptr, 0, 0, 0, 0, SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_DEFERERASE);
  if (modal) SetForegroundWindow(window_);
}

void FormWindow::runModal() {
  while (form().loaded()) {
    MSG message;
    const BOOL more = GetMessageW(&message, nullptr, 0, 0);
    if (more == 0) {
      // The host is quitting: close the dialog, then pass the message on to the outer loop.
      form().unload(UnloadMode::owner);
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    if (more < 0) continue;
    if (CallMsgFilterW(&message, MSGF_DIALOGBOX)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void FormWindow::close() {
  enableOthers();  // before the window goes, else another program's window would become the active one
  tips_.destroy();
  if (HWND const session = std::exchange(session_, nullptr)) DestroyWindow(session);
  if (window_ != nullptr) DestroyWindow(window_);
  focusRestorer_.reset();
  // Wakes the modal loop, which may be waiting for a message.
  PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

void FormWindow::sendKey(wchar_t key) {
  PostMessageW(window_, messageKey, key, 0);
}

/// Whether a window is the form's own, or belongs, at any remove, to it or to the input method: a list, a tool, a
/// choice of characters.
bool FormWindow::helps(HWND window) const {
  for (; window != nullptr; window = GetWindow(window, GW_OWNER)) {
    if (window == window_ || isInputMethod(window)) return true;
  }
  return false;
}

void FormWindow::disableOthers() {
  forEachThreadWindow([this](HWND other) {
    if (IsWindowEnabled(other) && !helps(other)) disabled_.push_back(other);
    return true;
  });
  for (const HWND other : disabled_) EnableWindow(other, FALSE);
}

void FormWindow::enableOthers() {
  for (const HWND other : std::exchange(disabled_, {})) EnableWindow(other, TRUE);
}

// Size and place

RECT FormWindow::placeOf(const forms::Control& control) const {
  RECT place = scale_.pixels(control.place());
  if (control.frame() == nullptr) OffsetRect(&place, -scroller_.position().x, -scroller_.position().y);
  return place;
}

ControlWindow* FormWindow::controlOf(HWND window) const {
  const auto found = std::ranges::find_if(controls_, [window](const auto& each) { return each->handles(window); });
  return found == controls_.end() ? nullptr : found->get();
}

void FormWindow::arrange(Where where) {
  const bool centre = where == Where::centre;
  const SIZE content{scale_.pixels(form().place().width), scale_.pixels(form().place().height)};
  scroller_.setContent(content);
  if (embedded()) {
    SetWindowPos(window_, nullptr, scale_.pixels(form().place().left), scale_.pixels(form().place().top), content.cx,
                 content.cy, SWP_DEFERERASE | SWP_NOZORDER | SWP_NOACTIVATE | (where == Where::here ? SWP_NOMOVE : 0U));
    return;
  }
  RECT frame{0, 0, content.cx, content.cy};
  addFrame(frame, styleOf(form()), extendedStyleOf(form()), scale_.dpi());
  SIZE outer = sizeOf(frame);

  // A new dialog comes up on its owner's screen; later it stays on the one that the user has dragged it to.
  const HWND owner = GetWindow(window_, GW_OWNER);
  const RECT work = screens.workAreaOf(centre && owner != nullptr ? owner : window_);
  const SIZE room = sizeOf(work);
  // What does not fit is reached by scrolling; a bar along one side takes its width from the other.
  if (outer.cy > room.cy) outer.cx += systemMetric(SM_CXVSCROLL, scale_.dpi());
  if (outer.cx > room.cx) outer.cy += systemMetric(SM_CYHSCROLL, scale_.dpi());
  outer.cx = std::min(outer.cx, room.cx);
  outer.cy = std::min(outer.cy, room.cy);

  RECT place;
  GetWindowRect(window_, &place);
  POINT corner{place.left, place.top};
  if (centre) {
    RECT around = work;
    if (owner != nullptr && IsWindowVisible(owner) && !IsIconic(owner)) GetWindowRect(owner, &around);
    corner = {(around.left + around.right - outer.cx) / 2, (around.top + around.bottom - outer.cy) / 2};
  }
  corner.x = std::clamp(corner.x, work.left, work.right - outer.cx);
  corner.y = std::clamp(corner.y, work.top, work.bottom - outer.cy);
  SetWindowPos(window_, nullptr, corner.x, corner.y, outer.cx, outer.cy, SWP_NOZORDER | SWP_NOACTIVATE);
  scroller_.showBars();
}

void FormWindow::rescale(int dpi) {
  if (dpi == scale_.dpi()) return;
  scale_ = Scale(dpi);
  scroller_ = Scroller(window_);
  arrange(Where::asFormSays);
  for (const auto& control : controls_) control->rescale();
}

/// A host may reparent the embedded form at any time: window styles and dpi must follow.
void FormWindow::adoptParent() {
  if (!embedded()) return;
  constexpr auto popup = static_cast<LONG>(WS_POPUP);
  const LONG style = GetWindowLongW(window_, GWL_STYLE);
  const bool hasParent = GetAncestor(window_, GA_PARENT) != GetDesktopWindow();
  const LONG adopted = hasParent ? (style & ~popup) | WS_CHILD : (style & ~WS_CHILD) | popup;
  if (adopted != style) SetWindowLongW(window_, GWL_STYLE, adopted);
  rescale(screens.dpiOf(GetAncestor(window_, GA_ROOT)));
}

void FormWindow::bringIntoView(const forms::Control& control) {
  const HWND window = static_cast<const ControlWindow*>(control.peer())->window();
  RECT place;
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
  scroller_.bringIntoView(place, scale_.pixels(120));
}

// Focus

void FormWindow::focusEntered(forms::Control& control) {
  if (!form().active()) PostMessageW(window_, messageActivated, 0, 0);
  if (control.hasFocus()) return;
  // The focus was set from outside, for example by a test tool: the form follows.
  const auto& all = form().controls();
  const auto position = std::find(all.begin(), all.end(), &control) - all.begin();
  PostMessageW(window_, messageFocus, static_cast<WPARAM>(position), 0);
}

void FormWindow::giveFocusBack() {
  if (forms::Control* const active = form().activeControl(); active != nullptr && active->peer() != nullptr) {
    active->peer()->takeFocus();
  }
}

void FormWindow::noticeRelease(UINT message) {
  const bool input = (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) || message == WM_KEYDOWN;
  if (!input || pressed()) return;
  pressed_ = false;
  if (form().loaded()) form().released();
}

// Messages

Told FormWindow::tell(HWND /*window*/) const {
  return {.name = form().caption(), .role = embedded() ? ROLE_SYSTEM_GROUPING : ROLE_SYSTEM_DIALOG};
}

LRESULT FormWindow::receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (window != window_ && message != WM_ENDSESSION) return pass(window, message, wparam, lparam);
  tips_.heard(window, message, wparam, lparam);
  LRESULT result = 0;
  if (ControlWindow::reflect(*this, message, wparam, lparam, result)) return result;
  switch (message) {
    case WM_GETOBJECT:
      if (const auto object = accessibles_.answer(*this, window, wparam, lparam)) return *object;
      break;
    case WM_DESTROY:
      accessibles_.disconnect(window);
      break;
    case WM_CLOSE:
      form().unload(UnloadMode::user);
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (wparam != FALSE) form().unload(UnloadMode::systemShutdown);
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wparam) == WA_INACTIVE) break;
      PostMessageW(window, messageActivated, 0, 0);
      giveFocusBack();
      return 0;
    case WM_SETFOCUS:
      giveFocusBack();
      return 0;
    case messageActivated:
      form().activated();
      return 0;
    case messageFocus:
      if (wparam < form().controls().size()) form().focus(*form().controls()[wparam]);
      return 0;
    case messageKey:
      if (forms::Control* const active = form().activeControl(); active != nullptr && active->peer() != nullptr) {
        static_cast<ControlWindow*>(active->peer())->type(static_cast<wchar_t>(wparam));
      }
      return 0;
    case WM_UPDATEUISTATE:
      // Some hosts hide the focus until a key is pressed. Ours is always seen.
      if (LOWORD(wparam) == UIS_SET) wparam &= ~static_cast<WPARAM>(MAKEWPARAM(0, UISF_HIDEFOCUS));
      break;
    case WM_WINDOWPOSCHANGED:
      adoptParent();
      break;
    case WM_VSCROLL:
      scroller_.scrollBy(SB_VERT, wparam, scale_.pixels(360));
      return 0;
    case WM_HSCROLL:
      scroller_.scrollBy(SB_HORZ, wparam, scale_.pixels(360));
      return 0;
    case WM_MOUSEWHEEL:
      if (scroller_.wheel(wparam, scale_.pixels(1080))) return 0;
      break;
    case WM_ERASEBKGND:
      paintBackground(reinterpret_cast<HDC>(wparam));
      return TRUE;
    case messageDpiChanged: {
      // The place that the system proposes stays on the new screen.
      const RECT& proposed = *reinterpret_cast<const RECT*>(lparam);
      const SIZE size = sizeOf(proposed);
      SetWindowPos(window, nullptr, proposed.left, proposed.top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
      rescale(HIWORD(wparam));
      return 0;
    }
    case messageDpiChangedAfterParent:
      adoptParent();
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      for (const auto& control : controls_) control->update(Attribute::appearance);
      RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      break;
    default:
      break;
  }
  return pass(window, message, wparam, lparam);
}

void FormWindow::destroyed(HWND window) {
  if (window != window_) return;
  window_ = nullptr;
  form().windowGone();
}

void FormWindow::paintBackground(HDC context) const {
  RECT client;
  GetClientRect(window_, &client);
  FillRect(context, &client, palette_.brush(form().colours().back));
}

}  // namespace nv::windows
