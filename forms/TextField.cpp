#include "forms/TextField.h"

#include <algorithm>

#include "forms/Form.h"
#include "platform/ScopedValue.h"

namespace nv::forms {

void TextField::setText(std::wstring text) {
  if (text == text_) return;
  int caret = 0;
  if (typing_) {
    const int behindCaret = static_cast<int>(text_.size()) - selection_.start - selection_.length;
    caret = std::max(0, static_cast<int>(text.size()) - behindCaret);
  }
  text_ = std::move(text);
  selection_ = {caret, 0};
  changed(Attribute::text);
  report(false);
}

void TextField::setMaxLength(int length) {
  if (length == maxLength_) return;
  maxLength_ = length;
  changed(Attribute::limit);
}

void TextField::select(int start, int length) {
  const int end = static_cast<int>(text_.size());
  selection_.start = std::clamp(start, 0, end);
  selection_.length = std::clamp(length, 0, end - selection_.start);
  changed(Attribute::selection);
}

void TextField::onUserText(std::wstring text, Selection selection) {
  if (form().busy()) {
    changed(Attribute::text);
    return;
  }
  selection_ = selection;
  if (text == text_) return;
  text_ = std::move(text);
  const ScopedValue typing(typing_, true);
  report(true);
}

void TextField::report(bool byUser) {
  textChanged(byUser);
  change.raise();
}

}  // namespace nv::forms
