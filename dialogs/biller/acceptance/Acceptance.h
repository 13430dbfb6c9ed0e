// What the biller dialog does when the user presses OK: a chain of checks, the first of which that is not content ends
// the attempt and leaves the dialog open; then the record.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/support/Verdict.h"
#include "platform/Text.h"

namespace nv {

/// One attempt. While it lasts the dialog takes no input: what was checked is what is stored.
class frmRandomInfo::Acceptance {
 public:
  explicit Acceptance(frmRandomInfo& form) : form_(form), busy_(form) {}

  void run();

 private:
  using Check = Verdict (Acceptance::*)();

  /// The address and the details of a business, and of every biller in the United States.
  static const std::vector<Check>& addressChecks();
  /// What every biller is checked for.
  static const std::vector<Check>& bankChecks();
  /// Whether all of them pass; if not, the user has been told, or the dialog is gone.
  bool pass(const std::vector<Check>& checks);

  // Address (Address.cpp)
  Verdict checkStreet();
  Verdict checkPostOfficeBox();
  Verdict checkCity();
  Verdict checkCountry();
  Verdict checkProvince();
  Verdict checkPostalCode();
  Verdict checkForeignCurrency();

  // Telephone and fax (Telephone.cpp)
  Verdict checkTelephoneCountryCode();
  Verdict checkInternationalTelephone();
  Verdict checkNorthAmericanTelephone();
  Verdict checkTelephoneLength();
  Verdict checkMailOrFax();
  Verdict checkFax();

  // Details (Details.cpp)
  Verdict checkMail();
  Verdict checkMailOrFaxOrBank();
  Verdict checkWebsite();
  Verdict checkContact();
  Verdict checkMailForCurrency();
  Verdict checkKind();
  Verdict checkBusinessNumber();
  Verdict checkIndividual();
  Verdict checkDuplicateCurrency();

  // Bank (Bank.cpp)
  Verdict checkBankId();
  Verdict checkTransit();
  Verdict checkAccount();
  Verdict checkRoutingNumberDetails();
  Verdict checkForeignBank();
  Verdict checkBankAccount();
  Verdict confirmAccount();

  // Record (Record.cpp)
  void accept();
  void storeRoutingNumberDetails();

  static constexpr const wchar_t* mailOrFaxMessage = L"Please enter either an email address or a fax number.";

  static std::wstring_view textOf(const forms::TextField& field) { return trimmed(field.text()); }
  static bool empty(const forms::TextField& field) { return textOf(field).empty(); }
  static bool visibleOrEnabled(const forms::Control& control) { return control.visible() || control.enabled(); }
  /// Whether there is nothing but zeros in it, and at least one.
  static bool onlyZeros(std::wstring_view text) { return !text.empty() && text.find_first_not_of(L'0') == text.npos; }

  Component& component() const { return form_.component(); }
  Store& store() const { return form_.store(); }
  /// Who opened as a private person stays one: what the host says meanwhile would demand an address that is not shown.
  bool individual() const { return store().PayeeIndBusnTag == individualTag || !form_.ran_payee_street.visible(); }
  bool anyBankNumber() const { return !empty(form_.txtBankID) || !empty(form_.txtTransit) || !empty(form_.txtAccount); }
  /// The numbers of an international biller are not checked, nor are those that the user cannot see.
  bool checksBankNumbers() const { return !form_.foreignCurrency_ && form_.fraBankAcctInfo.reachable(); }
  bool hasRoutingNumberDetails() const { return !form_.domestic() && form_.fraBankInfo.visible(); }

  frmRandomInfo& form_;
  const Busy busy_;
};

}  // namespace nv
