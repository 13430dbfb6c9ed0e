// Buttons that start something: command buttons, and buttons with a style of their own.
#pragma once

#include "forms/Control.h"

namespace nv::forms {

class Button : public CaptionedControl {
 public:
  Button(Parent parent, Name name, std::wstring caption = {})
      : Button(parent, Kind::commandButton, name, std::move(caption)) {}

  bool takesFocus() const override { return true; }
  bool useKey(const KeyDown& key) override;
  void useMnemonic() override { press(); }

  /// Presses the button: raises `click` when the button is reachable.
  void press() {
    if (reachable()) click.raise();
  }
  /// For the widgetset: the user clicked.
  void clicked() {
    if (takesInput()) press();
  }

  /// A cancelling button is also pressed by Escape, wherever the focus is.
  bool cancels() const { return cancels_; }
  void setCancels(bool cancels) { cancels_ = cancels; }

 protected:
  Button(Parent parent, Kind kind, Name name, std::wstring caption)
      : CaptionedControl(parent, kind, name, std::move(caption)) {}

 private:
  bool cancels_ = false;
};

/// A button drawn by its style: 0 is the system's own look, 2 the flat one.
class StyledButton : public Button {
 public:
  StyledButton(Parent parent, Name name, std::wstring caption = {})
      : Button(parent, Kind::styledButton, name, std::move(caption)) {}

  int buttonStyle() const { return buttonStyle_; }
  void setButtonStyle(int style) {
    if (style == buttonStyle_) return;
    buttonStyle_ = style;
    changed(Attribute::appearance);
  }

 private:
  int buttonStyle_ = 0;
};

}  // namespace nv::forms
