// What the foreign bank details dialog does when the user presses OK.
#include "dialogs/fxbank/frmFXBankInfo.h"
#include "dialogs/support/Messages.h"
#include "platform/Text.h"
#include "validation/AddressRules.h"
#include "validation/BankChecks.h"

namespace nv {

using platform::MessageBoxes;

namespace {

constexpr wchar_t mask = L'*';

bool sameTrimmed(const forms::TextField& a, const forms::TextField& b) {
  return trimmed(a.text()) == trimmed(b.text());
}

}  // namespace

/// A message that leaves the dialog open, under the component's caption or one of its own.
void frmFXBankInfo::tell(const wchar_t* text, const wchar_t* caption) {
  component().services.messages.show(text, caption, MessageBoxes::Icon::information, MessageBoxes::Buttons::ok);
}

void frmFXBankInfo::cmd_ok_Click() {
  if (refusesBlank(txtBankName, L"You must enter bank name.")) return;
  if (refusesBlank(txtBankStreet, L"You must enter bank street.")) return;
  if (refusesBlank(txtBankCity, L"You must enter bank city.")) return;
  if (refusesBlank(cmbBankProv, L"You must enter bank province/state.")) return;
  if (refusesBlank(cmbBankCountry, L"You must enter bank country.")) return;
  if (Random::Has_PO_Box_Address(component(), txtBankStreet.text()) != 0) {
    tell(postOfficeBoxMessage);
    return;
  }
  if (inUnitedStates()) {
    if (!refusesUnitedStates()) acceptOrConfirm(unitedStates_);
  } else {
    if (!refusesInternational()) acceptOrConfirm(international_);
  }
}

bool frmFXBankInfo::refusesBlank(forms::TextField& field, const wchar_t* message) {
  if (!trimmed(field.text()).empty()) return false;
  field.setText({});
  tell(message);
  field.setFocus();
  return true;
}

bool frmFXBankInfo::refusesInternational() {
  const std::size_t swiftLength = txtSwiftNumber.text().size();
  if (swiftLength == 0) {
    tell(L"You must enter Swift code.");
  } else if (swiftLength != 8 && swiftLength != 11) {
    tell(L"Swift numbers must be either 8 or 11 characters long.");
  } else if (txtBankAccount.text().empty()) {
    tell(L"You must enter a bank account number.");
  } else {
    return false;
  }
  return true;
}

bool frmFXBankInfo::refusesUnitedStates() {
  if (txtUSABA.text().empty() || txtUSBankAccount.text().empty()) {
    tell(L"You must enter both an ABA Routing # and an Account #.", L"Bank Account Number Validation");
  } else if (!Random::ValidateABANumber(component(), txtUSABA.text())) {
    tell(
        L"The ABA Routing # that you have entered is not valid. Please make sure you enter a valid 9 digit ABA Routing "
        L"#.",
        L"Invalid ABA #");
  } else {
    return false;
  }
  return true;
}

/// Whether the numbers differ from those that the dialog was opened with. Those of a United States bank are kept as
/// one.
bool frmFXBankInfo::differsFromOpening(const Section& section) const {
  const std::wstring number(trimmed(section.number.text()));
  const std::wstring account(trimmed(section.account.text()));
  if (&section == &unitedStates_) return number + account != openingAccount_;
  return account != openingAccount_ || number != openingSwift_;
}

void frmFXBankInfo::acceptOrConfirm(Section& section) {
  if (differsFromOpening(section)) accountChanged_ = true;
  if (!accountChanged_) {
    accept();
  } else if (pendingAccount_.empty()) {
    openConfirmation(section);
  } else if (sameTrimmed(section.accountConf, section.account) && sameTrimmed(section.numberConf, section.number)) {
    pendingAccount_.clear();
    closeConfirmation(section);
    accept();
  } else {
    showConfirmation(section);
    sendToConfirmation(section);
  }
}

void frmFXBankInfo::openConfirmation(Section& section) {
  pendingAccount_ = trimmed(section.account.text());
  showConfirmation(section);
  section.accountConf.setText({});
  section.numberConf.setText({});
  section.numberConf.setFocus();
}

void frmFXBankInfo::showConfirmation(Section& section) {
  section.confirmLabel.setVisible(true);
  for (forms::TextBox* box : {&section.accountConf, &section.numberConf}) {
    box->setVisible(true);
    box->setEnabled(true);
  }
  for (forms::TextBox* box : {&section.account, &section.number}) box->setPasswordChar(mask);
}

/// Leads the user to the confirmation that is missing or wrong.
void frmFXBankInfo::sendToConfirmation(Section& section) {
  forms::TextBox& number = section.numberConf;
  forms::TextBox& account = section.accountConf;
  const auto select = [](forms::TextBox& box) {
    box.selectAll();
    box.setFocus();
  };
  if (account.text().empty() && !number.text().empty()) {
    account.setFocus();
  } else if (number.text().empty()) {
    number.setFocus();
  } else if (!sameTrimmed(account, section.account)) {
    select(account);
  } else if (!sameTrimmed(number, section.number)) {
    select(number);
  } else {
    account.setText({});
    number.setText({});
    number.setFocus();
  }
}

void frmFXBankInfo::accept() {
  accepted_ = true;
  unload();
}

}  // namespace nv
