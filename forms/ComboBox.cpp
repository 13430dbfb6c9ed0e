#include "forms/ComboBox.h"

#include "platform/RuntimeError.h"

namespace nv::forms {

void ComboBox::clear() {
  entries_.clear();
  listIndex_ = none;
  changed(Attribute::rows);
  setText({});
}

void ComboBox::add(std::wstring entry) {
  entries_.push_back(std::move(entry));
  changed(Attribute::rows);
}

void ComboBox::picked(int index) {
  if (takesInput()) {
    setListIndex(index);
  } else {
    changed(Attribute::row);
  }
}

void ComboBox::setListIndex(int index) {
  if (index < none || index >= listCount()) throw RuntimeError(ErrorNumber::invalidCall);
  const bool differs = index != listIndex_;
  listIndex_ = index;
  changed(Attribute::row);
  if (index == none) {
    setText({});
    return;
  }
  setText(entries_[static_cast<std::size_t>(index)]);
  if (differs) click.raise();
}

}  // namespace nv::forms
