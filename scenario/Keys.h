// Keystrokes by name: "Tab", "Shift+Insert", "Control+A".
#pragma once

#include <string_view>
#include <vector>

namespace nv::scenario {

/// Keys held down together, in the order in which they go down: modifiers first. The codes are those of the platform's
/// virtual keys.
using Chord = std::vector<int>;

namespace keys {
inline constexpr int shift = 0x10;
inline constexpr int control = 0x11;
inline constexpr int alt = 0x12;
}  // namespace keys

/// Names: Tab, Enter, Escape, Space, Backspace, Delete, Insert, Home, End, Left, Right, Up, Down, PageUp, PageDown, F1
/// to F12, a letter, a digit; Shift+, Control+ and Alt+ in front. Fails with Failure for any other name.
Chord chordOf(std::wstring_view name);

}  // namespace nv::scenario
