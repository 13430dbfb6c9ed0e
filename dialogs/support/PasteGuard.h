// Bank numbers are to be typed: what keeps them from being pasted.
#pragma once

#include "component/core/Component.h"
#include "forms/Keys.h"

namespace nv {

/// Discards Shift+Insert and Control+V, with whatever other modifiers they are pressed but Alt.
inline void discardPaste(forms::KeyDown& key) {
  constexpr int v = 86;
  if ((key.shift & forms::altKey) != 0) return;
  const bool paste = (key.code == forms::keys::insert && (key.shift & forms::shiftKey) != 0) ||
                     (key.code == v && (key.shift & forms::controlKey) != 0);
  if (paste) key.code = 0;
}

/// Empties the clipboard when the right button goes down, so that the menu's Paste has nothing to insert.
inline void denyPasteMenu(Component& component, const forms::MouseDown& mouse) {
  if (mouse.button == forms::rightButton) component.services.machine.emptyClipboard();
}

}  // namespace nv
