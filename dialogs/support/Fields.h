// The fields of a dialog, one row each: what may be typed, how the text is shaped, where Enter and a full field lead,
// what the host hears of it, and which value of the record it shows and stores. FieldForm reads the rows.
#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/support/ComponentForm.h"
#include "forms/TextField.h"
#include "platform/Text.h"

namespace nv {

/// The case that a key is brought to: `upper` as the system has it, `asciiUpper` for a to z alone.
enum class Case { asTyped, upper, asciiUpper };

/// What a change of the text, however it came about, makes of it. An unwatched field has no change procedure.
enum class Shape { unwatched, asTyped, cleansed, upperCase, trimmedUpperCase };

/// How a field is guarded against pasting: not at all, at the right mouse button alone, or wholly.
enum class Paste { allowed, notByMenu, refused };

struct Field {
  /// Controls in the order of preference: the first that can be reached is where the focus goes.
  using Leads = std::array<forms::Control*, 3>;

  forms::Control& field;

  int length = 0;          // how many characters can be typed; 0: no bound. A text of the record may be longer
  forms::Twips width = 0;  // 0: as wide as its length says

  // Keys. Without `keys` no key is looked at, and Enter leads nowhere.
  std::function<bool(wchar_t)> keys{};    // the characters that may be typed, in their case
  Case typedAs = Case::asTyped;           // the case that they are brought to
  std::wstring_view refused = L"\"";      // neither typed, nor kept by a shape that cleanses
  Leads next{};                           // where Enter leads, and a full field
  std::optional<Leads> whenFull{};        // where a full field leads, if not to `next`
  std::function<bool()> leadsWhenFull{};  // whether it does; always, if nothing is said

  // Changes
  Shape shape = Shape::unwatched;
  bool unmasks = false;                       // of a text box: a change removes its mask
  std::function<void()> changed{};            // what else a change does
  forms::TextField* shapedInstead = nullptr;  // the field that a change shapes, if not this one

  // Focus and pasting
  bool reportsTop = false;           // hosts hear where the field is when it gets the focus
  std::function<void()> whenLeft{};  // what happens when it loses the focus
  Paste paste = Paste::allowed;

  // The record
  std::wstring Store::*record = nullptr;
  const wchar_t* whenEmpty = L"";         // shown for an empty value
  bool onlyWhileEnabled = false;          // shown and stored only then
  std::function<void()> show{};           // shows the value, if not as a text
  std::function<std::wstring()> value{};  // the value to store, if not the text without the blanks around it

  // For those who do not see the label before it
  const wchar_t* part = L"";                 // what it is of that which the label names: " area code"
  const forms::Control* confirms = nullptr;  // the field whose number is entered here again
  const forms::Control* mark = nullptr;      // while this is shown, the field must be filled in

  // Procedures that the trace and error reports know by another name than form, control and event make up.
  std::wstring_view keyPressAs{};  // the control's name in KeyPress
  std::wstring_view changeAs{};    // in Change
  std::wstring_view guardsOf{};    // the form's name in KeyDown, MouseDown and LostFocus
};

// For `keys`, beside isDigit and isCapital.
inline bool anyCharacter(wchar_t /*character*/) {
  return true;
}
inline bool isCapitalOrDigit(wchar_t character) {
  return isCapital(character) || isDigit(character);
}
/// Neither a blank nor what Control+V types.
inline bool isAccountCharacter(wchar_t character) {
  constexpr wchar_t controlV = 22;
  return character != L' ' && character != controlV;
}

/// For `whenLeft`: a procedure that does nothing but leave its line in the trace.
inline void onlyTraced() {}

class FieldForm : public ComponentForm {
 public:
  /// The rows, in tab order.
  const std::vector<Field>& fields() const { return fields_; }

 protected:
  using ComponentForm::ComponentForm;

  /// Connects the fields and gives each its size. To be called once, by the constructor.
  void connectFields(std::vector<Field> rows);

  /// Shows the record's values in these fields.
  void showValues(std::initializer_list<forms::Control*> fields);
  /// These fields keep what they show.
  void passOver(std::initializer_list<forms::Control*> fields);
  /// Shows the record's values in the fields that were neither shown nor passed over.
  void showOtherValues();

  /// The value of the record that a row stands for, as its field holds it now; nothing when it is not to be stored.
  std::optional<std::wstring> valueOf(const Field& row) const;

  /// Whether the focus goes to the cancel button: a user who cancels is asked nothing about the field being left.
  bool leavesToCancel() const;

  /// Tells the host where a field is.
  virtual void reportTop(const forms::Control& /*field*/) {}

 private:
  void connect(const Field& row);
  void guardPaste(const Field& row);
  void filterKey(const Field& row, wchar_t& key);
  void changeText(const Field& row, forms::TextField& field);
  static void lead(const Field& row, const Field::Leads& candidates);
  const Field& rowOf(const forms::Control& field) const;
  void showValue(const Field& row);

  std::vector<Field> fields_;
  std::vector<const Field*> toShow_;  // not shown or passed over yet
};

}  // namespace nv
