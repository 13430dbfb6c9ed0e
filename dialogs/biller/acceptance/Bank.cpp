// The checks of the bank account: in Canada, in the United States, abroad.
#include <algorithm>
#include <utility>

#include "dialogs/biller/acceptance/Acceptance.h"
#include "dialogs/support/Confirmation.h"
#include "platform/HostInstallation.h"
#include "validation/BankChecks.h"

namespace nv {

using forms::TextBox;
using platform::MessageBoxes;

namespace {

/// Results of the checks of bank ids and accounts; every other one means that the check refuses.
constexpr std::int16_t valid = 1, doubtful = 2;

std::optional<std::int16_t> checkId(Component& component, const std::wstring& id, std::wstring& refusal) {
  if (component.store.UseAcctvfy == flagFalse) {
    std::int16_t length = 0;
    return Random::ValidateBankId(component, id, refusal, length, false);
  }
  // The library brings no text: what it does not know is for the user to decide.
  return component.services.installation.checkBankId(component.store.DLLPath, id) == 0 ? doubtful : valid;
}

std::optional<std::int16_t> checkNumbers(Component& component, const frmRandomInfo& form, std::wstring& refusal) {
  const std::wstring id(trimmed(form.txtBankID.text()));
  const std::wstring transit(trimmed(form.txtTransit.text()));
  const std::wstring account(trimmed(form.txtAccount.text()));
  if (component.store.UseAcctvfy != flagFalse) {
    return component.services.installation.checkBankAccount(component.store.DLLPath, id, transit, account, refusal);
  }
  std::int16_t length = 0;
  return Random::ValidateBankAccount(component, id, transit, account, refusal, length, false);
}

std::wstring saidOr(const std::wstring& refusal, const wchar_t* otherwise) {
  return trimmed(refusal).empty() ? otherwise : refusal;
}

}  // namespace

Verdict frmRandomInfo::Acceptance::checkBankId() {
  if (!checksBankNumbers()) return Verdict::passed();
  TextBox& id = form_.txtBankID;
  id.setText(std::wstring(textOf(id)));
  if (id.text().empty()) return Verdict::passed();
  if (onlyZeros(id.text())) return Verdict::stopSelected(id);
  std::wstring refusal;
  const std::optional<std::int16_t> result = checkId(component(), id.text(), refusal);
  if (result == valid) return Verdict::passed();
  if (!result) return Verdict::stopSelected(id);
  if (result != doubtful)
    return Verdict::stopSelected(id).saying(saidOr(refusal, Random::invalidBankId), L"Bank Id Validation");
  const MessageBoxes::Answer answer = component().services.messages.show(
      L"That Bank ID does not appear to be valid. Please make sure you have not entered a cheque number. Are you sure "
      L"you want to use the Bank ID you have entered?",
      L"Bank ID Validation", MessageBoxes::Icon::information, MessageBoxes::Buttons::yesNo);
  return answer == MessageBoxes::Answer::yes ? Verdict::passed() : Verdict::stopSelected(id);
}

Verdict frmRandomInfo::Acceptance::checkTransit() {
  if (!checksBankNumbers()) return Verdict::passed();
  TextBox& transit = form_.txtTransit;
  transit.setText(std::wstring(textOf(transit)));
  return onlyZeros(transit.text()) ? Verdict::stopSelected(transit) : Verdict::passed();
}

Verdict frmRandomInfo::Acceptance::checkAccount() {
  constexpr std::size_t longest = 21;  // a record may hold more than can be typed
  if (!checksBankNumbers()) return Verdict::passed();
  TextBox& account = form_.txtAccount;
  account.setText(std::wstring(textOf(account)));
  if (account.text().size() > longest || onlyZeros(account.text())) return Verdict::stopSelected(account);
  if (account.text().find(L' ') == std::wstring::npos) return Verdict::passed();
  return Verdict::stopSelected(account).saying(
      L"The account number you have entered is invalid, spaces in the middle are not allowed.");
}

/// The bank of a biller in the United States, while the user may enter it.
Verdict frmRandomInfo::Acceptance::checkRoutingNumberDetails() {
  if (!hasRoutingNumberDetails()) return Verdict::passed();
  TextBox& routing = form_.txtRoutingNumber;
  TextBox& account = form_.txtBankAccountNumber;
  for (TextBox* field : {&form_.txtBankName, &routing, &account}) {
    const wchar_t shown = field->passwordChar();
    field->setText(std::wstring(textOf(*field)));
    field->setPasswordChar(shown);  // trimming must not unmask it
    if (field->text().empty()) {
      return Verdict::stopAt(*field).saying(L"Bank information is required for the biller.");
    }
  }
  for (TextBox* number : {&routing, &account}) {
    if (onlyZeros(number->text())) return Verdict::stopSelected(*number);
  }
  if (!Random::ValidateABANumber(component(), routing.text(), form_.domestic())) return Verdict::stopSelected(routing);
  TextBox& confirmation = form_.txtConfirmBankAccountNumber;
  if (confirmation.text().empty()) {
    form_.lblBankInfoConfirm.setVisible(true);
    confirmation.setVisible(true);
    form_.rearrange();
    maskAndConfirm(account, confirmation);
    return Verdict::stopAt(confirmation);
  }
  return sameTrimmed(confirmation, account) ? Verdict::passed() : Verdict::stopSelected(confirmation);
}

/// An international biller has a foreign bank.
Verdict frmRandomInfo::Acceptance::checkForeignBank() {
  if (hasRoutingNumberDetails()) storeRoutingNumberDetails();
  if (!form_.foreignCurrency_ || !store().PayeeFXBankAccount.empty()) return Verdict::passed();
  const wchar_t* const message = L"Banking information is required for international payments.";
  // With the Canadian dollar there is no button: the way to it leads through the currency.
  if (!form_.cmdFXBankingInfo.available()) return Verdict::stopAt(form_.cmbCurrencyCode).saying(message);
  return Verdict::stop().saying(message).pressing(form_.cmdFXBankingInfo);
}

Verdict frmRandomInfo::Acceptance::checkBankAccount() {
  if (!anyBankNumber() || !form_.fraBankAcctInfo.reachable()) return Verdict::passed();
  for (TextBox* number : {&form_.txtTransit, &form_.txtBankID, &form_.txtAccount}) {
    if (onlyZeros(textOf(*number))) return Verdict::stopSelected(*number);
  }
  std::wstring refusal;
  const std::optional<std::int16_t> result = checkNumbers(component(), form_, refusal);
  if (result == valid) return Verdict::passed();
  if (result == doubtful) return confirmAccount();
  if (!result) return Verdict::stopAt(form_.txtAccount);
  return Verdict::stopAt(form_.txtAccount)
      .saying(saidOr(refusal, Random::invalidBankAccount), L"Bank Account Number Validation");
}

/// A doubtful account that is new is to be entered a second time.
Verdict frmRandomInfo::Acceptance::confirmAccount() {
  struct Pair {
    TextBox& field;
    TextBox& confirmation;
    std::wstring& opening;
  };
  const Pair transit = {form_.txtTransit, form_.txtTransitConf, form_.opening_.transit};
  const Pair bankId = {form_.txtBankID, form_.txtBankIDConf, form_.opening_.bankId};
  const Pair account = {form_.txtAccount, form_.txtAccountConf, form_.opening_.account};
  Pair pairs[] = {transit, bankId, account};

  const auto unchanged = [](const Pair& pair) { return textOf(pair.field) == trimmed(pair.opening); };
  const auto confirmed = [](const Pair& pair) { return sameTrimmed(pair.confirmation, pair.field); };
  const bool right = form_.confirming_ && std::ranges::all_of(pairs, confirmed);
  if (right || std::ranges::all_of(pairs, unchanged)) {
    // A later check may stop the acceptance: what is confirmed now is not asked for again.
    for (Pair& pair : pairs) {
      pair.opening = pair.field.text();
      pair.field.setPasswordChar(0);
    }
    form_.confirming_ = false;
    form_.clearConfirmation();
    form_.showConfirmation(false);
    return Verdict::passed();
  }
  if (!std::exchange(form_.confirming_, true)) form_.clearConfirmation();
  form_.showConfirmation(true);
  for (const Pair& pair : pairs) maskAndConfirm(pair.field, pair.confirmation);
  // A number that is empty, as an account may be, is not to be entered again.
  for (const Pair& pair : pairs) {
    if (pair.confirmation.text().empty() && !confirmed(pair)) return Verdict::stopAt(pair.confirmation);
  }
  for (const Pair& pair : {account, transit, bankId}) {
    if (!confirmed(pair)) return Verdict::stopSelected(pair.confirmation);
  }
  form_.clearConfirmation();
  return Verdict::stopAt(form_.txtTransitConf);
}

}  // namespace nv
