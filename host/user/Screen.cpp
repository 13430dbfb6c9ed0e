#include "host/user/Screen.h"

#include <algorithm>

namespace nv::host {

namespace {

BOOL CALLBACK collect(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

/// The windows in a window, at any depth.
std::vector<HWND> windowsIn(HWND window) {
  std::vector<HWND> windows;
  EnumChildWindows(window, collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

bool isMessageBox(HWND window) {
  wchar_t name[8];
  return GetClassNameW(window, name, static_cast<int>(std::size(name))) > 0 && std::wstring_view(name) == L"#32770";
}

}  // namespace

std::vector<HWND> topLevelWindows(DWORD thread) {
  std::vector<HWND> windows;
  EnumThreadWindows(thread, collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::wstring nameOf(HWND window) {
  wchar_t marked[64];
  const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"NVRandom.Name")));
  std::wstring name(marked, atom == 0 ? 0 : GlobalGetAtomNameW(atom, marked, static_cast<int>(std::size(marked))));
  std::erase(name, L'^');  // in front of each capital
  return name;
}

std::vector<HWND> dialogs(DWORD thread, std::wstring_view name) {
  std::vector<HWND> found;
  const auto take = [&](HWND window) {
    const std::wstring own = nameOf(window);
    if (own.starts_with(L"frm") && (name.empty() || own == name) && IsWindowVisible(window)) found.push_back(window);
  };
  for (const HWND window : topLevelWindows(thread)) {
    take(window);
    std::ranges::for_each(windowsIn(window), take);
  }
  std::stable_partition(found.begin(), found.end(), enabledForUser);
  return found;
}

std::vector<HWND> controlsIn(HWND dialog) {
  auto windows = windowsIn(dialog);
  std::erase_if(windows, [](HWND window) { return nameOf(window).empty(); });
  return windows;
}

HWND controlIn(HWND dialog, std::wstring_view name) {
  const auto windows = windowsIn(dialog);
  const auto found = std::ranges::find(windows, name, nameOf);
  return found == windows.end() ? nullptr : *found;
}

HWND messageBox(DWORD thread) {
  const auto windows = topLevelWindows(thread);
  const auto found = std::ranges::find_if(
      windows, [](HWND window) { return isMessageBox(window) && IsWindowVisible(window) && IsWindowEnabled(window); });
  return found == windows.end() ? nullptr : *found;
}

bool visibleToUser(HWND window) {
  return IsWindowVisible(window) != FALSE;
}

bool enabledForUser(HWND window) {
  for (; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    if (!IsWindowEnabled(window)) return false;
    if (GetAncestor(window, GA_ROOT) == window) break;
  }
  return true;
}

}  // namespace nv::host
