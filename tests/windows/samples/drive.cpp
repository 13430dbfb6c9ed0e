// Acts as the user of a dialog in another process, by the names that the component gives its windows:
//
//   drive STEP...      CONTROL=TEXT types behind what is there, CONTROL presses a button
//
// Each step waits until its control is there and accepts input, ten seconds at most; then the exit code is 1.
#include <windows.h>

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr ULONGLONG longestWait = 10'000;  // ms
constexpr DWORD interval = 10;             // ms, between two looks at another process' windows

std::wstring nameOf(HWND window) {
  wchar_t marked[64];
  const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"NVRandom.Name")));
  std::wstring name(marked, atom == 0 ? 0 : GlobalGetAtomNameW(atom, marked, static_cast<int>(std::size(marked))));
  std::erase(name, L'^');  // in front of each capital
  return name;
}

struct Search {
  std::wstring_view name;
  HWND found;
};

BOOL CALLBACK look(HWND window, LPARAM lparam) {
  Search& search = *reinterpret_cast<Search*>(lparam);
  if (IsWindowVisible(window) && IsWindowEnabled(window) && nameOf(window) == search.name) search.found = window;
  if (search.found == nullptr && GetAncestor(window, GA_PARENT) == GetDesktopWindow()) {
    EnumChildWindows(window, look, lparam);
  }
  return search.found == nullptr;
}

HWND awaited(std::wstring_view name) {
  const ULONGLONG end = GetTickCount64() + longestWait;
  for (;;) {
    Search search{name, nullptr};
    EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    if (search.found != nullptr || GetTickCount64() > end) return search.found;
    Sleep(interval);
  }
}

void click(HWND window) {
  RECT area;
  GetClientRect(window, &area);
  const LPARAM at = MAKELPARAM(area.right - 3, area.bottom / 2);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, at);
  PostMessageW(window, WM_LBUTTONUP, 0, at);
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::wstring_view step = argv[i];
    const std::size_t equals = step.find(L'=');
    const HWND window = awaited(step.substr(0, equals));
    if (window == nullptr) {
      fwprintf(stderr, L"drive: nothing to do %ls with\n", argv[i]);
      return 1;
    }
    click(window);
    if (equals == std::wstring_view::npos) continue;
    for (const wchar_t character : step.substr(equals + 1)) PostMessageW(window, WM_CHAR, character, 1);
  }
  return 0;
}
