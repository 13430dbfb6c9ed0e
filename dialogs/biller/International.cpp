// The international state of the biller dialog: the decisions on leaving the currency and the country, what the state
// changes, and the foreign bank details.
#include <algorithm>

#include "dialogs/biller/ForeignAccount.h"
#include "dialogs/biller/Texts.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/fxbank/frmFXBankInfo.h"
#include "platform/Text.h"

namespace nv {

using platform::MessageBoxes;

namespace {

/// Asks whether the biller is for an international payment. Without the host's settings for one, Yes is answered with
/// an explanation, and counts as No.
bool acceptsInternational(frmRandomInfo& form) {
  if (form.message(L"Is this biller for an international payment?", MessageBoxes::Icon::information,
                   MessageBoxes::Buttons::yesNo) != MessageBoxes::Answer::yes) {
    return false;
  }
  if (!form.loaded()) return false;  // closed over the question
  if (form.store().InternationalPayment != flagFalse) return true;
  form.message(
      L"International payment settings have not been setup. To set these, you can go to the System Administration "
      L"screen and click 'International Payment Settings'.");
  return false;
}

/// Takes over the telephone code of the chosen country, and empties the number: it is to be entered anew.
void takeTelephoneCode(frmRandomInfo& form) {
  if (const auto row = form.ran_payee_country.selectedRow()) {
    const std::wstring code(form.ran_payee_country.cell(*row, countryPhone));
    form.txtPhoneCountryCode.setText(code);
    form.txtFaxCountryCode.setText(code);
  }
  form.ran_Inter_payee_phone.setText({});
  if (form.ran_Inter_payee_phone.available()) form.ran_Inter_payee_phone.setFocus();
}

}  // namespace

void frmRandomInfo::SetFXBiller(bool isFX) {
  trace(component(), L"RandomInfo - SetFXBiller");
  international_ = isFX;
  const std::initializer_list<forms::Control*> domesticOnly = {&optCBusiness, &optCIndividual, &fraBusinessNum, &lblBN,
                                                               &chkBNNotAvailable};
  for (forms::Control* control : domesticOnly) control->setEnabled(!isFX);
  if (isFX) optCBusiness.setSelected(true);
  txtBusinessNum.setEnabled(!isFX);
  cmdFXBankingInfo.setVisible(isFX);
  lblFXBankingInfo.setVisible(isFX);
  fraBankAcctInfo.setVisible(!isFX);
  if (isFX) {
    for (forms::TextBox* number : {&txtTransit, &txtBankID, &txtAccount}) number->setText({});
  } else {
    for (forms::TextBox* code : {&txtPhoneCountryCode, &txtFaxCountryCode}) code->setText(L"1");
  }
  rearrange();
}

/// Why a foreign bank is wanted, and how to get to it from here.
void frmRandomInfo::explainForeignBank() {
  std::wstring explained = foreignBankExplained;
  if (cmdFXBankingInfo.visible()) {
    std::wstring button = cmdFXBankingInfo.caption();
    std::erase(button, L'&');
    explained += L" Please click the \"" + button + L"\" button below to " + (readOnly_ ? L"view it." : L"enter it.");
  } else {
    explained += readOnly_ ? L" No such information has been entered for this biller."
                           : L" Once such a currency has been chosen in the list above, it can be entered from here.";
  }
  lblFXBankingInfo.setCaption(std::move(explained));
}

/// The flag ends only at home: when country and currency are both domestic again.
void frmRandomInfo::clearForeignCurrencyAtHome() {
  if ((inCanada() || inUnitedStates()) && cmbCurrencyCode.text() == canadianDollar) foreignCurrency_ = false;
}

void frmRandomInfo::SetFXPhoneNumber(bool isFX) {
  trace(component(), L"RandomInfo - SetFXPhoneNumber");
  const auto use = [](std::initializer_list<forms::TextBox*> fields, bool used) {
    for (forms::TextBox* field : fields) {
      field->setEnabled(used);
      field->setVisible(used);
    }
  };
  use({&ran_payee_ph_area, &ran_payee_phone, &ran_payee_fax_area, &ran_payee_faxnumber}, !isFX);
  use({&ran_Inter_payee_phone, &ran_inter_payee_faxnumber}, isFX);
}

bool frmRandomInfo::FXCurrencyExists(std::wstring_view code) {
  trace(component(), L"RandomInfo - FXCurrencyExists");
  for (const std::wstring& used : store().IPBillerCurrencies.elements()) {
    if (used == code) return true;
  }
  return false;
}

void frmRandomInfo::cmbCurrencyCode_LostFocus() {
  if (leavesToCancel()) return;
  if (const auto row = cmbCurrencyCode.selectedRow()) {
    cmbCurrencyCode.setText(std::wstring(cmbCurrencyCode.cell(*row, currencyCode)));
  }
  const std::wstring code = cmbCurrencyCode.text().substr(0, 3);
  if (code == canadianDollar) {
    SetFXBiller(false);
    clearForeignCurrencyAtHome();
    return;
  }
  const bool foreign = code != separatorCode;
  if (foreign && domestic() && store().PayeeIndBusnTag == individualTag) {
    message(L"You cannot setup an individual as an international payment.");
    setCurrency(canadianDollar);
  } else if (foreign && (!domestic() || foreignCurrency_ || acceptsInternational(*this))) {
    foreignCurrency_ = domestic();
    SetFXBiller(true);
  } else {
    setCurrency(canadianDollar);
    SetFXBiller(false);
    clearForeignCurrencyAtHome();
  }
}

void frmRandomInfo::ran_payee_country_LostFocus() {
  if (leavesToCancel()) return;
  if (const auto row = ran_payee_country.selectedRow()) {
    ran_payee_country.setText(std::wstring(ran_payee_country.cell(*row, countryCode)));
  }
  const auto abroad = [this] {
    return ran_payee_country.text() != canadaCode && ran_payee_country.text() != unitedStatesCode;
  };
  if (abroad()) {
    if (domestic() && !foreignCurrency_) {
      if (acceptsInternational(*this)) {
        foreignCurrency_ = true;
        SetFXBiller(true);
      } else {
        setCountry(canadaCode);
        SetFXBiller(false);
      }
    }
    if (foreignCurrency_ || !domestic()) takeTelephoneCode(*this);
  }
  if (!abroad() && cmbCurrencyCode.text() == canadianDollar) SetFXBiller(false);
  clearForeignCurrencyAtHome();
  SetFXPhoneNumber(!inCanada() && !inUnitedStates());
}

void frmRandomInfo::ShowFXBankingInfoScreen() {
  trace(component(), L"RandomInfo - ShowFXBankingInfoScreen");
  frmFXBankInfo::Details details = {store().PayeeFXBankName,
                                    store().PayeeFXBankAddress,
                                    store().PayeeFXBankCity,
                                    store().PayeeFXBankProv,
                                    store().PayeeFXBankCountry,
                                    {},
                                    {},
                                    {},
                                    {}};
  const ForeignAccount account = foreignAccount(store());
  if (details.country == unitedStatesCode) {
    details.routing = account.number;
    details.usAccount = account.account;
  } else {
    details.swift = account.number;
    details.account = account.account;
  }
  const auto bank = std::make_shared<frmFXBankInfo>(component(), domestic());
  bank->load();
  const forms::UnloadOnExit unloaded(*bank);
  bank->fill(details, ran_payee_prov.entries(), ran_payee_country.rows());
  if (readOnly_) bank->showReadOnly();
  bank->showModal();
  if (bank->OKClicked() && loaded()) storeForeignBank(bank->details());
}

void frmRandomInfo::storeForeignBank(frmFXBankInfo::Details bank) {
  const bool unitedStates = bank.country == unitedStatesCode;
  std::pair<std::wstring Store::*, std::wstring> values[] = {
      {&Store::PayeeFXBankName, std::move(bank.name)},
      {&Store::PayeeFXBankAddress, std::move(bank.street)},
      {&Store::PayeeFXBankCity, std::move(bank.city)},
      {&Store::PayeeFXBankProv, std::move(bank.province)},
      {&Store::PayeeFXBankCountry, std::move(bank.country)},
      {&Store::PayeeFXBankAccount, unitedStates ? bank.routing + bank.usAccount : std::move(bank.account)},
      {&Store::PayeeFXBankSwift, unitedStates ? std::wstring() : std::move(bank.swift)},
  };
  for (auto& [member, value] : values) provisional_.put(member, std::move(value));
}

/// Routing number and account apart: that the record joins them is no difference. In the United States mode the user
/// enters nothing else.
std::vector<std::wstring> frmRandomInfo::foreignBank() const {
  const Store& record = store();
  const ForeignAccount account = foreignAccount(record);
  std::vector<std::wstring_view> texts = {record.PayeeFXBankName, account.number, account.account};
  if (domestic()) {
    texts.insert(texts.end(), {record.PayeeFXBankAddress, record.PayeeFXBankCity, record.PayeeFXBankProv,
                               record.PayeeFXBankCountry});
  }
  std::vector<std::wstring> bank(texts.size());
  std::ranges::transform(texts, bank.begin(), trimmed);
  return bank;
}

}  // namespace nv
