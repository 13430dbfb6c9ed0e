// A form: a window whose controls are the members of a class derived from Form. It knows the rules of focus, keys and
// life that every dialog relies on, and neither an operating system nor what the dialog is about.
//
// Life: construct, `load` (once: Form_Load, then the windows are made), `show` or `showModal` (Form_Activate each time
// it becomes the active form), `unload` (Form_QueryUnload, then the windows are gone). The values of the controls stay
// readable until the form is destroyed. A form is owned by shared pointers: unloading it inside one of its own events
// is normal and safe, since the window procedure that raised the event still holds it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"
#include "platform/RuntimeError.h"
#include "platform/ScopedValue.h"

namespace nv::forms {

class FormList;

/// What made a form unload. The numbers are the classic ones of QueryUnload.
enum class UnloadMode { user = 0, code = 1, systemShutdown = 2, taskManager = 3, owner = 5 };

/// Whether a form's window is a dialog of its own or stands, without a caption, in a window of the host.
enum class Border { dialog, embedded };

class Form : public std::enable_shared_from_this<Form> {
 public:
  /// @param name the form's name, shared by all its instances.
  /// @param windowName what UI test tools find its window by.
  /// Both must outlive the form: literals.
  Form(Widgetset& widgetset, FormList& loadedForms, std::wstring_view name, std::wstring_view windowName,
       Border border);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::wstring_view name() const { return name_; }
  std::wstring_view windowName() const { return windowName_; }
  Border border() const { return border_; }

  const std::wstring& caption() const { return caption_; }
  void setCaption(std::wstring caption);
  /// Position and size of the inside of the window: a caption and borders come on top.
  const Place& place() const { return place_; }
  void setSize(Twips width, Twips height);
  void move(Twips left, Twips top);
  const Colours& colours() const { return colours_; }
  void setColours(const Colours& colours);
  const Font& font() const { return font_; }
  void setFont(Font font) { font_ = std::move(font); }

  /// All controls in the order of their construction, which is also the tab order.
  const std::vector<Control*>& controls() const { return controls_; }
  /// The control with the keyboard focus while the form is active, or nullptr.
  Control* activeControl() const { return active_; }

  bool loaded() const { return life_ == Life::loaded; }
  bool shown() const { return shown_; }
  /// Whether the user last worked in this form, of all loaded ones.
  bool active() const;

  /// Does nothing when loaded. When Form_Load fails, the form is gone and the error goes on. A form that was unloaded
  /// cannot be loaded again ("Invalid procedure call or argument"): whoever wants another makes another.
  void load();
  /// Loads and shows the form, and returns at once.
  void show();
  /// Loads and shows the form, and returns when it is unloaded.
  void showModal();
  /// Asks Form_QueryUnload and, unless that cancels, takes the windows away. Does nothing when not loaded.
  void unload(UnloadMode mode = UnloadMode::code);

  /// Moves the focus: `control` is active first, then the old one's lostFocus runs (and may move the focus again), then
  /// gotFocus. A control that the focus only passed through has neither. Does nothing when the control cannot have the
  /// focus now.
  void focus(Control& control);
  /// A form for reading: nothing is greyed that says something, whatever keeps the user out of it.
  bool forReading() const { return forReading_; }
  void setForReading();
  /// While it lives, the user can only close the form: an outside party that is called meanwhile may dispatch messages.
  struct Busy : ScopedValue<bool> {
    explicit Busy(Form& form) : ScopedValue(form.busy_, true) {}
  };
  bool busy() const { return busy_; }

  /// Something was shown or hidden: arranges the controls anew, at once or when the user lets go of the mouse. What is
  /// being pressed must not move away from under it.
  void rearrange();

  /// Queues a keystroke for the control that has the focus when the key is handled: not before the handlers of the
  /// character that is being typed have returned, even if they dispatch messages.
  void sendKey(wchar_t key);
  /// The window's handle as a host knows it; 0 when not loaded.
  std::intptr_t handle() const { return loaded() && peer_ ? peer_->handle() : 0; }

  // For the widgetset: what the user does. Each may end in the form being unloaded.

  /// The form's window became the active one, or the focus came into it from elsewhere.
  void activated();
  /// A key goes down in a control. True when it is used up: neither the key nor its character go on.
  bool keyPressedDown(Control& control, const KeyDown& key);
  /// A character on its way into a control. Returns the character to go on with, or 0.
  wchar_t characterTyped(Control& control, wchar_t character);
  /// Alt with a character. True when a control claimed it.
  bool mnemonicTyped(wchar_t character);
  /// The mouse was let go.
  void released();
  /// The window was destroyed from outside: the form unloads. A modal one gets Form_QueryUnload afterwards, with
  /// UnloadMode::owner; whoever embeds a form and destroys it need not be told.
  void windowGone();
  /// Called when an exception reaches the window procedure; the widgetset continues afterwards.
  virtual void failed(const RuntimeError& /*error*/) noexcept {}

  // For controls.

  void add(Control& control) { controls_.push_back(&control); }
  /// Moves the focus on when the control that has it can no longer be reached.
  void leaveUnreachable();

 protected:
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_QueryUnload(bool& /*cancel*/, UnloadMode /*mode*/) {}
  virtual void Form_KeyPress(wchar_t& /*key*/) {}
  /// F1 was pressed in the control. Returns whether there is help.
  virtual bool Form_Help(const Control& /*control*/) { return false; }
  /// Gives the controls and the form their places.
  virtual void arrange() {}
  /// The form is gone, whichever way; its controls still hold their values.
  virtual void Form_Unload() noexcept {}

  Widgetset& widgetset() const { return widgetset_; }
  /// Whether the handlers of a typed character are running.
  bool typing() const { return typing_; }

 private:
  bool focusable(const Control& control) const { return shown_ && control.takesFocus() && control.reachable(); }
  /// Moves the focus to the next or previous control at which Tab stops.
  void tab(bool backward);
  void focusByKeyboard(Control& control);
  void makeActive(Control* control);
  void detach();

  Widgetset& widgetset_;
  FormList& loadedForms_;
  std::wstring_view name_;
  std::wstring_view windowName_;
  Border border_;
  std::wstring caption_;
  Place place_;
  Colours colours_ = colours::buttonFace;
  Font font_;
  std::vector<Control*> controls_;
  std::unique_ptr<FormPeer> peer_;
  Control* active_ = nullptr;
  Control* focused_ = nullptr;  // the control whose gotFocus was raised and whose lostFocus is due
  enum class Life { fresh, loaded, gone } life_ = Life::fresh;
  bool shown_ = false;
  bool forReading_ = false;
  bool busy_ = false;
  bool showWhenLoaded_ = false;
  bool typing_ = false;         // the handlers of a character are running
  std::wstring keysToSend_;     // by them
  bool askedToUnload_ = false;  // not by code; Form_QueryUnload is running
  bool windowGone_ = false;     // the window was destroyed from outside
  bool arrangeWhenReleased_ = false;
};

/// Unloads a form on leaving a scope, however that is left.
class UnloadOnExit {
 public:
  explicit UnloadOnExit(Form& form) : form_(form) {}
  ~UnloadOnExit() {
    try {
      form_.unload();
    } catch (...) {  // NOLINT(bugprone-empty-catch): the exception in flight is the one to report
    }
  }
  UnloadOnExit(const UnloadOnExit&) = delete;
  UnloadOnExit& operator=(const UnloadOnExit&) = delete;

 private:
  Form& form_;
};

}  // namespace nv::forms
