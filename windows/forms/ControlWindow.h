// What the windows of all controls have in common: they are made from the control's state, follow it, route keys, mouse
// and focus to the form, and never let an exception out of a window procedure.
#pragma once

#include <vector>

#include "forms/Control.h"
#include "forms/Form.h"
#include "windows/Handles.h"

namespace nv::windows {

class FormWindow;

/// The window property under which every real window carries its control's name, as a global atom.
inline constexpr const wchar_t* nameProperty = L"NVRandom.Name";

/// Runs what a window procedure does for a form: whatever it makes of the form, the form lives until here, and no
/// exception leaves the procedure. The result of a failure is 0.
template <class Body>
LRESULT shielded(forms::Form& form, Body&& body) noexcept {
  const auto keep = form.weak_from_this().lock();
  try {
    return body();
  } catch (...) {
    form.failed(RuntimeError::current());
    return 0;
  }
}

/// Puts a name on a window, or takes it off again.
void setWindowName(HWND window, std::wstring_view name);
void removeWindowName(HWND window);

/// The Shift, Control and Alt keys at the message being worked off, as ShiftState bits.
int shiftState();

class ControlWindow : public forms::ControlPeer {
 public:
  ControlWindow(FormWindow& owner, forms::Control& control) : owner_(owner), control_(control) {}

  /// The window, or nullptr before `create` and after it was destroyed.
  HWND window() const { return window_; }

  /// Makes the window in `parent` in the control's present state.
  void create(HWND parent);

  /// Brings the window in line with everything that depends on the dpi.
  void rescale();

  /// Types a character into the control, as the keyboard would.
  void type(wchar_t character);

  void update(forms::Attribute aspect) override;
  void takeFocus() override;
  forms::Selection selection() const override { return {}; }

  /// A message that a child sends to its parent about itself (WM_COMMAND, WM_NOTIFY, WM_DRAWITEM, WM_CTLCOLOR...),
  /// handed back to the child's ControlWindow. Returns whether it was one, with its result.
  static bool reflect(const FormWindow& owner, UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);

 protected:
  struct Native {
    const wchar_t* windowClass;
    DWORD style = 0;
    DWORD extendedStyle = 0;
  };
  /// The window class and styles of this kind of control.
  virtual Native native() const = 0;
  /// After the window was made, before the state is applied.
  virtual void created() {}
  /// Makes one aspect of the window what the control says.
  virtual void apply(forms::Attribute aspect);
  /// A message to the control's window or to an adopted one. Returns its result; `pass` hands it on.
  virtual LRESULT handle(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT pass(HWND window, UINT message, WPARAM wparam, LPARAM lparam) const;
  /// A key that the window uses before the form sees it: those that work an open list. Returns whether it did.
  virtual bool usesKey(WPARAM /*key*/) { return false; }
  /// Whether the window has a use for a character that was typed into it.
  virtual bool usesCharacter(wchar_t /*character*/) const { return true; }
  /// What the window tells its parent by WM_COMMAND.
  virtual void notified(UINT /*code*/) {}
  virtual LRESULT notified(const NMHDR& /*header*/) { return 0; }
  virtual void draw(const DRAWITEMSTRUCT& /*item*/) {}
  /// The colours in which the window draws itself. Returns the brush of its background.
  virtual HBRUSH colours(HDC context);
  /// The colour behind the window's own drawing.
  virtual forms::Colour background() const { return control_.backColor(); }
  /// The colour of the frame or form behind the control.
  forms::Colour containerColour() const;

  /// Treats a window that belongs to the control's own (the text field of a list) like it: keys, mouse, focus.
  void adopt(HWND inner);
  /// The window that takes the keyboard focus for the control.
  virtual HWND focusWindow() const { return window_; }
  /// Where the window stands, in pixels of its parent.
  virtual RECT area() const;
  /// The same for fields of one line: no taller than their text needs, so that text and label keep to one line.
  RECT lineArea() const;
  bool underlined() const { return control_.kind() == forms::Kind::hyperlink; }

  FormWindow& owner() const { return owner_; }
  forms::Control& control() const { return control_; }
  forms::Form& form() const { return control_.form(); }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT dispatch(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void wipeText(HWND window);
  LRESULT reflected(UINT message, WPARAM wparam, LPARAM lparam);
  bool mouseDown(HWND window, int button, LPARAM lparam);
  void place();

  FormWindow& owner_;
  forms::Control& control_;
  HWND window_ = nullptr;
  struct Subclassed {
    HWND window;
    WNDPROC before;
  };
  std::vector<Subclassed> subclassed_;  // the control's window and those within it, until they are destroyed
  bool discardCharacter_ = false;       // of the key that is down
  bool forgetting_ = false;             // the windows are being destroyed
};

}  // namespace nv::windows
