// Key and mouse events as handlers receive them. Codes are those of the platform's virtual keys, which are also the
// classic key constants of forms.
#pragma once

#include "forms/Geometry.h"

namespace nv::forms {

/// Bits of a shift state.
enum ShiftState : int { shiftKey = 1, controlKey = 2, altKey = 4 };

namespace keys {
inline constexpr int backspace = 8;
inline constexpr int tab = 9;
inline constexpr int enter = 13;
inline constexpr int escape = 27;
inline constexpr int space = 32;
inline constexpr int pageUp = 33;
inline constexpr int pageDown = 34;
inline constexpr int end = 35;
inline constexpr int home = 36;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
inline constexpr int insert = 45;
inline constexpr int del = 46;
inline constexpr int f1 = 112;
inline constexpr int f4 = 115;
}  // namespace keys

/// A key going down, before it becomes a character. A handler discards the key, and the character that would come of
/// it, by setting `code` to 0.
struct KeyDown {
  int code = 0;
  int shift = 0;  // ShiftState bits
};

enum MouseButton : int { leftButton = 1, rightButton = 2 };

/// A mouse button going down over a control, before the control acts on it.
struct MouseDown {
  int button = leftButton;
  int shift = 0;  // ShiftState bits
  Twips x = 0;    // within the control
  Twips y = 0;
};

}  // namespace nv::forms
