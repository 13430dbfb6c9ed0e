// What a check of an acceptance comes to.
#pragma once

#include <string>
#include <utility>

#include "dialogs/support/ComponentForm.h"
#include "forms/Button.h"
#include "forms/TextField.h"

namespace nv {

/// Either there is nothing to object to, or the acceptance stops: with what the user is told, and where the mending is
/// to be done.
class [[nodiscard]] Verdict {
 public:
  static Verdict passed() { return Verdict(false); }
  static Verdict stop() { return Verdict(true); }
  static Verdict stopAt(forms::Control& control) { return stop().at(control); }
  /// The field is emptied, of blanks as a rule.
  static Verdict stopEmptied(forms::TextField& field);
  /// The field's text is selected, to be typed over.
  static Verdict stopSelected(forms::TextField& field);

  /// @param message nothing is said if it is empty. @param caption of the box; the form's own, if not given.
  Verdict saying(std::wstring message, const wchar_t* caption = nullptr) &&;
  /// What has been said leads on to a button, which is pressed if it is available.
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
