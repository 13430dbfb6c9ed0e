#include "forms/Accessible.h"

#include <algorithm>

#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Toggle.h"
#include "platform/Text.h"

namespace nv::forms {

namespace {

/// A caption as it is spoken.
std::wstring spoken(const Control& control) {
  std::wstring text;
  const std::wstring& caption = control.caption();
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (control.usesMnemonic() && caption[i] == L'&' && ++i == caption.size()) break;
    text += caption[i];
  }
  const auto last = text.find_last_not_of(L":* ");
  if (last != std::wstring::npos) text.erase(last + 1);  // but a mark, "*", is called what it is
  return text;
}

bool saysSomething(const std::wstring& caption) {
  return std::ranges::any_of(caption, [](wchar_t c) { return isCapital(asciiUpper(c)); });
}

}  // namespace

Role roleOf(const Control& control) {
  switch (control.kind()) {
    case Kind::label:
      return Role::text;
    case Kind::textBox:
      return Role::edit;
    case Kind::frame:
      return Role::group;
    case Kind::checkBox:
      return Role::checkBox;
    case Kind::optionButton:
      return Role::radioButton;
    case Kind::comboBox:
    case Kind::dropDownList:
      return Role::comboBox;
    case Kind::commandButton:
    case Kind::styledButton:
    case Kind::image:
      return Role::button;
    case Kind::hyperlink:
      return control.look().alive ? Role::link : Role::text;
    case Kind::picture:
      break;
  }
  return Role::graphic;
}

const wchar_t* roleName(Role role) {
  constexpr const wchar_t* names[] = {L"text",      L"edit",   L"grouping", L"check box", L"radio button",
                                      L"combo box", L"button", L"link",     L"graphic"};
  return names[static_cast<std::size_t>(role)];
}

const Control* labelOf(const Control& control) {
  if (const Control* const said = control.description().label; said != nullptr && said->visible()) return said;
  if (!control.isField()) return nullptr;
  const auto& all = control.form().controls();
  const Control* label = nullptr;
  for (const Control* other : all) {
    if (other == &control) break;
    if (other->kind() == Kind::label && other->frame() == control.frame() && saysSomething(other->caption()))
      label = other;
  }
  return label;
}

std::wstring nameOf(const Control& control) {
  const Control* const label = labelOf(control);
  if (label == nullptr) return spoken(control);
  std::wstring name(control.description().before);
  return name.append(nameOf(*label)).append(control.description().after);
}

wchar_t mnemonicOf(const Control& control) {
  if (!control.usesMnemonic()) return 0;
  const std::wstring& caption = control.caption();
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != L'&') continue;
    if (caption[i + 1] != L'&') return asciiUpper(caption[i + 1]);
    ++i;
  }
  return 0;
}

std::wstring keyOf(const Control& control) {
  if (!control.description().key.empty()) return std::wstring(control.description().key);
  const Control* const label = control.isField() ? labelOf(control) : nullptr;
  const wchar_t mnemonic = mnemonicOf(label != nullptr ? *label : control);
  if (mnemonic != 0) return std::wstring(L"Alt+") + mnemonic;
  return control.isButton() && static_cast<const Button&>(control).cancels() ? L"Esc" : L"";
}

bool isRequired(const Control& control) {
  const Control* const mark = control.description().mark;
  return mark != nullptr && mark->visible();
}

const wchar_t* actionOf(const Control& control) {
  switch (roleOf(control)) {
    case Role::button:
      return L"Press";
    case Role::link:
      return control.takesFocus() ? L"Jump" : L"";
    case Role::checkBox:
      return static_cast<const CheckBox&>(control).checked() ? L"Uncheck" : L"Check";
    case Role::radioButton:
      return L"Check";
    case Role::comboBox:
      return L"Open";
    default:
      return L"";
  }
}

}  // namespace nv::forms
