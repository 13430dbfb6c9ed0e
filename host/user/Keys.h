// Keystrokes as events for SendInput.
#pragma once

#include <windows.h>

#include <vector>

#include "scenario/Keys.h"

namespace nv::host {

/// The keystrokes, one after the other.
std::vector<INPUT> strokesOf(const scenario::Chord& chord);

/// The keystroke that types a character: on the keyboard if it has the character, else the character itself.
std::vector<INPUT> strokesOf(wchar_t character);

}  // namespace nv::host
