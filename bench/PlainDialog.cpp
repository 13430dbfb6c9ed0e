#include "bench/PlainDialog.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string>
#include <string_view>

namespace nv::bench {

namespace {

struct SystemClass {
  std::wstring_view name;
  WORD number;  // by which templates know it
  DWORD style;
};
/// What stands for a window of each class: its style, which a type is added to. Links and pictures become labels.
constexpr WORD buttonNumber = 0x0080, editNumber = 0x0081, labelNumber = 0x0082, comboBoxNumber = 0x0085;
constexpr SystemClass classes[] = {{L"Button", buttonNumber, 0},
                                   {L"Edit", editNumber, ES_AUTOHSCROLL | WS_BORDER},
                                   {L"Static", labelNumber, 0},
                                   {L"NVRandom.Drawn", labelNumber, 0},
                                   {L"ComboBox", comboBoxNumber, CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL},
                                   {L"NVRandom.DropDownList", comboBoxNumber, CBS_DROPDOWN | CBS_AUTOHSCROLL}};

std::wstring classOf(HWND window) {
  wchar_t name[64];
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 64))};
}

void append(PlainDialog& plain, const void* structure, std::size_t size) {
  const auto* const words = static_cast<const WORD*>(structure);
  plain.insert(plain.end(), words, words + size / sizeof(WORD));
}

void append(PlainDialog& plain, std::wstring_view text) {
  plain.insert(plain.end(), text.begin(), text.end());
  plain.push_back(0);
}

void appendText(PlainDialog& plain, HWND window) {
  wchar_t text[512];
  append(plain, {text, static_cast<std::size_t>(GetWindowTextW(window, text, 512))});
}

DWORD styleOf(HWND window) {
  return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
}

/// A dialog's template without items.
PlainDialog emptyDialog(HWND dialog, SIZE units) {
  DLGTEMPLATE header{};
  // A group box leaves its inside to the dialog to paint.
  header.style = (styleOf(dialog) & ~static_cast<DWORD>(WS_VISIBLE | WS_CLIPCHILDREN)) | DS_SETFONT;
  header.cx = static_cast<short>(units.cx);
  header.cy = static_cast<short>(units.cy);
  PlainDialog plain;
  append(plain, &header, sizeof(header));
  plain.insert(plain.end(), 2, 0);  // no menu, the class of all dialogs
  appendText(plain, dialog);
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(GetWindow(dialog, GW_CHILD), WM_GETFONT, 0, 0)), sizeof(font), &font);
  plain.push_back(static_cast<WORD>(MulDiv(-font.lfHeight, 72, 96)));
  append(plain, font.lfFaceName);
  return plain;
}

struct Items {
  HWND dialog;
  RECT thousand;  // units of templates, in pixels
  PlainDialog plain;
};

RECT unitsOf(RECT pixels, const RECT& thousand) {
  const auto across = [&](LONG x) { return MulDiv(x, 1000, thousand.right); };
  const auto down = [&](LONG y) { return MulDiv(y, 1000, thousand.bottom); };
  return {across(pixels.left), down(pixels.top), across(pixels.right), down(pixels.bottom)};
}

