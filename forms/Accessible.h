// What a control is for those who do not see it: its role, its name, the key that reaches it. The widgetset tells it to
// screen readers and test tools; it says the same that a sighted user sees.
#pragma once

#include <string>
#include <string_view>

namespace nv::forms {

class Control;

enum class Role {
  text,  // to be read alone
  edit,
  group,
  checkBox,
  radioButton,
  comboBox,
  button,
  link,
  graphic,
};

/// What a form says of a control that its own text does not say. All texts are literals.
struct Description {
  /// What names the control: a label or, by its own name, any other control. Without one, or while it is hidden, it is
  /// the control's caption, or, of a field, the label before it.
  const Control* label = nullptr;
  std::wstring_view before{};     // stands before the label's text: "Confirm "
  std::wstring_view after{};      // and behind it: " area code"
  std::wstring_view key{};        // a key that does what the control does
  const Control* mark = nullptr;  // the control must be filled in while this mark is shown
};

Role roleOf(const Control& control);
/// The role as people call it: "combo box".
const wchar_t* roleName(Role role);

/// What the control is called: no mnemonic marks, no colon. Empty when nothing names it.
std::wstring nameOf(const Control& control);

/// The label that names a field: the one that its form says, else the nearest before it in the same container, signs
/// like "+" left out. nullptr when there is none, and for controls that carry their own text.
const Control* labelOf(const Control& control);

/// The character behind the first single "&" of a control's caption, in capitals, or 0; "&&" stands for the character
/// itself.
wchar_t mnemonicOf(const Control& control);

/// The key that reaches the control, or presses it, from anywhere in the form, as "Alt+B"; empty when there is none.
std::wstring keyOf(const Control& control);

bool isRequired(const Control& control);

/// What happens to the control when it is clicked, in the words of screen readers: "Press"; empty for nothing.
const wchar_t* actionOf(const Control& control);

}  // namespace nv::forms
