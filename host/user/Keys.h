// Keystrokes by name: "Tab", "Shift+Insert", "Control+A".
#pragma once

#include <windows.h>

#include <optional>
#include <string_view>
#include <vector>

namespace nv::host {

/// Keys held down together, in the order in which they go down: modifiers first. Virtual key codes.
using Chord = std::vector<WORD>;

/// Names: Tab, Enter, Escape, Space, Backspace, Delete, Insert, Home, End, Left, Right, Up, Down, PageUp, PageDown, F1
/// to F12, a letter, a digit; Shift+, Control+ and Alt+ in front. Nothing for any other name.
std::optional<Chord> chordOf(std::wstring_view name);

/// The keystrokes, one after the other, as events for SendInput.
std::vector<INPUT> strokesOf(const Chord& chord);

/// The keystroke that types a character: on the keyboard if it has the character, else the character itself.
std::vector<INPUT> strokesOf(wchar_t character);

}  // namespace nv::host
