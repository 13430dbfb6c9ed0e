// Synchronises the system's edit control, alone or within a list, with a text field of the form.
#pragma once

#include "forms/TextField.h"
#include "platform/ScopedValue.h"
#include "windows/Handles.h"

namespace nv::windows {

class EditText {
 public:
  explicit EditText(forms::TextField& field) : field_(field) {}

  /// Connects the two and shows the field's state in the window.
  void connect(HWND edit);
  HWND window() const { return edit_; }

  /// Shows the field's text, selection or limit; returns whether `attribute` was one of them.
  bool apply(forms::Attribute attribute);
  /// The window's text has changed: passes it to the field, unless code set it.
  void changed();
  /// The selected part; without a window, what is to be selected there.
  forms::Selection selection() const;
  /// While the result lives, changes of the window's text are not passed to the field.
  [[nodiscard]] ScopedValue<bool> setByCode() { return {setByCode_, true}; }

  /// False for the characters at which the system's edit control only beeps: Tab, Enter and Escape.
  static bool uses(wchar_t character) {
    return character != forms::keys::tab && character != forms::keys::enter && character != forms::keys::escape;
  }

 private:
  forms::TextField& field_;
  HWND edit_ = nullptr;
  bool setByCode_ = false;
};

/// The text of a window.
std::wstring textOf(HWND window);

}  // namespace nv::windows
