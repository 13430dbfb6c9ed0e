#include "windows/forms/ControlWindow.h"

#include <algorithm>

#include "forms/TextField.h"
#include "platform/ScopedValue.h"
#include "windows/forms/FormWindow.h"

namespace nv::windows {

using forms::Attribute;

int shiftState() {
  const auto down = [](int key, int bit) { return GetKeyState(key) < 0 ? bit : 0; };
  return down(VK_SHIFT, forms::shiftKey) | down(VK_CONTROL, forms::controlKey) | down(VK_MENU, forms::altKey);
}

namespace {

/// Takes what a used-up key types out of the queue: TranslateMessage has posted it before the key came here, with the
/// key's lParam. The lParam of a tool's message may have no scan code and be that of every other: then a key that types
/// no letter, such as Tab, takes no letters. What comes without a key, from input methods, has a lParam of its own.
void discardCharacters(HWND window, UINT keyMessage, WPARAM key, LPARAM lparam) {
  const UINT unshifted = MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_CHAR);
  if (unshifted == 0) return;
  const bool hasScanCode = LOBYTE(HIWORD(lparam)) != 0;
  const bool lettersToo = hasScanCode || unshifted >= L' ';
  const UINT typed = keyMessage == WM_KEYDOWN ? WM_CHAR : WM_SYSCHAR;
  constexpr UINT posted = PM_QS_POSTMESSAGE;  // and nothing else gets its turn meanwhile
  MSG next;
  while (PeekMessageW(&next, window, typed, typed, PM_NOREMOVE | posted) && next.lParam == lparam &&
         (lettersToo || next.wParam < L' '))
    PeekMessageW(&next, window, typed, typed, PM_REMOVE | posted);
}

}  // namespace

void ControlWindow::create(HWND parent) {
  const Native kind = native();
  // WS_TABSTOP is for tools that ask; the form itself decides where Tab stops.
  const DWORD style = kind.style | WS_CHILD | WS_CLIPSIBLINGS | (control_.takesFocus() ? WS_TABSTOP : 0) |
                      (control_.visible() ? WS_VISIBLE : 0) | (enabled() ? 0 : WS_DISABLED);
  window_ = createWindow({kind.windowClass, style, kind.extendedStyle}, control_.caption().c_str(), area(), parent);
  nameWindow(window_, control_.fullName());
  created();
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(owner_.font(control_.font(), underlined())), FALSE);
}

void ControlWindow::rescale() {
  if (window_ == nullptr) return;
  apply(Attribute::appearance);
  apply(Attribute::place);
}

void ControlWindow::update(Attribute attribute) {
  if (window_ != nullptr) {
    apply(attribute);
  } else if (attribute == Attribute::visible) {
    owner_.makeWindows();
  }
}

void ControlWindow::takeFocus() {
  if (window_ == nullptr) return;
  owner_.bringIntoView(control_);
  SetFocus(focusWindow());
}

void ControlWindow::type(wchar_t character) {
  if (form().keyPressedDown(control_, {character, 0}) || window_ == nullptr) return;
  SendMessageW(focusWindow(), WM_CHAR, character, 1);
}

void ControlWindow::apply(Attribute attribute) {
  switch (attribute) {
    case Attribute::place:
      moveWindow(window_, area());
      break;
    case Attribute::visible:
      ShowWindow(window_, control_.visible() ? SW_SHOWNA : SW_HIDE);
      break;
    case Attribute::enabled:
      EnableWindow(window_, enabled());
      if (control_.isReadingText()) takeBoxOff();
      RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
      break;
    case Attribute::text:
      SetWindowTextW(window_, control_.caption().c_str());
      break;
    case Attribute::appearance:
      SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(owner_.font(control_.font(), underlined())), TRUE);
      InvalidateRect(window_, nullptr, TRUE);
      break;
    default:
      break;
  }
}

RECT ControlWindow::area() const {
  return owner_.placeOf(control_);
}

RECT ControlWindow::lineArea() const {
  return control_.isReadingText() ? textArea() : middleLine();
}

RECT ControlWindow::textArea() const {
  const RECT place = ControlWindow::area();
  if (place.bottom - place.top >= 2 * owner_.lineHeight(control_.font())) return place;
  RECT line = middleLine();
  line.top += textInset;
  return line;
}

RECT ControlWindow::middleLine() const {
  constexpr int below = 5;  // the text, its window's edge included
  const forms::Place& place = control_.place();
  const Scale& scale = owner_.scale();
  const int height = textInset + owner_.lineHeight(control_.font()) + below;
  const int middle = scale.pixels(place.top + place.height / 2) - scale.pixels(place.top);
  RECT area = owner_.placeOf(control_);
  area.top += middle - height / 2;
  area.bottom = area.top + height;
  return area;
}

