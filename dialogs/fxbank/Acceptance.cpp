// What the foreign bank details dialog does when the user presses OK.
#include <utility>

#include "dialogs/fxbank/frmFXBankInfo.h"
#include "dialogs/support/Confirmation.h"
#include "dialogs/support/Messages.h"
#include "validation/AddressRules.h"
#include "validation/BankChecks.h"

namespace nv {

namespace {

/// Messages come under the component's caption, unless they have one of their own.
Verdict refusal(const wchar_t* message, const wchar_t* caption = applicationTitle) {
  return Verdict::stop().saying(message, caption);
}

}  // namespace

void frmFXBankInfo::cmd_ok_Click() {
  const Verdict verdict = accept();
  if (verdict.stops()) return verdict.carryOut(*this);
  accepted_ = true;
  unload();
}

Verdict frmFXBankInfo::accept() {
  const std::pair<forms::TextField&, const wchar_t*> required[] = {
      {txtBankName, L"You must enter bank name."},       {txtBankStreet, L"You must enter bank street."},
      {txtBankCity, L"You must enter bank city."},       {cmbBankProv, L"You must enter bank province/state."},
      {cmbBankCountry, L"You must enter bank country."},
  };
  for (const auto& [field, message] : required) {
    if (trimmed(field.text()).empty()) return Verdict::stopEmptied(field).saying(message, applicationTitle);
  }
  if (Random::Has_PO_Box_Address(component(), txtBankStreet.text()) != 0) return refusal(postOfficeBoxMessage);
  Verdict numbers = inUnitedStates() ? checkUnitedStates() : checkInternational();
  return numbers.stops() ? numbers : confirm(inUnitedStates() ? unitedStates_ : international_);
}

Verdict frmFXBankInfo::checkInternational() const {
  const std::size_t swiftLength = txtSwiftNumber.text().size();
  if (swiftLength == 0) return refusal(L"You must enter Swift code.");
  if (swiftLength != 8 && swiftLength != 11) {
    return refusal(L"Swift numbers must be either 8 or 11 characters long.");
  }
  if (txtBankAccount.text().empty()) return refusal(L"You must enter a bank account number.");
  return Verdict::passed();
}

Verdict frmFXBankInfo::checkUnitedStates() const {
  if (txtUSABA.text().empty() || txtUSBankAccount.text().empty()) {
    return refusal(L"You must enter both an ABA Routing # and an Account #.", L"Bank Account Number Validation");
  }
  if (Random::ValidateABANumber(component(), txtUSABA.text(), domestic_)) return Verdict::passed();
  return refusal(
      L"The ABA Routing # that you have entered is not valid. Please make sure you enter a valid 9 digit ABA Routing "
      L"#.",
      L"Invalid ABA #");
}

/// Numbers that have changed are to be entered a second time.
Verdict frmFXBankInfo::confirm(Section& section) {
  if (trimmed(section.account.text()) != section.openingAccount ||
      trimmed(section.number.text()) != section.openingNumber) {
    accountChanged_ = true;
  }
  if (!accountChanged_) return Verdict::passed();
  if (!std::exchange(confirming_, true)) {
    showConfirmation(section);
    return Verdict::stopAt(section.numberConf);
  }
  if (sameTrimmed(section.accountConf, section.account) && sameTrimmed(section.numberConf, section.number))
    return Verdict::passed();
  showConfirmation(section);
  return sendToConfirmation(section);
}

void frmFXBankInfo::showConfirmation(Section& section) {
  section.confirmLabel.setVisible(true);
  for (forms::TextBox* box : {&section.accountConf, &section.numberConf}) {
    box->setVisible(true);
    box->setEnabled(true);
  }
  maskAndConfirm(section.account, section.accountConf);
  maskAndConfirm(section.number, section.numberConf);
  rearrange();
}

/// Leads the user to the confirmation that is missing or wrong.
Verdict frmFXBankInfo::sendToConfirmation(Section& section) {
  forms::TextBox& number = section.numberConf;
  forms::TextBox& account = section.accountConf;
  if (number.text().empty()) return Verdict::stopAt(number);
  if (account.text().empty()) return Verdict::stopAt(account);
  if (!sameTrimmed(account, section.account)) return Verdict::stopSelected(account);
  if (!sameTrimmed(number, section.number)) return Verdict::stopSelected(number);
  account.setText({});
  return Verdict::stopEmptied(number);
}

}  // namespace nv
