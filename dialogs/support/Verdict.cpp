#include "dialogs/support/Verdict.h"

namespace nv {

using platform::MessageBoxes;

Verdict Verdict::stopEmptied(forms::TextField& field) {
  Verdict verdict = stopAt(field);
  verdict.emptied_ = &field;
  return verdict;
}

Verdict Verdict::stopSelected(forms::TextField& field) {
  Verdict verdict = stopAt(field);
  verdict.selected_ = &field;
  return verdict;
}

Verdict Verdict::at(forms::Control& control) && {
  control_ = &control;
  return std::move(*this);
}

Verdict Verdict::saying(std::wstring message, const wchar_t* caption) && {
  message_ = std::move(message);
  caption_ = caption;
  return std::move(*this);
}

Verdict Verdict::pressing(forms::Button& button) && {
  pressed_ = &button;
  return std::move(*this);
}

void Verdict::carryOut(const ComponentForm& form) const {
  if (emptied_ != nullptr) emptied_->setText({});
  if (!message_.empty()) {
    const std::wstring& caption = caption_ != nullptr ? caption_ : form.caption();
    form.component().services.messages.show(message_, caption, MessageBoxes::Icon::information,
                                            MessageBoxes::Buttons::ok);
  }
  if (selected_ != nullptr) selected_->selectAll();
  if (control_ != nullptr) control_->setFocus();
  if (pressed_ != nullptr && form.loaded() && pressed_->available()) pressed_->press();
}

}  // namespace nv
