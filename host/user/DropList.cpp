#include "host/user/DropList.h"

#include <commctrl.h>

#include <algorithm>

namespace nv::host {

namespace {

std::wstring classOf(HWND window) {
  wchar_t name[64];
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, static_cast<int>(std::size(name))))};
}

POINT middleOnScreen(HWND window, const RECT& place) {
  POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  ClientToScreen(window, &middle);
  return middle;
}

LPARAM pointer(void* value) {
  return reinterpret_cast<LPARAM>(value);
}

}  // namespace

std::optional<DropList> DropList::of(HWND window) {
  const std::wstring kind = classOf(window);
  if (_wcsicmp(kind.c_str(), L"ComboBox") != 0 && kind != L"NVRandom.DropDownList") return std::nullopt;
  COMBOBOXINFO info{};
  info.cbSize = sizeof(info);
  if (SendMessageW(window, CB_GETCOMBOBOXINFO, 0, pointer(&info)) == 0) return std::nullopt;
  return DropList(window, info);
}

bool DropList::multiColumn() const {
  return classOf(info_.hwndList) == WC_LISTVIEWW;
}

bool DropList::dropped() const {
  return SendMessageW(window_, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

int DropList::rowCount() const {
  return static_cast<int>(SendMessageW(window_, CB_GETCOUNT, 0, 0));
}

int DropList::columnCount() const {
  return multiColumn() ? Header_GetItemCount(ListView_GetHeader(info_.hwndList)) : 1;
}

int DropList::chosen() const {
  return static_cast<int>(SendMessageW(window_, CB_GETCURSEL, 0, 0));
}

std::vector<std::wstring> DropList::row(int index) const {
  const auto length = SendMessageW(window_, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
  if (index < 0 || length == CB_ERR) return {};
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  SendMessageW(window_, CB_GETLBTEXT, static_cast<WPARAM>(index), pointer(text.data()));
  std::vector<std::wstring> cells;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(L'\t', start), text.size());
    cells.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return cells;
}

int DropList::find(const std::wstring& text) const {
  for (int index = 0; index < rowCount(); ++index) {
    const auto cells = row(index);
    if (std::ranges::find(cells, text) != cells.end()) return index;
  }
  return -1;
}

POINT DropList::button() const {
  return middleOnScreen(window_, info_.rcButton);
}

POINT DropList::bringIntoView(int index) const {
  RECT place{};
  if (multiColumn()) {
    ListView_EnsureVisible(info_.hwndList, index, FALSE);
    ListView_GetItemRect(info_.hwndList, index, &place, LVIR_LABEL);
  } else {
    SendMessageW(info_.hwndList, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
    SendMessageW(info_.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), pointer(&place));
  }
  return middleOnScreen(info_.hwndList, place);
}

}  // namespace nv::host
