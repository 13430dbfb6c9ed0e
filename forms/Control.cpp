#include "forms/Control.h"

#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"

namespace nv::forms {

Parent::Parent(Frame& itself) : form(itself.form()), frame(&itself) {}

Control::Control(Parent parent, Kind kind, Name name) : parent_(parent), kind_(kind), name_(name) {
  parent.form.add(*this);
}

std::wstring Control::fullName() const {
  std::wstring name(name_.text);
  if (name_.index != Name::noIndex) name += L"(" + std::to_wstring(name_.index) + L")";
  return name;
}

void Control::setPlace(const Place& place) {
  if (place == place_) return;
  place_ = place;
  changed(Attribute::place);
}

Twips Control::topInForm() const {
  Twips top = place_.top;
  for (const Frame* around = frame(); around != nullptr; around = around->frame()) top += around->place().top;
  return top;
}

void Control::setVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  changed(Attribute::visible);
  form().leaveUnreachable();
}

void Control::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  changed(Attribute::enabled);
  for (Control* other : form().controls()) {
    if (other->standsIn(*this)) other->lookChanged();
  }
  form().leaveUnreachable();
}

bool Control::reachable() const {
  const Control* control = this;
  while (control != nullptr && control->available()) control = control->frame();
  return control == nullptr;
}

bool Control::blocked() const {
  const Control* control = this;
  while (control != nullptr && control->enabled()) control = control->frame();
  return control != nullptr;
}

bool Control::standsIn(const Control& other) const {
  const Control* around = frame();
  while (around != nullptr && around != &other) around = around->frame();
  return around != nullptr;
}

bool Control::takesInput() const {
  return reachable() && !form().busy();
}

bool Control::isField() const {
  return kind_ == Kind::textBox || kind_ == Kind::comboBox || kind_ == Kind::dropDownList;
}

bool Control::isReadingText() const {
  return isField() && form().forReading();
}

Look Control::look() const {
  const bool field = isField();
  const bool label = kind_ == Kind::label;
  const bool pressed = isButton() || kind_ == Kind::image;
  const bool seenThrough = isReadingText() || kind_ == Kind::image || kind_ == Kind::picture ||
                           (label && static_cast<const Label&>(*this).transparent());
  Look look;
  look.alive = !blocked() && usable();
  look.greyed = blocked() && (pressed || !form().forReading());
  look.colours = colours_;
  if (field && !look.alive) look.colours = colours::buttonFace;
  if (seenThrough) look.colours = frame() != nullptr ? frame()->colours() : form().colours();
  return look;
}

void Control::setColours(const Colours& colours) {
  if (colours == colours_) return;
  colours_ = colours;
  changed(Attribute::appearance);
}

void Control::setFont(Font font) {
  if (font == font_) return;
  font_ = std::move(font);
  changed(Attribute::appearance);
}

bool Control::hasFocus() const {
  return form().activeControl() == this;
}

void Control::setFocus() {
  form().focus(*this);
}

const std::wstring& Control::noCaption() {
  static const std::wstring none;
  return none;
}

}  // namespace nv::forms
