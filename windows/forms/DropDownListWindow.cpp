#include "windows/forms/DropDownListWindow.h"

#include <algorithm>

#include "windows/forms/ControlWindows.h"
#include "windows/forms/FormWindow.h"
#include "windows/forms/ListArrow.h"
#include "windows/forms/WindowClasses.h"

namespace nv::windows {

using forms::Attribute;

ControlWindow::Native DropDownListWindow::native() const {
  return {dropDownListClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
}

void DropDownListWindow::created() {
  const DWORD style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | WS_TABSTOP | (enabled() ? 0 : WS_DISABLED);
  text_.connect(createWindow({L"EDIT", style}, L"", parts().text, window()));
}

void DropDownListWindow::apply(Attribute attribute) {
  switch (attribute) {
    case Attribute::rows:
      popup_.rowsChanged();
      break;
    case Attribute::row:
      popup_.rowChanged();
      break;
    case Attribute::visible:
    case Attribute::enabled:
      popup_.hide();
      EnableWindow(text_.window(), enabled());
      ControlWindow::apply(attribute);
      break;
    default:
      if (!text_.apply(attribute)) ControlWindow::apply(attribute);
      if (attribute == Attribute::appearance) {
        drop(false);
        popup_.destroy();  // a list that is given more room would keep the scroll bars of that which it had
        ControlWindow::apply(Attribute::place);  // the font decides about the height
      }
      if (attribute == Attribute::place || attribute == Attribute::appearance) moveWindow(text_.window(), parts().text);
  }
}

DropDownListWindow::Parts DropDownListWindow::parts() const {
  // An edit window without an edge keeps its text in its corner; in one with an edge it stands this much further in.
  constexpr int inset = 1;
  const int dpi = owner().scale().dpi();
  Parts parts;
  GetClientRect(window(), &parts.whole);
  parts.inside = parts.whole;
  InflateRect(&parts.inside, -systemMetric(SM_CXEDGE, dpi), -systemMetric(SM_CYEDGE, dpi));
  parts.button = arrowArea(parts.inside, dpi);
  const LONG left = parts.inside.left + inset;
  parts.text = {left, parts.inside.top + inset, std::max(left, parts.button.left), parts.inside.bottom};
  return parts;
}

/// The edge as the current visual style has it, else that of the system.
void DropDownListWindow::paint(HDC context, const RECT& /*area*/) {
  const Parts of = parts();
  const bool alive = list_.look().alive;
  if (const Theme theme(OpenThemeData(window(), comboBoxTheme)); theme) {
    DrawThemeBackground(theme.get(), context, CP_BORDER, themedState(alive, popup_.open()), &of.whole, nullptr);
  } else {
    RECT edge = of.whole;
    DrawEdge(context, &edge, EDGE_SUNKEN, BF_RECT);
  }
  FillRect(context, &of.inside, owner().brush(background()));
  paintArrow(window(), context, of.button, alive, popup_.open());
}

LRESULT DropDownListWindow::handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (window == text_.window()) {
    if (message == WM_KILLFOCUS) {
      drop(false);
    } else if (message == WM_MOUSEWHEEL && popup_.open()) {
      return SendMessageW(popup_.listWindow(), message, wparam, lparam);
    }
    return ControlWindow::handle(window, message, wparam, lparam);
  }
  LRESULT result = 0;
  if (answer(message, wparam, lparam, result)) return result;
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(wparam) == EN_CHANGE) text_.changed();
      return 0;
    case WM_SETFOCUS:
      SetFocus(text_.window());
      return 0;
    case WM_SETFONT:
      SendMessageW(text_.window(), message, wparam, lparam);
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      const LRESULT passed = ControlWindow::handle(window, message, wparam, lparam);
      if (this->window() != nullptr && list_.hasFocus()) drop(!popup_.open());
      return passed;
    }
    case WM_WINDOWPOSCHANGED:
      drop(false);
      break;
    case WM_DESTROY:
      popup_.destroy();
      break;
    default:
      break;
  }
  return ControlWindow::handle(window, message, wparam, lparam);
}

void DropDownListWindow::drop(bool down) {
  if (down == popup_.open()) return;
  if (down) {
    RECT anchor;
    GetWindowRect(window(), &anchor);
    popup_.show(anchor, owner().font(list_.font(), false));
  } else {
    popup_.hide();
  }
  NotifyWinEvent(EVENT_OBJECT_STATECHANGE, window(), OBJID_CLIENT, CHILDID_SELF);
}

void DropDownListWindow::picked(std::size_t row) {
  drop(false);
  moveTo(static_cast<std::ptrdiff_t>(row));
}

