// Fields that the user types into: text boxes here; combo boxes and drop-down lists build on the same base.
#pragma once

#include "forms/Control.h"

namespace nv::forms {

/// Text with a selection and a caret. The user changes it by `onUserText` (after the key events let it through), code
/// by `setText`; either raises `change` when the text differs.
class TextField : public Control {
 public:
  const std::wstring& text() const { return text_; }

  /// Sets the text, at any length. Inside a handler of the user's own typing the caret keeps its distance from the end,
  /// so that a handler may cleanse or re-case what is typed in the middle; otherwise it goes to the start.
  void setText(std::wstring text);

  /// Bounds typing and pasting, in characters; 0 is no bound. Texts set by code keep their length.
  int maxLength() const { return maxLength_; }
  void setMaxLength(int length);

  Selection selection() const { return peer() != nullptr ? peer()->selection() : selection_; }
  /// Selects a part of the text; what lies beyond its end is cut off.
  void select(int start, int length);
  void selectAll() { select(0, static_cast<int>(text_.size())); }

  bool takesFocus() const override { return true; }
  /// The whole text is selected then, so that typing replaces it.
  void onKeyboardFocus() override { selectAll(); }

  Event<> change;

  /// For the widgetset: the user changed the text. `selection` includes the caret. While the form is busy the window
  /// gets its text back, whoever changed it.
  void onUserText(std::wstring text, Selection selection);

  /// For the widgetset: the selection last set by code or passed to `onUserText`.
  Selection lastSelection() const { return selection_; }

 protected:
  TextField(Parent parent, Kind kind, Name name) : Control(parent, kind, name) { setColours(colours::window); }

  /// Called after the text has changed, before `change`: lists join or part text and row here.
  virtual void textChanged(bool /*byUser*/) {}

 private:
  void report(bool byUser);

  std::wstring text_;
  Selection selection_;
  int maxLength_ = 0;
  bool typing_ = false;  // inside the handlers of onUserText
};

class TextBox : public TextField {
 public:
  TextBox(Parent parent, Name name) : TextField(parent, Kind::textBox, name) {}

  /// The character shown in place of every character of the text, or 0. What is read is never masked.
  wchar_t passwordChar() const { return passwordChar_; }
  void setPasswordChar(wchar_t character) {
    if (character == passwordChar_) return;
    passwordChar_ = character;
    changed(Attribute::mask);
  }

  /// Whether the clipboard's text can be put in; by default it can.
  bool takesPaste() const { return takesPaste_; }
  void setTakesPaste(bool takes) { takesPaste_ = takes; }

 private:
  wchar_t passwordChar_ = 0;
  bool takesPaste_ = true;
};

}  // namespace nv::forms
