// What the windows of all controls have in common: they are made from the control's state, follow it, and route keys,
// mouse and focus to the form.
#pragma once

#include <optional>

#include "forms/Control.h"
#include "windows/Handles.h"
#include "windows/forms/Accessibility.h"
#include "windows/forms/MessageHandler.h"

namespace nv::windows {

class FormWindow;

/// The Shift, Control and Alt keys at the message being handled, as ShiftState bits.
int shiftState();

/// How the text of a field is drawn in a form for reading: wrapped, between letters if need be. DrawText's flags.
inline constexpr UINT readingFormat = DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX;

class ControlWindow : public forms::ControlPeer, public MessageHandler, public Teller {
 public:
  ControlWindow(FormWindow& owner, forms::Control& control)
      : MessageHandler(control.form()), owner_(owner), control_(control) {}

  forms::Control& control() const { return control_; }
  /// The window, or nullptr before `create` and after it was destroyed.
  HWND window() const { return window_; }
  /// The window that takes the keyboard focus for the control.
  virtual HWND focusWindow() const { return window_; }

  /// Creates the window in `parent`, behind all others there, in the control's current state.
  void create(HWND parent);

  /// Applies everything that depends on the dpi again.
  void rescale();

  /// Types a character into the control, as the keyboard would.
  void type(wchar_t character);

  void update(forms::Attribute attribute) override;
  void takeFocus() override;
  forms::Selection selection() const override { return {}; }

  // Teller: of the control's window, and of one within it in which its text is typed.
  Told tell(HWND window) const override;
  void act(HWND window) const override;

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
  /// Whether the window is drawn by `paint`, and not by the system.
  virtual bool drawn() const { return false; }
  /// Draws what stands on the background; font and colour of its text are chosen.
  virtual void paint(HDC /*context*/, const RECT& /*area*/) {}
  /// Answers WM_CTLCOLOR...: sets the colours to draw in and returns the brush of the background.
  HBRUSH handleCtlColor(HDC context);
  /// The colour behind the window's own drawing.
  forms::Colour background() const { return control_.look().colours.back; }
  /// The colour of the text on it.
  COLORREF textColour() const;
  /// Whether the system takes the window for one that can be used, and draws it so.
  virtual bool enabled() const { return !control_.look().greyed; }

  /// Whether the list of a control that has one is open.
  virtual std::optional<bool> dropped() const { return std::nullopt; }
  /// A button goes down. Returns whether the window is to see it, too.
  bool mouseDown(HWND window, int button, LPARAM lparam);
  /// Where the window stands, in pixels of its parent.
  virtual RECT area() const;
  /// The same for fields of one line, and for the labels beside them: as tall as the text needs, in the middle of the
  /// control's place, so that all texts of a row stand on one line at any dpi and in any font.
  RECT lineArea() const;
  /// The same for what is only to be read: one line stands on that of the fields beside it, more begin at the top.
  RECT textArea() const;
  /// From the top of a field's window, with its edge, to its text, in pixels at any dpi.
  static constexpr int textInset = 3;
  /// Puts a window at its place, in pixels of its parent.
  static void moveWindow(HWND window, const RECT& place);
  bool underlined() const { return control_.kind() == forms::Kind::hyperlink; }

  FormWindow& owner() const { return owner_; }

 private:
  LRESULT receive(HWND window, UINT message, WPARAM wparam, LPARAM lparam) final;
  void destroyed(HWND window) final;
  void wipeText(HWND window);
  RECT middleLine() const;
  void takeBoxOff();
  std::optional<LRESULT> painted(UINT message, WPARAM wparam);
  LRESULT reflected(UINT message, WPARAM wparam, LPARAM lparam);
  bool focusForPress();

  FormWindow& owner_;
  forms::Control& control_;
  HWND window_ = nullptr;
  Accessibles accessibles_;
  bool pressing_ = false;          // a press waits until the field being left has been
  std::optional<LPARAM> release_;  // of the button meanwhile, and where
  bool destroying_ = false;        // the windows are being destroyed
};

}  // namespace nv::windows