void ControlWindow::moveWindow(HWND window, const RECT& place) {
  SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

/// A field of a form for reading: what there is to see, its text, is drawn here.
void ControlWindow::takeBoxOff() {
  SetWindowLongW(window_, GWL_EXSTYLE, GetWindowLongW(window_, GWL_EXSTYLE) & ~WS_EX_CLIENTEDGE);
  SetWindowPos(window_, nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  if (focusWindow() != window_) ShowWindow(focusWindow(), SW_HIDE);
}

/// Answers the messages that have a window drawn, if it is drawn here.
std::optional<LRESULT> ControlWindow::painted(UINT message, WPARAM wparam) {
  const bool reading = control_.isReadingText();
  if (!reading && !drawn()) return std::nullopt;
  const auto paintAll = [this, reading](HDC context) {
    RECT area;
    GetClientRect(window_, &area);
    FillRect(context, &area, owner_.brush(background()));
    const Selected font(context, owner_.font(control_.font(), false));
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, textColour());
    if (!reading) return paint(context, area);
    DrawTextW(context, static_cast<const forms::TextField&>(control_).text().c_str(), -1, &area, readingFormat);
  };
  switch (message) {
    case WM_ERASEBKGND:
      return TRUE;
    case WM_NCPAINT:
      return reading ? std::optional<LRESULT>(0) : std::nullopt;
    case WM_PRINTCLIENT:
      paintAll(reinterpret_cast<HDC>(wparam));
      return 0;
    case WM_PAINT:
      paintAll(Painting(window_).context());
      return 0;
    default:
      return std::nullopt;
  }
}

HBRUSH ControlWindow::handleCtlColor(HDC context) {
  SetBkColor(context, rgb(background()));
  SetTextColor(context, textColour());
  return owner_.brush(background());
}

COLORREF ControlWindow::textColour() const {
  const forms::Look look = control_.look();
  return look.greyed ? greyText(rgb(look.colours.back)) : rgb(look.colours.text);
}

LRESULT ControlWindow::receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_GETOBJECT) {
    const auto object = accessibles_.answer(*this, window, wparam, lparam);
    return object ? *object : pass(window, message, wparam, lparam);
  }
  if (message == WM_DESTROY) {
    accessibles_.disconnect(window);
    wipeText(window);
  }
  if (destroying_ && message == WM_COMMAND) return 0;
  owner_.tips().heard(window, message, wparam, lparam);
  if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) owner_.noticePress();
  if (pressing_ && message == WM_LBUTTONUP) {
    release_ = lparam;
    return 0;
  }
  if (window == window_) {
    if (const auto result = painted(message, wparam)) return *result;
  }
  const LRESULT result = handle(window, message, wparam, lparam);
  owner_.noticeRelease(message);
  return result;
}

void ControlWindow::destroyed(HWND window) {
  if (window == window_) window_ = nullptr;
}

/// Overwrite the text before destruction: freed memory must not hold account numbers, none of which is longer than the
/// buffer. Nobody is told of the change.
void ControlWindow::wipeText(HWND window) {
  destroying_ = true;
  wchar_t blanks[128];
  const auto length = std::min<LRESULT>(pass(window, WM_GETTEXTLENGTH, 0, 0), std::size(blanks) - 1);
  if (length <= 0) return;
  *std::fill_n(blanks, length, L' ') = L'\0';
  pass(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(blanks));
}

