// What a user sees of a control: the aspects that a scenario's `is` compares. To be asked on the user-interface thread.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace nv::host {

/// The name of every aspect, separated by blanks.
std::wstring aspectNames();
bool isAspect(std::wstring_view aspect);

/// The aspect of a window as a scenario writes it: a text as it is, a truth as true or false, a number in decimal.
/// @param dialog the dialog that the window stands in, or is.
std::wstring look(HWND dialog, HWND window, std::wstring_view aspect);

/// Where in the inside of the window text is typed: of a list its edit field, else the window itself.
HWND typingField(HWND window);

}  // namespace nv::host