BOOL CALLBACK addItem(HWND window, LPARAM parameter) {
  auto& items = *reinterpret_cast<Items*>(parameter);
  const std::wstring name = classOf(window);
  const auto* const standsFor = std::ranges::find(classes, std::wstring_view(name), &SystemClass::name);
  const std::wstring around = classOf(GetParent(window));
  // What a control makes for itself, the system's controls make, too.
  const bool ofControl = around != L"Button" && GetParent(window) != items.dialog;
  if (!IsWindowVisible(window) || ofControl || standsFor == std::end(classes)) return TRUE;

  DWORD type = standsFor->number == buttonNumber || name == L"Static" ? styleOf(window) & 0xF : 0;
  if (standsFor->number == buttonNumber && type == BS_OWNERDRAW) type = BS_PUSHBUTTON;
  RECT place;
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, items.dialog, reinterpret_cast<POINT*>(&place), 2);
  const RECT units = unitsOf(place, items.thousand);
  DLGITEMTEMPLATE item{};
  item.style = WS_CHILD | WS_VISIBLE | standsFor->style | type | (styleOf(window) & (WS_TABSTOP | WS_DISABLED));
  item.x = static_cast<short>(units.left);
  item.y = static_cast<short>(units.top);
  item.cx = static_cast<short>(units.right - units.left);
  item.cy = static_cast<short>(units.bottom - units.top);
  item.id = LOWORD(reinterpret_cast<ULONG_PTR>(window));
  if (items.plain.size() % 2 != 0) items.plain.push_back(0);  // items begin at a multiple of four bytes
  append(items.plain, &item, sizeof(item));
  items.plain.insert(items.plain.end(), {0xFFFF, standsFor->number});
  appendText(items.plain, window);
  items.plain.push_back(0);  // nothing for the item to know
  ++reinterpret_cast<DLGTEMPLATE*>(items.plain.data())->cdit;
  return TRUE;
}

INT_PTR CALLBACK nobody(HWND, UINT message, WPARAM, LPARAM) {
  return message == WM_INITDIALOG;  // the first control gets the focus
}

/// What a plain list asks the window around it.
LRESULT CALLBACK answerList(HWND around, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != WM_NOTIFY) return DefWindowProcW(around, message, wparam, lparam);
  const Lines& lines = *reinterpret_cast<const Lines*>(GetWindowLongPtrW(around, GWLP_USERDATA));
  const auto code = reinterpret_cast<const NMHDR*>(lparam)->code;
  if (code == LVN_ODFINDITEMW) {
    const auto letter = static_cast<char>(std::toupper(*reinterpret_cast<const NMLVFINDITEMW*>(lparam)->lvfi.psz));
    std::size_t row = 0;
    while (row < lines.count() && !lines[row].starts_with(letter)) ++row;
    return row < lines.count() ? static_cast<LRESULT>(row) : -1;
  }
  const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW*>(lparam)->item;
  if (code != LVN_GETDISPINFOW || item.iSubItem != 0 || (item.mask & LVIF_TEXT) == 0) return 0;
  const std::string_view line = lines[static_cast<std::size_t>(item.iItem)];
  *std::ranges::copy(line.substr(0, line.find(',')), item.pszText).out = L'\0';
  return 0;
}

}  // namespace

PlainDialog plainDialog(HWND dialog) {
  Items items{dialog, {0, 0, 1000, 1000}, {}};
  const HWND empty = made(emptyDialog(dialog, {0, 0}), GetParent(dialog));
  MapDialogRect(empty, &items.thousand);
  DestroyWindow(empty);
  RECT client;
  GetClientRect(dialog, &client);
  const RECT units = unitsOf(client, items.thousand);
  items.plain = emptyDialog(dialog, {units.right, units.bottom});
  EnumChildWindows(dialog, addItem, reinterpret_cast<LPARAM>(&items));
  return std::move(items.plain);
}

HWND made(const PlainDialog& plain, HWND host) {
  return CreateDialogIndirectParamW(GetModuleHandleW(nullptr), reinterpret_cast<const DLGTEMPLATE*>(plain.data()), host,
                                    nobody, 0);
}

HWND plainList(HWND owner, const RECT& place, const Lines& lines) {
  const int width = place.right - place.left;
  const int height = place.bottom - place.top;
  const HWND around = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"", WS_POPUP | WS_BORDER, place.left, place.top,
                                      width, height, owner, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(around, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&lines));
  SetWindowLongPtrW(around, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(answerList));
  const HWND list = CreateWindowW(WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL,
                                  0, 0, width, height, around, nullptr, nullptr, nullptr);
  for (int i = 0; i < 3; ++i) {
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = width / 4;
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&column));
  }
  SendMessageW(list, LVM_SETITEMCOUNT, lines.count(), 0);
  ShowWindow(around, SW_SHOWNOACTIVATE);
  return list;
}

}  // namespace nv::bench
