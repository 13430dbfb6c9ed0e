#include "windows/forms/ListArrow.h"

#include <algorithm>

#include "windows/forms/Graphics.h"

namespace nv::windows {

RECT arrowArea(RECT inside, int dpi) {
  inside.left = std::max<LONG>(inside.left, inside.right - systemMetric(SM_CXVSCROLL, dpi));
  return inside;
}

void paintArrow(HWND list, HDC context, RECT area, bool alive, bool open) {
  if (const Theme theme(OpenThemeData(list, comboBoxTheme)); theme) {
    DrawThemeBackground(theme.get(), context, CP_DROPDOWNBUTTONRIGHT, themedState(alive, open), &area, nullptr);
    return;
  }
  const UINT state = (alive ? 0U : DFCS_INACTIVE) | (open ? DFCS_PUSHED : 0U);
  DrawFrameControl(context, &area, DFC_SCROLL, DFCS_SCROLLCOMBOBOX | state);
}

}  // namespace nv::windows
