// What only one field of the biller dialog does, or one group of them: the functions that their rows name.
#include <algorithm>

#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Text.h"
#include "validation/AddressRules.h"
#include "validation/BusinessNumber.h"

namespace nv {

namespace {

/// A business number that is not available is stored so.
constexpr const wchar_t* noBusinessNumber = L"         ";

}  // namespace

/// Whether a postal code of the country may have the character where the caret is. Canada's alternate letters and
/// digits, those of the United States are digits.
bool frmRandomInfo::fitsPostal(wchar_t key) const {
  constexpr int canadianLength = 6;
  if (inUnitedStates()) return isDigit(key);
  if (!inCanada()) return isCapitalOrDigit(key) || key == L' ' || key == L'-';
  const int position = ran_payee_postal.selection().start;
  return position < canadianLength && (position % 2 == 0 ? isCapital(key) : isDigit(key));
}

/// Selects the province in the list as soon as its code is one that the host's text knows.
void frmRandomInfo::chooseKnownProvince() {
  const std::wstring& province = ran_payee_prov.text();
  if (province.size() != 2 || !Random::lookupProvince(component(), province)) return;
  const std::vector<std::wstring>& entries = ran_payee_prov.entries();
  const auto found = std::ranges::find(entries, province);
  if (found != entries.end()) ran_payee_prov.setListIndex(static_cast<int>(found - entries.begin()));
}

void frmRandomInfo::txtBusinessNum_Change() {
  if (txtBusinessNum.text().empty()) return;
  optCBusiness.setSelected(true);
  chkBNNotAvailable.setChecked(false);  // it is available, then
}

void frmRandomInfo::txtBusinessNum_LostFocus() {
  const forms::Control* const receiver = activeControl();
  const std::initializer_list<const forms::Control*> waysOut = {&cmd_cancel, &cmd_help, &chkBNNotAvailable,
                                                                &optCIndividual};
  if (std::ranges::find(waysOut, receiver) != waysOut.end()) return;
  if (txtBusinessNum.text().empty()) return;
  const Busy busy(*this);
  if (Random::VerifyBusinessNumber(component(), txtBusinessNum.text())) return;
  // Selected, so that typing replaces it - but not the "9" of an Enter that led here.
  txtBusinessNum.selectAll();
  if (typing()) txtBusinessNum.select(static_cast<int>(txtBusinessNum.text().size()), 0);
  txtBusinessNum.setFocus();
}

std::wstring frmRandomInfo::businessNumberToStore() const {
  const std::wstring_view number = trimmed(txtBusinessNum.text());
  return std::wstring(hasBusinessNumber() && !number.empty() ? number : noBusinessNumber);
}

bool frmRandomInfo::hasBankNumbers() const {
  return !txtTransit.text().empty() || !txtBankID.text().empty() || !txtAccount.text().empty();
}

/// Without a bank number left, there is nothing to confirm.
void frmRandomInfo::bankNumberChanged() {
  if (hasBankNumbers()) return;
  confirming_ = false;
  clearConfirmation();
  showConfirmation(false);
}

void frmRandomInfo::clearConfirmation() {
  for (forms::TextBox* confirmation : {&txtTransitConf, &txtBankIDConf, &txtAccountConf}) confirmation->setText({});
}

void frmRandomInfo::showConfirmation(bool visible) {
  const std::initializer_list<forms::Control*> row = {&lblConfirm,    &lblTransitConf, &txtTransitConf, &lblBankIdConf,
                                                      &txtBankIDConf, &lblAccountConf, &txtAccountConf};
  for (forms::Control* control : row) control->setVisible(visible);
  rearrange();
}

}  // namespace nv
