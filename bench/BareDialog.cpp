#include "bench/BareDialog.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "windows/Handles.h"

namespace nv::bench {

namespace {

constexpr const wchar_t* bareClass = L"nvbench.Bare";
constexpr std::wstring_view ownClasses = L"NVRandom.";

struct Visit {
  std::vector<HWND> windows;
  std::vector<BareWindow> description;
};

std::wstring_view classOf(const BareWindow& window) {
  return window.windowClass;
}

BareWindow describe(HWND window, int parent) {
  BareWindow bare{};
  bare.original = window;
  GetClassNameW(window, bare.windowClass, static_cast<int>(std::size(bare.windowClass)));
  GetWindowTextW(window, bare.text, static_cast<int>(std::size(bare.text)));
  bare.style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
  bare.extendedStyle = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
  GetWindowRect(window, &bare.place);
  if (parent >= 0) MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&bare.place), 2);
  bare.parent = parent;
  const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  if (font != nullptr) GetObjectW(font, sizeof(bare.font), &bare.font);
  return bare;
}

BOOL CALLBACK visit(HWND window, LPARAM parameter) {
  auto& [windows, description] = *reinterpret_cast<Visit*>(parameter);
  const auto parent = std::ranges::find(windows, GetParent(window)) - windows.begin();
  const bool listed = parent != static_cast<std::ptrdiff_t>(windows.size());
  if (!listed || lstrcmpiW(description[static_cast<std::size_t>(parent)].windowClass, L"COMBOBOX") == 0) return TRUE;
  windows.push_back(window);
  description.push_back(describe(window, static_cast<int>(parent)));
  return TRUE;
}

HFONT fontFor(const LOGFONTW& wanted) {
  static std::vector<std::pair<LOGFONTW, windows::FontHandle>> fonts;
  for (const auto& [known, handle] : fonts) {
    if (std::memcmp(&known, &wanted, sizeof(known)) == 0) return handle.get();
  }
  return fonts.emplace_back(wanted, CreateFontIndirectW(&wanted)).second.get();
}

}  // namespace

std::vector<BareWindow> described(HWND dialog) {
  Visit all{{dialog}, {describe(dialog, -1)}};
  EnumChildWindows(dialog, visit, reinterpret_cast<LPARAM>(&all));
  all.description.front().style &= ~static_cast<DWORD>(WS_VISIBLE);
  return std::move(all.description);
}

std::vector<HWND> made(const std::vector<BareWindow>& description, HWND owner) {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  WNDCLASSEXW known{};
  known.cbSize = sizeof(known);
  if (!GetClassInfoExW(program, bareClass, &known)) {
    known.lpfnWndProc = DefWindowProcW;
    known.hInstance = program;
    known.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    known.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    known.lpszClassName = bareClass;
    RegisterClassExW(&known);
  }
  std::vector<HWND> windows;
  for (const BareWindow& each : description) {
    const wchar_t* const windowClass = classOf(each).starts_with(ownClasses) ? bareClass : each.windowClass;
    const HWND parent = each.parent < 0 ? owner : windows[static_cast<std::size_t>(each.parent)];
    windows.push_back(CreateWindowExW(each.extendedStyle, windowClass, each.text, each.style, each.place.left,
                                      each.place.top, each.place.right - each.place.left,
                                      each.place.bottom - each.place.top, parent, nullptr, program, nullptr));
    if (each.font.lfHeight != 0) {
      SendMessageW(windows.back(), WM_SETFONT, reinterpret_cast<WPARAM>(fontFor(each.font)), FALSE);
    }
  }
  return windows;
}

}  // namespace nv::bench
