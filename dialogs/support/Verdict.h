// The result of a check of an acceptance.
#pragma once

#include <string>
#include <utility>

#include "dialogs/support/ComponentForm.h"
#include "forms/Button.h"
#include "forms/TextField.h"

namespace nv {

/// The check has passed, or the acceptance stops: with what the user is told, and the field that is to be corrected.
class [[nodiscard]] Verdict {
 public:
  static Verdict passed() { return Verdict(false); }
  static Verdict stop() { return Verdict(true); }
  static Verdict stopAt(forms::Control& control) { return stop().at(control); }
  /// Empties the field, which holds nothing but blanks as a rule, and leads to it.
  static Verdict stopEmptied(forms::TextField& field);
  /// Selects the field's text, to be typed over.
  static Verdict stopSelected(forms::TextField& field);

  /// @param message an empty one shows no box. @param caption of the box; by default the form's own.
  Verdict saying(std::wstring message, const wchar_t* caption = nullptr) &&;
  /// Presses the button, if it is available, once the user has been told.
  Verdict pressing(forms::Button& button) &&;

  bool stops() const { return stops_; }
  void carryOut(const ComponentForm& form) const;

 private:
  explicit Verdict(bool stops) : stops_(stops) {}
  Verdict at(forms::Control& control) &&;

  bool stops_;
  forms::Control* control_ = nullptr;
  forms::TextField* emptied_ = nullptr;
  forms::TextField* selected_ = nullptr;
  forms::Button* pressed_ = nullptr;
  std::wstring message_;
  const wchar_t* caption_ = nullptr;
};

}  // namespace nv
