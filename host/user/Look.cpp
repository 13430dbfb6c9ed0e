#include "host/user/Look.h"

#include <algorithm>
#include <cwchar>

#include "host/application/HostWindow.h"
#include "host/user/DropList.h"
#include "host/user/Picture.h"
#include "host/user/Screen.h"

namespace nv::host {

namespace {

struct Seen {
  HWND dialog;
  HWND window;
};

std::wstring truth(bool value) {
  return value ? L"true" : L"false";
}

std::wstring textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  // The buffer has room for the terminating null behind the text.
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1)));
  return text;
}

std::wstring selectedText(HWND field) {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(field, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  const std::wstring text = textOf(field);
  return start >= text.size() ? std::wstring() : text.substr(start, end - start);
}

std::wstring chosenRow(const DropList& list) {
  std::wstring joined;
  for (const std::wstring& cell : list.row(list.chosen())) joined.append(joined.empty() ? L"" : L"\t").append(cell);
  return joined;
}

bool hasFocus(HWND window) {
  const HWND focus = GetFocus();
  return focus != nullptr && (focus == window || IsChild(window, focus));
}

/// Where the window stands in its dialog, in pixels; of the dialog itself the inside.
RECT placeInDialog(const Seen& seen) {
  RECT place{};
  if (seen.window == seen.dialog) {
    GetClientRect(seen.window, &place);
  } else {
    GetWindowRect(seen.window, &place);
    MapWindowPoints(nullptr, seen.dialog, reinterpret_cast<POINT*>(&place), 2);
  }
  return place;
}

std::wstring twips(const Seen& seen, LONG pixels) {
  return std::to_wstring(toTwips(pixels, seen.dialog));
}

std::wstring backColour(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  const COLORREF colour = Picture::ofInside(window).mostFrequentColour();
  if (colour == GetSysColor(COLOR_BTNFACE)) return L"button face";
  wchar_t text[8];
  std::swprintf(text, std::size(text), L"#%02X%02X%02X", GetRValue(colour), GetGValue(colour), GetBValue(colour));
  return text;
}

std::wstring fontName(HWND window) {
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof(font), &font);
  return font.lfFaceName;
}

std::wstring maximumLength(HWND field) {
  constexpr LRESULT everything = 30000;  // what a field that was given no limit takes at least
  const LRESULT limit = SendMessageW(field, EM_GETLIMITTEXT, 0, 0);
  return std::to_wstring(limit >= everything ? 0 : limit);
}

template <class Read>
std::wstring ofList(HWND window, Read&& read) {
  const auto list = DropList::of(window);
  return list ? read(*list) : L"no list";
}

struct Attribute {
  const wchar_t* name;
  std::wstring (*read)(const Seen& seen);
};

constexpr Attribute aspects[] = {
    {L"text", [](const Seen& seen) { return textOf(seen.window); }},
    {L"caption", [](const Seen& seen) { return textOf(seen.window); }},
    {L"visible", [](const Seen& seen) { return truth(visibleToUser(seen.window)); }},
    {L"enabled", [](const Seen& seen) { return truth(enabledForUser(seen.window)); }},
    {L"focused", [](const Seen& seen) { return truth(hasFocus(seen.window)); }},
    {L"masked",
     [](const Seen& seen) { return truth(SendMessageW(typingField(seen.window), EM_GETPASSWORDCHAR, 0, 0) != 0); }},
    {L"checked", [](const Seen& seen) { return truth(SendMessageW(seen.window, BM_GETCHECK, 0, 0) == BST_CHECKED); }},
    {L"selection", [](const Seen& seen) { return selectedText(typingField(seen.window)); }},
    {L"maxlength", [](const Seen& seen) { return maximumLength(typingField(seen.window)); }},
    {L"rows",
     [](const Seen& seen) {
       return ofList(seen.window, [](const DropList& list) { return std::to_wstring(list.rowCount()); });
     }},
    {L"columns",
     [](const Seen& seen) {
       return ofList(seen.window, [](const DropList& list) { return std::to_wstring(list.columnCount()); });
     }},
    {L"row", [](const Seen& seen) { return ofList(seen.window, chosenRow); }},
    {L"top", [](const Seen& seen) { return twips(seen, placeInDialog(seen).top); }},
    {L"left", [](const Seen& seen) { return twips(seen, placeInDialog(seen).left); }},
    {L"width",
     [](const Seen& seen) {
       const RECT place = placeInDialog(seen);
       return twips(seen, place.right - place.left);
     }},
    {L"height",
     [](const Seen& seen) {
       const RECT place = placeInDialog(seen);
       return twips(seen, place.bottom - place.top);
     }},
    {L"backcolor", [](const Seen& seen) { return backColour(seen.window); }},
    {L"font", [](const Seen& seen) { return fontName(seen.window); }},
};

}  // namespace

std::wstring aspectNames() {
  std::wstring names;
  for (const Attribute& aspect : aspects) names.append(names.empty() ? L"" : L" ").append(aspect.name);
  return names;
}

bool isAspect(std::wstring_view aspect) {
  return std::ranges::find(aspects, aspect, &Attribute::name) != std::end(aspects);
}

std::wstring look(HWND dialog, HWND window, std::wstring_view aspect) {
  return std::ranges::find(aspects, aspect, &Attribute::name)->read({dialog, window});
}

HWND typingField(HWND window) {
  const auto list = DropList::of(window);
  return list && list->field() != nullptr ? list->field() : window;
}

}  // namespace nv::host
