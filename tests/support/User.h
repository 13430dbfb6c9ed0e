// Somebody who works in a form: types, clicks, presses keys, and looks at what the windows show. Controls are found by
// their full names, "ran_payee_city" or "lblAsterisk(2)". For tests only.
//
// What a user cannot do (click a hidden control, work in a form behind a modal one, look at a closed one) fails the
// test and ends what the user was to do.
#pragma once

#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Form.h"
#include "tests/support/Windowless.h"

namespace nv::test {

class UserGaveUp : public std::exception {};

class User {
 public:
  static constexpr int deleteKey = 46;

  User(WindowlessWidgetset& widgetset, forms::Form& form) : widgetset_(widgetset), form_(form.shared_from_this()) {}

  /// The form itself, which stays readable after it has closed.
  forms::Form& form() const { return *form_; }
  bool has(std::wstring_view name) const;
  forms::Control& control(std::wstring_view name) const;

  // Acting. A run-time error that comes out of it goes to the form, as with real windows.

  void click(std::wstring_view control);
  void rightClick(std::wstring_view control);
  /// Clicks into the control, then types.
  void type(std::wstring_view control, std::wstring_view text);
  /// Types into whatever has the focus, one keystroke per character; "\r", "\t" and "\b" are the keys.
  void type(std::wstring_view text);
  /// One keystroke, with the character that belongs to it, or the mnemonic.
  void key(int code, int shift = 0);
  void tab() { key(forms::keys::tab); }
  void backTab() { key(forms::keys::tab, forms::shiftKey); }
  /// Alt and the character. Returns whether a control claimed it.
  bool altKey(wchar_t character);
  /// Puts the text on the clipboard and presses Control+V.
  void paste(std::wstring_view text);
  /// Chooses Paste in the field's own menu.
  void pasteByMenu(std::wstring_view control);
  /// Picks the first row of the list, or entry of the combo box, that has this cell.
  void choose(std::wstring_view control, std::wstring_view cell);
  /// Clicks the check box unless it is as wanted.
  void check(std::wstring_view control, bool checked = true);
  /// Lets what is queued arrive.
  void settle();
  /// Comes back to the form from elsewhere.
  void activate();
  void closeBox() { ask(forms::UnloadMode::user); }
  void endSession() { ask(forms::UnloadMode::systemShutdown); }

  // Looking.

  /// Whether the form's window is there to be seen.
  bool open() const;
  const std::wstring& title() const { return window().title(); }
  /// The full name of the control with the focus; empty when none has it.
  std::wstring focus() const;
  /// Seen by the user: the control and the frames around it.
  bool visible(std::wstring_view control) const;
  /// Open to the user: the control is enabled, and so are the frames around it.
  bool enabled(std::wstring_view control) const;
  /// A field's whole text, masked or not.
  const std::wstring& text(std::wstring_view control) const { return seen(control).text; }
  const std::wstring& caption(std::wstring_view control) const { return seen(control).text; }
  /// The selected part of a field's text.
  std::wstring selected(std::wstring_view control) const;
  forms::Selection selection(std::wstring_view control) const;
  bool masked(std::wstring_view control) const { return seen(control).mask != 0; }
  bool checked(std::wstring_view control) const { return seen(control).checked; }
  /// The rows of a list, cells joined by ";", or the entries of a combo box.
  const std::vector<std::wstring>& rows(std::wstring_view control) const { return seen(control).rows; }
  /// The selected row of a list, as in `rows`; empty when there is none.
  std::wstring row(std::wstring_view control) const;
  /// Maximum length, place, colours and font.
  const Seen& seen(std::wstring_view control) const;

  [[noreturn]] static void giveUp(const std::wstring& why);

 private:
  FormWindow& window() const;
  ControlWindow& window(std::wstring_view control) const;
  /// Works off the window's queue, does it, works off what it queued, and hands a run-time error to the form.
  template <class Act>
  void act(Act&& whatToDo);
  void workOffQueue();
  void ask(forms::UnloadMode mode);
  forms::Control& target(std::wstring_view control) const;
  void keystroke(int code, int shift, wchar_t character);
  void character(wchar_t character);

  WindowlessWidgetset& widgetset_;
  std::shared_ptr<forms::Form> form_;
};

}  // namespace nv::test
