// The arrow of lists that drop down, alike for the system's combo boxes and for those of the component.
#pragma once

#include "windows/SystemHeaders.h"

namespace nv::windows {

/// What visual styles call combo boxes (VSCLASS_COMBOBOX).
inline constexpr const wchar_t* comboBoxTheme = L"COMBOBOX";

/// How their parts look, which all have the same states.
inline int themedState(bool alive, bool open) {
  if (!alive) return CBXS_DISABLED;
  return open ? CBXS_PRESSED : CBXS_NORMAL;
}

/// Where the arrow stands, in pixels, when `inside` is what is within the list's edges.
RECT arrowArea(RECT inside, int dpi);

/// Draws the arrow as the current visual style has it, on a background that is there already.
void paintArrow(HWND list, HDC context, RECT area, bool alive, bool open);

}  // namespace nv::windows