/// Picks the row, or the nearest one that there is.
void DropDownListWindow::moveTo(std::ptrdiff_t row) {
  const auto last = static_cast<std::ptrdiff_t>(list_.rows().size()) - 1;
  if (last < 0) return;
  list_.picked(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(row, 0, last)));
  if (window() != nullptr) list_.selectAll();
}

bool DropDownListWindow::usesKey(WPARAM key) {
  const int shift = shiftState();
  const bool open = popup_.open();
  const bool alt = shift == forms::altKey;
  if ((key == forms::keys::f4 && shift == 0) || ((key == forms::keys::down || key == forms::keys::up) && alt)) {
    drop(!open);
    return true;
  }
  if (shift != 0) return false;
  const std::ptrdiff_t current = list_.selectedRow() ? static_cast<std::ptrdiff_t>(*list_.selectedRow()) : -1;
  switch (key) {
    case forms::keys::down:
      moveTo(current + 1);
      return true;
    case forms::keys::up:
      moveTo(current - 1);
      return true;
    case forms::keys::pageDown:
      moveTo(current + popup_.page());
      return true;
    case forms::keys::pageUp:
      moveTo(current - popup_.page());
      return true;
    case forms::keys::enter:
    case forms::keys::escape:
      if (open) drop(false);
      return open;
    default:
      return false;
  }
}

std::wstring DropDownListWindow::rowText(std::size_t row) const {
  std::wstring text;
  for (std::size_t column = 0; column < list_.columns().size(); ++column) {
    if (column != 0) text += L'\t';
    text += list_.cell(row, column);
  }
  return text;
}

bool DropDownListWindow::answer(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) {
  switch (message) {
    case CB_GETCOUNT:
      result = static_cast<LRESULT>(list_.rows().size());
      return true;
    case CB_GETCURSEL:
      result = list_.selectedRow() ? static_cast<LRESULT>(*list_.selectedRow()) : CB_ERR;
      return true;
    case CB_GETLBTEXTLEN:
    case CB_GETLBTEXT: {
      result = CB_ERR;
      if (wparam >= list_.rows().size()) return true;
      const std::wstring text = rowText(wparam);
      if (message == CB_GETLBTEXT) text.copy(reinterpret_cast<wchar_t*>(lparam), text.size() + 1);
      if (message == CB_GETLBTEXT) reinterpret_cast<wchar_t*>(lparam)[text.size()] = L'\0';
      result = static_cast<LRESULT>(text.size());
      return true;
    }
    case CB_SETCURSEL:
      result = wparam < list_.rows().size() ? static_cast<LRESULT>(wparam) : CB_ERR;
      if (result != CB_ERR) picked(wparam);
      return true;
    case CB_SHOWDROPDOWN:
      drop(wparam != FALSE);
      result = TRUE;
      return true;
    case CB_GETDROPPEDSTATE:
      result = popup_.open();
      return true;
    case CB_GETEDITSEL:
      result = SendMessageW(text_.window(), EM_GETSEL, wparam, lparam);
      return true;
    case CB_SETEDITSEL:
      result = SendMessageW(text_.window(), EM_SETSEL, static_cast<WPARAM>(GET_X_LPARAM(lparam)), GET_Y_LPARAM(lparam));
      return true;
    case CB_LIMITTEXT:
      result = SendMessageW(text_.window(), EM_LIMITTEXT, wparam, 0);
      return true;
    case CB_GETCOMBOBOXINFO: {
      auto& parts = *reinterpret_cast<COMBOBOXINFO*>(lparam);
      GetClientRect(text_.window(), &parts.rcItem);
      parts.rcButton = this->parts().button;
      parts.stateButton = popup_.open() ? STATE_SYSTEM_PRESSED : 0;
      parts.hwndCombo = window();
      parts.hwndItem = text_.window();
      parts.hwndList = popup_.listWindow();
      result = TRUE;
      return true;
    }
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
    case WM_SETTEXT:
    case WM_GETFONT:
    case WM_CUT:
    case WM_COPY:
    case WM_PASTE:
    case WM_CLEAR:
    case EM_GETLIMITTEXT:
      if (text_.window() == nullptr) return false;
      result = SendMessageW(text_.window(), message, wparam, lparam);
      return true;
    default:
      return false;
  }
}

std::unique_ptr<ControlWindow> makeDropDownListWindow(FormWindow& owner, forms::DropDownList& list) {
  return std::make_unique<DropDownListWindow>(owner, list);
}

}  // namespace nv::windows
