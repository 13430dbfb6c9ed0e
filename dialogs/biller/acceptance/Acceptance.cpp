#include "dialogs/biller/acceptance/Acceptance.h"

#include <algorithm>

namespace nv {

const std::vector<frmRandomInfo::Acceptance::Check>& frmRandomInfo::Acceptance::addressChecks() {
  static const std::vector<Check> checks = {
      &Acceptance::checkStreet,
      &Acceptance::checkPostOfficeBox,
      &Acceptance::checkCity,
      &Acceptance::checkCountry,
      &Acceptance::checkProvince,
      &Acceptance::checkPostalCode,
      &Acceptance::checkForeignCurrency,
      &Acceptance::checkTelephoneCountryCode,
      &Acceptance::checkInternationalTelephone,
      &Acceptance::checkNorthAmericanTelephone,
      &Acceptance::checkTelephoneLength,
      &Acceptance::checkMailOrFax,
      &Acceptance::checkFax,
      &Acceptance::checkMail,
      &Acceptance::checkMailOrFaxOrBank,
      &Acceptance::checkWebsite,
      &Acceptance::checkContact,
      &Acceptance::checkMailForCurrency,
      &Acceptance::checkKind,
      &Acceptance::checkBusinessNumber,
      &Acceptance::checkBankId,
      &Acceptance::checkTransit,
      &Acceptance::checkAccount,
  };
  return checks;
}

const std::vector<frmRandomInfo::Acceptance::Check>& frmRandomInfo::Acceptance::bankChecks() {
  static const std::vector<Check> checks = {
      &Acceptance::checkRoutingNumberDetails, &Acceptance::checkIndividual,        &Acceptance::checkForeignBank,
      &Acceptance::checkBankAccount,          &Acceptance::checkDuplicateCurrency,
  };
  return checks;
}

void frmRandomInfo::Acceptance::run() {
  const bool checksAddress = !form_.domestic() || (store().PayeeIndBusnTag == businessTag && !individual());
  if (checksAddress && !pass(addressChecks())) return;
  if (pass(bankChecks())) accept();
}

bool frmRandomInfo::Acceptance::pass(const std::vector<Check>& checks) {
  return std::ranges::all_of(checks, [this](Check check) {
    const Verdict verdict = (this->*check)();
    if (verdict.stops()) verdict.carryOut(form_);
    return !verdict.stops() && form_.loaded();  // whoever is asked may have closed the dialog
  });
}

void frmRandomInfo::cmd_ok_Click() {
  if (readOnly_) {  // there is nothing to accept
    unload();
    return;
  }
  Acceptance(*this).run();
}

}  // namespace nv
