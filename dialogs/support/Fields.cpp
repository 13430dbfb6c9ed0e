#include "dialogs/support/Fields.h"

#include <algorithm>
#include <utility>

#include "dialogs/support/Grid.h"
#include "validation/TextHelpers.h"

namespace nv {

using forms::Control;
using forms::TextBox;
using forms::TextField;

namespace {

/// Shift+Insert or Control+V, whatever other modifiers are held; with Alt it is none of them.
bool pastes(const forms::KeyDown& key) {
  constexpr int v = 86;
  if ((key.shift & forms::altKey) != 0) return false;
  return (key.code == forms::keys::insert && (key.shift & forms::shiftKey) != 0) ||
         (key.code == v && (key.shift & forms::controlKey) != 0);
}

bool refuses(const Field& row, wchar_t character) {
  return row.refused.find(character) != std::wstring_view::npos;
}

}  // namespace

void FieldForm::connectFields(std::vector<Field> rows) {
  fields_ = std::move(rows);
  for (const Field& row : fields_) {
    connect(row);
    if (row.record != nullptr) toShow_.push_back(&row);
  }
}

void FieldForm::connect(const Field& row) {
  Control& control = row.field;
  control.describe({.label = row.confirms,
                    .before = row.confirms != nullptr ? L"Confirm " : L"",
                    .after = row.part,
                    .mark = row.mark});
  const auto label = [&](std::wstring_view as, const wchar_t* event) {
    return Procedure{name(), as.empty() ? control.name() : as, event};
  };
  if (auto* const text = dynamic_cast<TextField*>(&control)) {
    text->setMaxLength(row.length);
    text->setPlace({0, 0, row.width != 0 ? row.width : design::characters(row.length), design::fieldHeight});
    if (row.shape != Shape::unwatched) {
      on(text->change, label(row.changeAs, L"Change"), [this, &row, text] { changeText(row, *text); });
    }
  }
  if (row.keys) {
    on(control.keyPress, label(row.keyPressAs, L"KeyPress"), [this, &row](wchar_t& key) { filterKey(row, key); });
  }
  if (row.reportsTop) on(control.gotFocus, label({}, L"GotFocus"), [this, &row] { reportTop(row.field); });
  const std::wstring_view object = row.guardsOf.empty() ? name() : row.guardsOf;
  if (row.whenLeft) on(control.lostFocus, {object, control.name(), L"LostFocus"}, [&row] { row.whenLeft(); });
  if (row.paste == Paste::refused) {
    static_cast<TextBox&>(control).setTakesPaste(false);
    on(control.keyDown, {object, control.name(), L"KeyDown"}, [](forms::KeyDown& key) {
      if (pastes(key)) key.code = 0;
    });
  }
  if (row.paste != Paste::allowed) {
    // Before the menu opens: its Paste has nothing to insert then.
    on(control.mouseDown, {object, control.name(), L"MouseDown"}, [this](const forms::MouseDown& mouse) {
      if (mouse.button == forms::rightButton) component().services.machine.emptyClipboard();
    });
  }
}

void FieldForm::filterKey(const Field& row, wchar_t& key) {
  if (key == forms::keys::enter && row.next.front() != nullptr) return lead(row, row.next);
  if (key == forms::keys::backspace) return;
  wchar_t shaped = key;
  if (row.typedAs == Case::upper) shaped = component().services.machine.upperCase({&key, 1}).front();
  if (row.typedAs == Case::asciiUpper) shaped = asciiUpper(key);
  key = row.keys(shaped) && !refuses(row, key) ? shaped : wchar_t{0};
}

void FieldForm::changeText(const Field& row, TextField& field) {
  if (row.unmasks) static_cast<TextBox&>(field).setPasswordChar(0);
  if (row.shape != Shape::asTyped) {
    TextField& shaped = row.shapedInstead != nullptr ? *row.shapedInstead : field;
    std::wstring text = Random::CleanseCharacters(component(), shaped.text());
    std::erase_if(text, [&row](wchar_t character) { return refuses(row, character); });
    if (row.shape == Shape::trimmedUpperCase) text = trimmed(text);
    if (row.shape != Shape::cleansed) text = component().services.machine.upperCase(text);
    shaped.setText(std::move(text));
  }
  if (row.changed) row.changed();
  const bool full = static_cast<int>(field.text().size()) == field.maxLength();
  if (full && (!row.leadsWhenFull || row.leadsWhenFull())) lead(row, row.whenFull.value_or(row.next));
}

void FieldForm::lead(const Field& row, const Field::Leads& candidates) {
  if (!row.field.hasFocus()) return;  // text set by code must not take the user to another field
  const auto next = std::ranges::find_if(
      candidates, [](const Control* candidate) { return candidate != nullptr && candidate->reachable(); });
  if (next != candidates.end()) (*next)->setFocus();
}

bool FieldForm::leavesToCancel() const {
  return activeControl() != nullptr && activeControl()->name() == L"cmd_cancel";
}

// The record

void FieldForm::showValues(std::initializer_list<Control*> fields) {
  for (const Control* field : fields) showValue(rowOf(*field));
  passOver(fields);
}

void FieldForm::passOver(std::initializer_list<Control*> fields) {
  std::erase_if(toShow_, [&](const Field* row) { return std::ranges::find(fields, &row->field) != fields.end(); });
}

void FieldForm::showOtherValues() {
  for (const Field* row : std::exchange(toShow_, {})) showValue(*row);
}

void FieldForm::showValue(const Field& row) {
  if (row.onlyWhileEnabled && !row.field.enabled()) return;
  if (row.show) return row.show();
  const std::wstring& value = store().*row.record;
  static_cast<TextField&>(row.field).setText(value.empty() ? row.whenEmpty : value);
}

std::optional<std::wstring> FieldForm::valueOf(const Field& row) const {
  if (row.record == nullptr || (row.onlyWhileEnabled && !row.field.enabled())) return std::nullopt;
  if (row.value) return row.value();
  return std::wstring(trimmed(static_cast<const TextField&>(row.field).text()));
}

const Field& FieldForm::rowOf(const Control& field) const {
  return *std::ranges::find(fields_, &field, [](const Field& row) -> const Control* { return &row.field; });
}

}  // namespace nv
