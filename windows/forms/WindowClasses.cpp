#include "windows/forms/WindowClasses.h"

#include <mutex>

#include "windows/Instance.h"
#include "windows/forms/FormWindow.h"

namespace nv::windows {

namespace {

struct WindowClass {
  const wchar_t* name;
  UINT style;
  WNDPROC procedure;
};

const WindowClass classes[] = {
    {formClass, CS_DBLCLKS, FormWindow::procedure},  {sessionClass, 0, FormWindow::sessionProcedure},
    {dropDownListClass, CS_DBLCLKS, DefWindowProcW}, {dropDownPopupClass, CS_SAVEBITS | CS_DROPSHADOW, DefWindowProcW},
    {drawnClass, CS_DBLCLKS, DefWindowProcW},
};

}  // namespace

void registerWindowClasses() {
  static std::mutex mutex;
  const std::lock_guard lock(mutex);
  WNDCLASSEXW known{};
  known.cbSize = sizeof(known);
  if (GetClassInfoExW(moduleInstance(), formClass, &known)) return;
  INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX), ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES};
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
