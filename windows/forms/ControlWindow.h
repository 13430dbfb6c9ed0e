// What the windows of all controls have in common: they are made from the control's state, follow it, and route keys,
// mouse and focus to the form.
#pragma once

#include <optional>

#include "forms/Control.h"
#include "windows/Handles.h"
#include "windows/forms/MessageHandler.h"

namespace nv::windows {

class FormWindow;

/// The Shift, Control and Alt keys at the message being handled, as ShiftState bits.
int shiftState();

class ControlWindow : public forms::ControlPeer, public MessageHandler {
 public:
  ControlWindow(FormWindow& owner, forms::Control& control)
      : MessageHandler(control.form()), owner_(owner), control_(control) {}

  /// The window, or nullptr before `create` and after it was destroyed.
  HWND window() const { return window_; }
  forms::Control& control() const { return control_; }

  /// Creates the window in `parent`, behind all others there, in the control's current state.
  void create(HWND parent);

  /// Applies everything that depends on the dpi again.
  void rescale();

  /// Types a character into the control, as the keyboard would.
  void type(wchar_t character);

  void update(forms::Attribute attribute) override;
  void takeFocus() override;
  forms::Selection selection() const override { return {}; }

  /// A message that a child sends to its parent about itself (WM_COMMAND, WM_NOTIFY, WM_DRAWITEM, WM_CTLCOLOR...),
  /// handed back to the child's ControlWindow. Returns whether it was one, with its result.
  static bool reflect(const FormWindow& owner, UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);

 protected:
  /// The window class and styles of this kind of control.
  virtual Native native() const = 0;
  /// Called once the window exists, before the control's state is applied.
  virtual void created() {}
  /// Updates the window from one attribute of the control.
  virtual void apply(forms::Attribute attribute);
  /// A message to the control's window or to one within it that belongs to it, such as the text field of a list.
  virtual LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  /// A key that the window uses before the form sees it: those that work an open list. Returns whether it did.
  virtual bool usesKey(WPARAM /*key*/) { return false; }
  /// Whether the window has a use for a character that was typed into it.
  virtual bool usesCharacter(wchar_t /*character*/) const { return true; }
  /// A WM_COMMAND notification that the window sent to its parent.
  virtual void notified(UINT /*code*/) {}
  virtual LRESULT notified(const NMHDR& /*header*/) { return 0; }
  virtual void draw(const DRAWITEMSTRUCT& /*item*/) {}
  /// Answers WM_CTLCOLOR...: sets the colours to draw in and returns the brush of the background.
  HBRUSH handleCtlColor(HDC context);
  /// The colour behind the window's own drawing.
  forms::Colour background() const { return colours().back; }
  /// That, and the colour of the text on it.
  virtual const forms::Colours& colours() const { return control_.colours(); }
  /// The colours of the frame or form behind the control.
  const forms::Colours& containerColours() const;

  /// The window that takes the keyboard focus for the control.
  virtual HWND focusWindow() const { return window_; }
  /// A button goes down. Returns whether the window is to see it, too.
  bool mouseDown(HWND window, int button, LPARAM lparam);
  /// Where the window stands, in pixels of its parent.
  virtual RECT area() const;
  /// The same for fields of one line: no taller than their text needs, so that text and label keep to one line.
  RECT lineArea() const;
  bool underlined() const { return control_.kind() == forms::Kind::hyperlink; }

  FormWindow& owner() const { return owner_; }

 private:
  LRESULT receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) final;
  void destroyed(HWND window) final;
  void wipeText(HWND window);
  LRESULT reflected(UINT message, WPARAM wparam, LPARAM lparam);
  bool focusForPress();
  void place();

  FormWindow& owner_;
  forms::Control& control_;
  HWND window_ = nullptr;
  bool discardCharacter_ = false;  // of the key that is down
  bool pressing_ = false;          // a press waits until the field being left has been
  std::optional<LPARAM> release_;  // of the button meanwhile, and where
  bool destroying_ = false;        // the windows are being destroyed
};

}  // namespace nv::windows
