// The dialog's windows without the component: a description of them, taken from the real ones, and the same windows
// made from it, with nobody behind them.
#pragma once

#include <vector>

#include "windows/SystemHeaders.h"

namespace nv::bench {

/// A window as CreateWindowEx is told about it, with its font.
struct BareWindow {
  HWND original;
  wchar_t windowClass[64];
  wchar_t text[512];
  DWORD style;
  DWORD extendedStyle;
  RECT place;  // in the parent; of the dialog itself, on the screen
  int parent;  // position in the description, in which parents come first; -1: none
  LOGFONTW font;
};

/// Describes a window and those within it, but for those that the system's own controls make for themselves.
std::vector<BareWindow> described(HWND dialog);

/// Makes what is described. Windows of classes that the component registers get a class without behaviour. Fonts are
/// made once for a process.
/// @return the windows in the order of the description: first the dialog, hidden. Destroying it destroys all.
std::vector<HWND> made(const std::vector<BareWindow>& description, HWND owner);

}  // namespace nv::bench
