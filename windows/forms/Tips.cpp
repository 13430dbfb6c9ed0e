#include "windows/forms/Tips.h"

#include "forms/TextField.h"
#include "windows/Scopes.h"
#include "windows/forms/FormWindow.h"

namespace nv::windows {

namespace {

TTTOOLINFOW toolOf(HWND form) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.hwnd = form;
  tool.uId = 1;
  return tool;
}

/// The text of a field or label that has no room in its window; empty when it has, and when it is told nobody.
std::wstring cutText(const forms::Control& control, HWND window) {
  using forms::Kind;
  const auto* const field = dynamic_cast<const forms::TextField*>(&control);
  if (field == nullptr && control.kind() != Kind::label) return {};
  if (control.kind() == Kind::textBox && static_cast<const forms::TextBox&>(control).passwordChar() != 0) return {};
  const std::wstring& text = field != nullptr ? field->text() : control.caption();
  const bool oneLine = field != nullptr && !control.isReadingText();
  RECT room;
  GetClientRect(window, &room);
  if (oneLine) SendMessageW(window, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
  OffsetRect(&room, -room.left, -room.top);

  const HDC context = GetDC(window);
  RECT needed{0, 0, room.right, 0};
  {
    const Selected font(context, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
    UINT wrap = field != nullptr ? readingFormat : DT_WORDBREAK;
    if (oneLine) wrap = DT_SINGLELINE | DT_NOPREFIX;
    DrawTextW(context, text.c_str(), -1, &needed, DT_CALCRECT | wrap);
  }
  ReleaseDC(window, context);
  const bool fits = needed.right <= room.right && (oneLine || needed.bottom <= room.bottom);
  return fits ? std::wstring() : text;
}

}  // namespace

Tips::Tips(FormWindow& owner) : MessageHandler(owner.form()), owner_(owner) {}

void Tips::destroy() {
  if (tip_ != nullptr) DestroyWindow(tip_);
}

void Tips::heard(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_KEYDOWN || message == WM_MOUSEWHEEL) return withdraw();
  if (message < WM_MOUSEFIRST || message > WM_MOUSELAST) return;
  POINT place{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  MapWindowPoints(window, owner_.window(), &place, 1);
  if (message == WM_MOUSEMOVE) follow(place);
  if (text_.empty()) return;
  MSG relayed{};
  relayed.hwnd = owner_.window();
  relayed.message = message;
  relayed.wParam = wparam;
  relayed.lParam = MAKELPARAM(place.x, place.y);
  SendMessageW(tip_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

/// The control whose window is there, disabled or not; nullptr for none.
ControlWindow* Tips::controlAt(POINT place) const {
  HWND window = owner_.window();
  for (HWND inner = window;; window = inner) {
    inner = ChildWindowFromPointEx(window, place, CWP_SKIPINVISIBLE);
    if (inner == nullptr || inner == window) return owner_.controlOf(window);
    MapWindowPoints(window, inner, &place, 1);
  }
}

void Tips::follow(POINT place) {
  const ControlWindow* const control = controlAt(place);
  std::wstring text = control == nullptr
                          ? std::wstring()
                          : cutText(control->control(),
                                    control->control().isReadingText() ? control->window() : control->focusWindow());
  if (control == of_ && text == text_) return;
  withdraw();
  if (!text.empty()) offer(*control, std::move(text));
}

void Tips::offer(const ControlWindow& control, std::wstring text) {
  if (tip_ == nullptr) {
    const ActivationContextScope controls;
    tip_ = createWindow({TOOLTIPS_CLASSW, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, WS_EX_TOPMOST}, L"", {},
                        owner_.window());
  }
  constexpr forms::Twips widest = 7200;
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, owner_.scale().pixels(widest));
  text_ = std::move(text);
  of_ = &control;
  TTTOOLINFOW tool = toolOf(owner_.window());
  GetWindowRect(control.window(), &tool.rect);
  MapWindowPoints(nullptr, owner_.window(), reinterpret_cast<POINT*>(&tool.rect), 2);
  tool.lpszText = text_.data();
  SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void Tips::withdraw() {
  text_.clear();
  of_ = nullptr;
  if (tip_ == nullptr) return;
  TTTOOLINFOW tool = toolOf(owner_.window());
  SendMessageW(tip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

LRESULT Tips::receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  // The mouse may be over any window in the form; to the tooltip it is the form's.
  if (message == TTM_WINDOWFROMPOINT) {
    const HWND there = reinterpret_cast<HWND>(pass(window, message, wparam, lparam));
    return reinterpret_cast<LRESULT>(IsChild(owner_.window(), there) ? owner_.window() : there);
  }
  if (message == WM_NCHITTEST) return HTTRANSPARENT;  // clicks go to what is below
  return pass(window, message, wparam, lparam);
}

}  // namespace nv::windows
