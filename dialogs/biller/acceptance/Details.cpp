// The checks of e-mail, web site, contact, the kind of biller and the currency.
#include "dialogs/biller/acceptance/Acceptance.h"
#include "validation/BusinessNumber.h"

namespace nv {

using forms::TextBox;

namespace {

bool longerThanTyped(const TextBox& field) {
  return field.text().size() > static_cast<std::size_t>(field.maxLength());
}

}  // namespace

Verdict frmRandomInfo::Acceptance::checkMail() {
  TextBox& mail = form_.ran_payee_email;
  mail.setText(std::wstring(textOf(mail)));
  if (mail.text().empty()) return Verdict::passed();
  std::wstring refusal;
  if (form_.ValidateEmailAddress(mail.text(), refusal, false) && !longerThanTyped(mail)) return Verdict::passed();
  if (refusal.empty()) refusal = invalidMail;
  return Verdict::stopSelected(mail).saying(refusal, L"E-mail Address entry");
}

Verdict frmRandomInfo::Acceptance::checkMailOrFaxOrBank() {
  if (anyBankNumber() || !empty(form_.ran_payee_email) || !empty(form_.ran_payee_faxnumber)) return Verdict::passed();
  return Verdict::stopAt(form_.ran_payee_email).saying(mailOrFaxMessage);
}

Verdict frmRandomInfo::Acceptance::checkWebsite() {
  TextBox& site = form_.ran_payee_www;
  if (empty(site)) {
    site.setText({});
    return Verdict::passed();
  }
  std::wstring refusal;
  if (form_.ValidateWebsite(site.text(), refusal) && !longerThanTyped(site)) return Verdict::passed();
  if (refusal.empty()) refusal = invalidWebsite;
  return Verdict::stopSelected(site).saying(refusal, L"Website entry");
}

Verdict frmRandomInfo::Acceptance::checkContact() {
  TextBox& contact = form_.ran_payee_contact;
  if (empty(contact)) contact.setText({});
  return longerThanTyped(contact) ? Verdict::stopSelected(contact) : Verdict::passed();
}

Verdict frmRandomInfo::Acceptance::checkMailForCurrency() {
  if (textOf(form_.cmbCurrencyCode) == canadianDollar || !empty(form_.ran_payee_email)) return Verdict::passed();
  return Verdict::stopAt(form_.ran_payee_email)
      .saying(form_.domestic() ? L"An email address is required for international payments."
                               : L"An email address is required for " + form_.homeCurrency_ + L" payments.");
}

Verdict frmRandomInfo::Acceptance::checkKind() {
  if (form_.optCBusiness.selected() || form_.optCIndividual.selected()) return Verdict::passed();
  return Verdict::stopAt(form_.optCBusiness);
}

Verdict frmRandomInfo::Acceptance::checkBusinessNumber() {
  TextBox& number = form_.txtBusinessNum;
  if (!form_.hasBusinessNumber() || !number.reachable()) return Verdict::passed();
  const bool valid =
      !empty(number) && !onlyZeros(textOf(number)) && Random::VerifyBusinessNumber(component(), number.text());
  return valid ? Verdict::passed() : Verdict::stopAt(number);
}

Verdict frmRandomInfo::Acceptance::checkIndividual() {
  if (!individual()) return Verdict::passed();
  if (empty(form_.ran_payee_email)) return Verdict::stopAt(form_.ran_payee_email);
  if (Verdict mail = checkMail(); mail.stops()) return mail;
  if (!form_.domestic() || anyBankNumber()) return Verdict::passed();
  return Verdict::stopAt(form_.txtTransit).saying(L"Bank information is mandatory for setting up Individuals.");
}

Verdict frmRandomInfo::Acceptance::checkDuplicateCurrency() {
  const std::wstring_view currency = textOf(form_.cmbCurrencyCode);
  const bool adding = store().Add != flagFalse && store().IPBillerNameAcctExist != flagFalse;
  if (!adding || currency.empty() || !form_.FXCurrencyExists(currency)) return Verdict::passed();
  return Verdict::stopAt(form_.cmbCurrencyCode)
      .saying(
          L"A biller with this name, biller account number and currency already exists. A biller can only be added if "
          L"the currency selected is not already used for this biller name / account number combination.");
}

}  // namespace nv
