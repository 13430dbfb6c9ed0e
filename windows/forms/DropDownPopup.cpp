#include "windows/forms/DropDownPopup.h"

#include <algorithm>

#include "windows/Scopes.h"
#include "windows/forms/DropDownListWindow.h"
#include "windows/forms/FormWindow.h"
#include "windows/forms/WindowClasses.h"

namespace nv::windows {

namespace {

constexpr int mostVisibleRows = 12;

/// The open list of this thread, of which there is at most one, for the hook that closes it.
thread_local DropDownPopup* openPopup = nullptr;

}  // namespace

void DropDownPopup::create() {
  const ActivationContextScope controls;
  const HWND root = GetAncestor(owner_.window(), GA_ROOT);
  if (popup_ == nullptr) {
    popup_ = createWindow({dropDownPopupClass, WS_POPUP | WS_BORDER | WS_CLIPCHILDREN,
                           WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE},
                          L"", {}, root);
  }
  rows_ = createWindow({WC_LISTVIEWW, WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                                          LVS_SHOWSELALWAYS | LVS_NOSORTHEADER},
                       L"", {}, popup_);
  ListView_SetExtendedListViewStyle(rows_, LVS_EX_FULLROWSELECT);
  rowsChanged();
}

HWND DropDownPopup::listWindow() {
  if (rows_ == nullptr) {
    create();
    setColumns(reinterpret_cast<HFONT>(SendMessageW(owner_.window(), WM_GETFONT, 0, 0)));
  }
  return rows_;
}

/// Sets the columns at the form's scale and in its font. Returns their width, in pixels.
int DropDownPopup::setColumns(HFONT font) {
  SendMessageW(rows_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  while (ListView_DeleteColumn(rows_, 0)) {
  }
  int width = 0;
  for (std::size_t i = 0; i < list_.columns().size(); ++i) {
    std::wstring title = list_.columns()[i].title;
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = title.data();
    column.cx = owner_.owner().scale().pixels(list_.columns()[i].width);
    SendMessageW(rows_, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    width += column.cx;
  }
  return width;
}

/// Height of the column headers and so many rows, in pixels.
int DropDownPopup::heightOf(int rows) const {
  const auto approximate = [this](int count) { return HIWORD(ListView_ApproximateViewRect(rows_, -1, -1, count)); };
  const int row = approximate(2) - approximate(1);
  HDLAYOUT layout{};
  RECT room{0, 0, 1000, 1000};
  WINDOWPOS place{};
  layout.prc = &room;
  layout.pwpos = &place;
  Header_Layout(ListView_GetHeader(rows_), &layout);
  return place.cy + rows * row;
}

void DropDownPopup::show(const RECT& anchor, HFONT font) {
  listWindow();
  const int columns = setColumns(font);

  const int rows = std::clamp(static_cast<int>(list_.rows().size()), 1, mostVisibleRows);
  const bool scrolls = list_.rows().size() > static_cast<std::size_t>(mostVisibleRows);
  const int dpi = owner_.owner().scale().dpi();
  const int border = 2 * systemMetric(SM_CXBORDER, dpi);
  const int width =
      std::max<int>(anchor.right - anchor.left, columns + border + (scrolls ? systemMetric(SM_CXVSCROLL, dpi) : 0));
  int height = heightOf(rows) + border;

  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromRect(&anchor, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& work = monitor.rcWork;
  int top = anchor.bottom;
  if (top + height > work.bottom) {
    const bool above = anchor.top - work.top > work.bottom - anchor.bottom;
    height = std::min<int>(height, above ? anchor.top - work.top : work.bottom - anchor.bottom);
    if (above) top = anchor.top - height;
  }
  const int left = std::clamp<int>(anchor.left, work.left, std::max<int>(work.left, work.right - width));

  openPopup = this;
  outsideClicks_.reset(SetWindowsHookExW(WH_MOUSE, mouseHook, nullptr, GetCurrentThreadId()));
  SetWindowPos(popup_, HWND_TOPMOST, left, top, width, height, SWP_NOACTIVATE);
  RECT inside;
  GetClientRect(popup_, &inside);
  SetWindowPos(rows_, nullptr, 0, 0, inside.right, inside.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
  ShowWindow(popup_, SW_SHOWNOACTIVATE);
  InvalidateRect(owner_.window(), nullptr, TRUE);  // its arrow goes down
  rowChanged();
}

void DropDownPopup::hide() {
  outsideClicks_.reset();
  if (openPopup == this) openPopup = nullptr;
  if (!open()) return;
  ShowWindow(popup_, SW_HIDE);
  InvalidateRect(owner_.window(), nullptr, TRUE);  // its arrow comes up
}

void DropDownPopup::destroy() {
  hide();
  if (popup_ != nullptr) DestroyWindow(popup_);
}

void DropDownPopup::rowsChanged() {
  if (rows_ != nullptr) ListView_SetItemCountEx(rows_, static_cast<int>(list_.rows().size()), 0);
}

void DropDownPopup::rowChanged() {
  if (!open()) return;  // it shows the row once it is opened
  const auto row = list_.selectedRow();
  highlight(row ? static_cast<int>(*row) : none);
  if (row) ListView_EnsureVisible(rows_, highlighted_, FALSE);
}

/// Not by the list's own rule of one selected row at a time: to clear the others, a list of a hundred thousand looks at
/// each.
void DropDownPopup::highlight(int row) {
  if (highlighted_ != none) ListView_SetItemState(rows_, highlighted_, 0, LVIS_SELECTED);
  if (row != none) ListView_SetItemState(rows_, row, LVIS_SELECTED, LVIS_SELECTED);
  highlighted_ = row;
}

int DropDownPopup::page() const {
  return open() ? std::max(1, ListView_GetCountPerPage(rows_) - 1) : mostVisibleRows;
}

void DropDownPopup::supplyText(NMLVDISPINFOW& info) const {
  if ((info.item.mask & LVIF_TEXT) == 0 || info.item.cchTextMax <= 0) return;
  const auto row = static_cast<std::size_t>(info.item.iItem);
  const auto column = static_cast<std::size_t>(info.item.iSubItem);
  const std::wstring_view cell = row < list_.rows().size() ? list_.cell(row, column) : std::wstring_view();
  const std::size_t copied = cell.copy(info.item.pszText, static_cast<std::size_t>(info.item.cchTextMax - 1));
  info.item.pszText[copied] = L'\0';
}

/// The list never has the focus, but its selected row is shown as if it had.
LRESULT DropDownPopup::colourRow(NMLVCUSTOMDRAW& item) const {
  if (item.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (item.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const auto row = static_cast<int>(item.nmcd.dwItemSpec);
  if (ListView_GetItemState(rows_, row, LVIS_SELECTED) == 0) return CDRF_DODEFAULT;
  item.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED | CDIS_FOCUS);
  item.clrText = GetSysColor(COLOR_HIGHLIGHTTEXT);
  item.clrTextBk = GetSysColor(COLOR_HIGHLIGHT);
  return CDRF_NEWFONT;
}

std::optional<std::size_t> DropDownPopup::rowAt(POINT place) const {
  LVHITTESTINFO hit{};
  hit.pt = place;
  const int row = ListView_SubItemHitTest(rows_, &hit);
  if (row < 0) return std::nullopt;
  return static_cast<std::size_t>(row);
}

Told DropDownPopup::tell(HWND window) const {
  if (window != rows_) return {};
  return {.name = nameOf(list_), .role = ROLE_SYSTEM_LIST};
}

/// The row's cells, each but the first behind the title of its column.
std::wstring DropDownPopup::name(long row) const {
  std::wstring text;
  for (std::size_t column = 0; column < list_.columns().size(); ++column) {
    const std::wstring_view cell = list_.cell(static_cast<std::size_t>(row), column);
    if (cell.empty()) continue;
    if (column > 0) text.append(L", ").append(list_.columns()[column].title).append(L" ");
    text.append(cell);
  }
  return text;
}

long DropDownPopup::selected() const {
  return list_.selectedRow() ? static_cast<long>(*list_.selectedRow()) : -1;
}

RECT DropDownPopup::area(long row) const {
  RECT inside;
  GetClientRect(rows_, &inside);
  RECT place{};
  ListView_GetItemRect(rows_, static_cast<int>(row), &place, LVIR_BOUNDS);
  RECT seen{};
  IntersectRect(&seen, &inside, &place);
  MapWindowPoints(rows_, nullptr, reinterpret_cast<POINT*>(&seen), 2);
  return seen;
}

long DropDownPopup::at(POINT place) const {
  ScreenToClient(rows_, &place);
  const auto row = rowAt(place);
  return row ? static_cast<long>(*row) : -1;
}

void DropDownPopup::pick(long row) const {
  PostMessageW(owner_.window(), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

LRESULT DropDownPopup::receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_GETOBJECT) {
    const auto object = accessibles_.answer(*this, window, wparam, lparam);
    return object ? *object : pass(window, message, wparam, lparam);
  }
  if (message == WM_DESTROY) accessibles_.disconnect(window);
  const auto answer = window == popup_ ? popupReceives(message, lparam) : listReceives(message, lparam);
  return answer ? *answer : pass(window, message, wparam, lparam);
}

std::optional<LRESULT> DropDownPopup::popupReceives(UINT message, LPARAM lparam) {
  if (message == WM_MOUSEACTIVATE) return MA_NOACTIVATE;
  if (message != WM_NOTIFY) return std::nullopt;
  switch (reinterpret_cast<const NMHDR*>(lparam)->code) {
    case LVN_GETDISPINFOW:
      supplyText(*reinterpret_cast<NMLVDISPINFOW*>(lparam));
      return 0;
    case NM_CUSTOMDRAW:
      return colourRow(*reinterpret_cast<NMLVCUSTOMDRAW*>(lparam));
    default:
      return std::nullopt;
  }
}

/// The list shows the row under the mouse and gives it to the control; clicks do not reach the list itself, which would
/// take the focus.
std::optional<LRESULT> DropDownPopup::listReceives(UINT message, LPARAM lparam) {
  const POINT place{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  switch (message) {
    case WM_MOUSEMOVE:
      if (const auto row = rowAt(place)) highlight(static_cast<int>(*row));
      return 0;
    case WM_LBUTTONUP:
      if (const auto row = rowAt(place)) owner_.picked(*row);
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
      return 0;
    default:
      return std::nullopt;
  }
}

void DropDownPopup::destroyed(HWND window) {
  (window == popup_ ? popup_ : rows_) = nullptr;
}

/// A click outside the list and its control closes the list, whatever window of the thread it goes to.
LRESULT CALLBACK DropDownPopup::mouseHook(int code, WPARAM wparam, LPARAM lparam) {
  const bool down = wparam == WM_LBUTTONDOWN || wparam == WM_RBUTTONDOWN || wparam == WM_MBUTTONDOWN ||
                    wparam == WM_NCLBUTTONDOWN || wparam == WM_NCRBUTTONDOWN;
  if (code == HC_ACTION && down && openPopup != nullptr) {
    const HWND target = reinterpret_cast<const MOUSEHOOKSTRUCT*>(lparam)->hwnd;
    const HWND control = openPopup->owner_.window();
    const bool inside = target == openPopup->popup_ || IsChild(openPopup->popup_, target) || target == control ||
                        IsChild(control, target);
    if (!inside) openPopup->hide();
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace nv::windows
