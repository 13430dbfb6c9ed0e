// Keeps the system's text box and a text field of the form in step: the one inside text boxes and lists alike.
#pragma once

#include "forms/TextField.h"
#include "platform/ScopedValue.h"
#include "windows/Handles.h"

namespace nv::windows {

class EditText {
 public:
  /// Connects the two and brings the window in line with the field.
  void connect(HWND edit, forms::TextField& field);
  HWND window() const { return edit_; }

  /// Shows the field's text, selection or limit; returns whether `aspect` was one of them.
  bool apply(forms::Attribute aspect);
  /// The window says that its text has changed: unless code did it, the user's text arrives in the field.
  void changed();
  forms::Selection selection() const;
  /// As long as the result lives, a changed text of the window is not taken for the user's.
  [[nodiscard]] ScopedValue<bool> setByCode() { return {setByCode_, true}; }

  /// Characters for which the system's text box has no use but a beep: Tab, Enter and Escape.
  static bool uses(wchar_t character) {
    return character != forms::keys::tab && character != forms::keys::enter && character != forms::keys::escape;
  }

 private:
  HWND edit_ = nullptr;
  forms::TextField* field_ = nullptr;
  bool setByCode_ = false;
};

/// The text of a window.
std::wstring textOf(HWND window);

}  // namespace nv::windows
