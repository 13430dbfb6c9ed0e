#include "forms/Toggle.h"

#include <vector>

#include "forms/Form.h"

namespace nv::forms {

void CheckBox::setChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  changed(Attribute::value);
  click.raise();
}

void OptionButton::setSelected(bool selected) {
  if (selected == selected_) return;
  if (selected) {
    for (Control* other : form().controls()) {
      if (other != this && sameGroup(*other)) static_cast<OptionButton*>(other)->setSelected(false);
    }
  }
  selected_ = selected;
  changed(Attribute::value);
  if (selected) click.raise();
}

bool OptionButton::tabStop() const {
  if (selected_) return true;
  for (const Control* other : form().controls()) {
    if (!sameGroup(*other) || !other->reachable()) continue;
    if (static_cast<const OptionButton*>(other)->selected_) return false;
  }
  for (const Control* other : form().controls()) {
    if (sameGroup(*other) && other->reachable()) return other == this;
  }
  return true;
}

bool OptionButton::useKey(const KeyDown& key) {
  const bool forward = key.code == keys::down || key.code == keys::right;
  const bool backward = key.code == keys::up || key.code == keys::left;
  if (key.shift != 0 || !(forward || backward)) return false;

  std::vector<OptionButton*> group;
  std::size_t own = 0;
  for (Control* other : form().controls()) {
    if (!sameGroup(*other) || !other->reachable()) continue;
    if (other == this) own = group.size();
    group.push_back(static_cast<OptionButton*>(other));
  }
  if (group.empty()) return true;
  OptionButton& next = *group[(own + (forward ? 1 : group.size() - 1)) % group.size()];
  next.setFocus();
  next.clicked();
  return true;
}

}  // namespace nv::forms
