// A combo box: a text field with a list of entries to choose from.
#pragma once

#include <vector>

#include "forms/TextField.h"

namespace nv::forms {

class ComboBox : public TextField {
 public:
  static constexpr int none = -1;

  ComboBox(Parent parent, Name name) : TextField(parent, Kind::comboBox, name) {}

  const std::vector<std::wstring>& entries() const { return entries_; }
  int listCount() const { return static_cast<int>(entries_.size()); }
  void clear();
  void add(std::wstring entry);

  /// The chosen entry, from 0, or `none`. Choosing one puts it into the text and raises `click`; typing chooses none.
  int listIndex() const { return listIndex_; }
  /// Fails with "Invalid procedure call or argument" outside `none` to `listCount() - 1`.
  void setListIndex(int index);

  /// For the widgetset: the user picked an entry.
  void picked(int index);

 private:
  void textChanged(bool byUser) override {
    if (byUser) listIndex_ = none;
  }

  std::vector<std::wstring> entries_;
  int listIndex_ = none;
};

}  // namespace nv::forms