LRESULT ControlWindow::handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  LRESULT result = 0;
  if (reflect(owner_, message, wparam, lparam, result)) return result;
  switch (message) {
    case WM_GETDLGCODE:
      // A host whose loop knows dialogs leaves every key to us, as one whose loop knows nothing does.
      return control_.takesFocus() ? pass(window, message, wparam, lparam) | DLGC_WANTALLKEYS | DLGC_WANTTAB |
                                         DLGC_WANTARROWS | DLGC_WANTCHARS
                                   : pass(window, message, wparam, lparam);
    case WM_SETFOCUS:
      owner_.focusEntered(control_);
      break;
    case WM_SETFONT: {
      const LRESULT set = pass(window, message, wparam, lparam);
      // A font brings margins of its own with it, of some kinds of fields.
      const int margin = owner_.scale().pixels(15);
      if (control_.isField() && focusWindow() != nullptr)
        SendMessageW(focusWindow(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
      return set;
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (!usesKey(wparam) && !form().keyPressedDown(control_, {static_cast<int>(wparam), shiftState()})) break;
      discardCharacters(window, message, wparam, lparam);
      return 0;
    case WM_CHAR: {
      const wchar_t character = form().characterTyped(control_, static_cast<wchar_t>(wparam));
      if (character == 0 || !usesCharacter(character)) return 0;
      return pass(window, message, character, lparam);
    }
    case WM_UNICHAR:  // from tools: a code point, which goes the way of every character
      if (wparam == UNICODE_NOCHAR) return TRUE;
      if (wparam <= 0xFFFF) return SendMessageW(window, WM_CHAR, wparam, lparam);
      SendMessageW(window, WM_CHAR, 0xD800 + ((wparam - 0x10000) >> 10), lparam);
      return SendMessageW(window, WM_CHAR, 0xDC00 + (wparam & 0x3FF), lparam);
    case WM_SYSCHAR:
      if (form().mnemonicTyped(static_cast<wchar_t>(wparam))) return 0;
      break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      if (!mouseDown(window, forms::leftButton, lparam)) return 0;
      break;
    case WM_RBUTTONDOWN:
      if (!mouseDown(window, forms::rightButton, lparam)) return 0;
      break;
    default:
      break;
  }
  return pass(window, message, wparam, lparam);
}

Told ControlWindow::tell(HWND window) const {
  Told told = toldOf(control_);
  if (window != window_) {
    told.role = ROLE_SYSTEM_TEXT;
    told.action.clear();
  } else if (const auto open = dropped()) {
    told.state |= STATE_SYSTEM_HASPOPUP | (*open ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
    if (*open && !told.action.empty()) told.action = L"Close";
    told.value = static_cast<const forms::TextField&>(control_).text();
  }
  return told;
}

void ControlWindow::act(HWND window) const {
  if (const auto open = dropped()) {
    PostMessageW(window, CB_SHOWDROPDOWN, *open ? FALSE : TRUE, 0);
  } else {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PostMessageW(window, WM_LBUTTONUP, 0, 0);
  }
}

bool ControlWindow::mouseDown(HWND window, int button, LPARAM lparam) {
  if (form().busy()) return false;
  form().activated();  // now and not later, since it may move the focus
  if (button == forms::leftButton && control_.takesFocus() && !control_.hasFocus()) {
    // The focus moves before the window acts on the click, so that the lostFocus of the field being left runs first.
    // When that asked the user a question, or the focus went elsewhere, the click is dropped.
    if (!focusForPress() || window_ == nullptr) return false;
    if (release_) PostMessageW(window, WM_LBUTTONUP, 0, *release_);
  }
  POINT point{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  MapWindowPoints(window, window_, &point, 1);
  const Scale& scale = owner_.scale();
  control_.mouseDown.raise({button, shiftState(), scale.twips(point.x), scale.twips(point.y)});
  return window_ != nullptr;
}

/// Moves the focus here. Returns whether the press goes on: an outside party that was asked about the field being left
/// may have let the button's release through, or one elsewhere.
bool ControlWindow::focusForPress() {
  const bool held = GetKeyState(VK_LBUTTON) < 0;  // not so when a tool sends the messages
  const unsigned asked = FocusRestorer::count();
  release_.reset();
  {
    const ScopedValue pressing(pressing_, true);
    form().focus(control_);
  }
  const bool releasedElsewhere = held && !release_ && GetKeyState(VK_LBUTTON) >= 0;
  return control_.hasFocus() && FocusRestorer::count() == asked && !releasedElsewhere;
}

bool ControlWindow::reflect(const FormWindow& owner, UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) {
  HWND child = nullptr;
  switch (message) {
    case WM_COMMAND:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORLISTBOX:
      child = reinterpret_cast<HWND>(lparam);
      break;
    case WM_NOTIFY:
      child = reinterpret_cast<const NMHDR*>(lparam)->hwndFrom;
      break;
    case WM_DRAWITEM:
      child = reinterpret_cast<const DRAWITEMSTRUCT*>(lparam)->hwndItem;
      break;
    default:
      return false;
  }
  ControlWindow* const target = owner.controlOf(child);
  if (target == nullptr || target->destroying_) return false;
  // A window within a control notifies the control; only its WM_CTLCOLOR... messages are reflected here.
  const bool colours = message != WM_COMMAND && message != WM_NOTIFY && message != WM_DRAWITEM;
  if (child != target->window_ && !colours) return false;
  result = target->reflected(message, wparam, lparam);
  return true;
}

LRESULT ControlWindow::reflected(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_COMMAND:
      notified(HIWORD(wparam));
      return 0;
    case WM_NOTIFY:
      return notified(*reinterpret_cast<const NMHDR*>(lparam));
    case WM_DRAWITEM:
      draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return TRUE;
    default:
      return reinterpret_cast<LRESULT>(handleCtlColor(reinterpret_cast<HDC>(wparam)));
  }
}

}  // namespace nv::windows
