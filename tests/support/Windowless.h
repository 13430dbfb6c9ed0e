// A widgetset without windows, so that forms live and can be worked in on any machine. Like real windows, each window
// here keeps its own picture of its control, made of nothing but what the control told it: a control that forgets to
// tell its window something is found out by what the user sees. For tests only.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/TextField.h"
#include "forms/Widgetset.h"

namespace nv::test {

class User;
class FormWindow;
class WindowlessWidgetset;

/// What a window shows of its control. `text` is a field's text or another control's caption; the cells of a row are
/// joined by ";".
struct Seen {
  forms::Place place{};
  bool visible = true;
  bool enabled = true;
  std::wstring text{};
  int maxLength = 0;
  wchar_t mask = 0;
  forms::Look look{};
  forms::Font font{};
  bool checked = false;
  std::vector<std::wstring> rows{};
  std::optional<std::size_t> row{};
};

/// The window of a control. A text field edits as the system's text box does.
class ControlWindow : public forms::ControlPeer {
 public:
  ControlWindow(FormWindow& form, forms::Control& control);

  void update(forms::Attribute aspect) override;
  void takeFocus() override;
  forms::Selection selection() const override;

  const Seen& seen() const { return seen_; }

  /// The user clicks; a control that takes the focus has it by now. In a text the caret goes behind the last character.
  void clicked();
  /// What a list does with a key before the form sees it; true when it used the key.
  bool usesKey(int code, int shift);
  /// Puts the clipboard's text in place of the selection, if the field lets it.
  void paste();
  /// A key that no handler used up; `character` is what the handlers made of its character, or 0.
  void key(int code, int shift, wchar_t character);
  /// The user picks the row, or entry, from the list.
  void pick(std::size_t row);

 private:
  void insert(std::wstring_view text);
  void erase(bool backward);
  void moveCaret(int to, bool select);
  void replace(int start, int length, std::wstring_view by);

  FormWindow& form_;
  forms::Control& control_;
  forms::TextField* field_;  // the control, when it is one
  Seen seen_;
  bool dropped_ = false;  // whether a list is open
  int anchor_ = 0;        // the end of the selection that stays
  int caret_ = 0;
};

/// The window of a form.
class FormWindow : public forms::FormPeer {
 public:
  FormWindow(WindowlessWidgetset& widgetset, forms::Form& form);
  ~FormWindow() override;

  void update(forms::Attribute aspect) override;
  void show(bool modal) override;
  /// Lets the test's user work in the form. A form that is still open afterwards fails the test and is unloaded.
  void runModal() override;
  void close() override;
  void sendKey(wchar_t key) override { queue_.push_back(key); }
  bool pressed() const override { return false; }
  std::intptr_t handle() const override { return handle_; }

  forms::Form& form() const { return form_; }
  WindowlessWidgetset& widgetset() const { return widgetset_; }
  const std::wstring& title() const { return title_; }
  const forms::Place& place() const { return place_; }
  bool visible() const { return visible_; }
  bool closed() const { return closed_; }
  bool modal() const { return modal_; }

  const forms::Control* focused() const { return focused_; }
  void setFocused(const forms::Control& control) { focused_ = &control; }
  /// Takes the next queued message to the window: a keystroke, or `activatedMessage`. None when the queue is empty.
  std::optional<wchar_t> nextMessage();
  static constexpr wchar_t activatedMessage = 0;

 private:
  WindowlessWidgetset& widgetset_;
  forms::Form& form_;
  std::vector<std::unique_ptr<ControlWindow>> controls_;
  std::wstring title_;
  forms::Place place_;
  bool visible_ = false;
  bool closed_ = false;
  bool modal_ = false;
  FormWindow* owner_ = nullptr;
  const forms::Control* focused_ = nullptr;
  std::deque<wchar_t> queue_;
  std::intptr_t handle_;
  std::shared_ptr<bool> running_;  // false once the form has let go of a window whose loop runs
};

class WindowlessWidgetset : public forms::Widgetset {
 public:
  using Script = std::function<void(User&)>;

  /// A script that no modal form asked for fails the test.
  ~WindowlessWidgetset() override;

  std::unique_ptr<forms::FormPeer> createWindows(forms::Form& form) override;
  void runPendingEvents() override;

  /// What the user does in the next form that is shown modally; one script for each.
  void whenModal(Script script) { scripts_.push_back(std::move(script)); }
  /// What the user does in every form that is shown modally and has no script.
  Script whenAnyModal;

  /// The user of the form shown last under this window name.
  User user(std::wstring_view windowName);

  /// What others do to the component while it lets pending events run, one call for each time.
  std::deque<std::function<void()>> pending;
  /// What the host does while a form's window becomes visible.
  std::function<void()> whenShown;
  /// What realising a form fails with.
  std::optional<RuntimeError> failure;
  /// How many message boxes have asked the user something, as far as whoever shows them counts them here.
  unsigned questions = 0;
  /// The system clipboard.
  std::wstring clipboard;

  // For the windows.

  /// The form's window as long as it is open, else nullptr.
  FormWindow* window(const forms::Form& form) const;
  /// Whether the window takes input: no modal window has been opened over it.
  bool takesInput(const FormWindow& window) const;

 private:
  friend class FormWindow;

  std::vector<FormWindow*> open_;  // in the order in which they were made
  std::deque<Script> scripts_;
  std::intptr_t lastHandle_ = 0x10000;
};

}  // namespace nv::test
