// Controls that are on or off: check boxes, and option buttons, of which one per container is on.
#pragma once

#include "forms/Control.h"

namespace nv::forms {

/// A check box. `click` is raised whenever the check mark changes, by the user or by code.
class CheckBox : public CaptionedControl {
 public:
  CheckBox(Parent parent, Name name, std::wstring caption = {})
      : CaptionedControl(parent, Kind::checkBox, name, std::move(caption)) {}

  bool checked() const { return checked_; }
  void setChecked(bool checked);

  bool takesFocus() const override { return true; }
  void useMnemonic() override { clicked(); }

  /// For the widgetset: the user clicked.
  void clicked() {
    if (takesInput()) setChecked(!checked_);
  }

 private:
  bool checked_ = false;
};

/// An option button. Selecting one clears the others in the same container; `click` is raised when one becomes
/// selected, by the user or by code.
class OptionButton : public CaptionedControl {
 public:
  OptionButton(Parent parent, Name name, std::wstring caption = {})
      : CaptionedControl(parent, Kind::optionButton, name, std::move(caption)) {}

  bool selected() const { return selected_; }
  void setSelected(bool selected);

  bool takesFocus() const override { return true; }
  /// A group is one stop: the selected button, or its first reachable one when none is selected.
  bool tabStop() const override;
  bool useKey(const KeyDown& key) override;
  void useMnemonic() override { clicked(); }

  /// For the widgetset: the user clicked.
  void clicked() {
    if (takesInput()) setSelected(true);
  }

 private:
  bool sameGroup(const Control& other) const { return other.kind() == Kind::optionButton && other.frame() == frame(); }

  bool selected_ = false;
};

}  // namespace nv::forms
