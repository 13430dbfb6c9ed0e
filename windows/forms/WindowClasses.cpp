#include "windows/forms/WindowClasses.h"

#include <iterator>

#include "windows/Instance.h"
#include "windows/SystemFunction.h"

namespace nv::windows {

namespace {

struct WindowClass {
  const wchar_t* name;
  UINT style;
  WNDPROC procedure;
};

/// The first systems with a dpi for each screen scale the frame only if asked to, and only in WM_NCCREATE.
LRESULT CALLBACK formProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_NCCREATE) {
    static const auto scaleFrame = systemFunction<BOOL(WINAPI*)(HWND)>("EnableNonClientDpiScaling");
    if (scaleFrame != nullptr) scaleFrame(window);
  }
  return DefWindowProcW(window, message, wparam, lparam);
}

/// MessageHandler subclasses the windows of these classes once they exist.
const WindowClass classes[] = {
    {formClass, CS_DBLCLKS, formProcedure},          {sessionClass, 0, DefWindowProcW},
    {dropDownListClass, CS_DBLCLKS, DefWindowProcW}, {dropDownPopupClass, CS_SAVEBITS | CS_DROPSHADOW, DefWindowProcW},
    {drawnClass, CS_DBLCLKS, DefWindowProcW},
};

}  // namespace

void registerWindowClasses() {
  // Without a lock: another thread may register the same classes at the same time, which changes nothing. Once the last
  // one is there, so are all others.
  WNDCLASSEXW known{};
  known.cbSize = sizeof(known);
  if (GetClassInfoExW(moduleInstance(), std::rbegin(classes)->name, &known)) return;
  INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX),
                                ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&controls);
  for (const WindowClass& each : classes) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.style = each.style;
    description.lpfnWndProc = each.procedure;
    description.hInstance = moduleInstance();
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = each.name;
    RegisterClassExW(&description);
  }
}

void unregisterWindowClasses() {
  for (const WindowClass& each : classes) UnregisterClassW(each.name, moduleInstance());
}

}  // namespace nv::windows
