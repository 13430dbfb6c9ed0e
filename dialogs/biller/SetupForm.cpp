// Setting the biller dialog up: the record into the controls, and the layout of the biller's kind.
#include <algorithm>

#include "dialogs/biller/ForeignAccount.h"
#include "dialogs/biller/Texts.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/support/modFormController.h"
#include "platform/Text.h"
#include "validation/SystemHelpers.h"

namespace nv {

namespace {

void setUpBankBlocks(frmRandomInfo& form) {
  const bool permitted = form.store().UserBankAcctPermission != flagFalse;
  const auto showHelpImages = [&form](bool visible) {
    for (forms::Image& image : form.imgHelpCSFTInfo) image.setVisible(visible);
  };
  if (form.domestic()) {
    if (form.store().PayeeIndBusnTag != businessTag) return;
    form.fraBankInfo.setVisible(false);
    showHelpImages(true);
    form.fraBankAcctInfo.setEnabled(permitted);
  } else if (permitted) {
    showHelpImages(false);
    form.fraBankInfo.setVisible(true);
    form.fraBankAcctInfo.setVisible(false);
    form.cmdFXBankingInfo.setVisible(false);
    form.lblDisclaimerDetails.setCaption(
        L"Please ensure that your supplier's banking information is entered correctly into the fields above.\r\n"
        L"Ensure that the Routing Number is NOT a wire transfer routing number.\r\n"
        L"Refer to the following site for more detailed information:");
    form.ctHyperLink1.setCaption(L"Click here for more information about US Payments");
    form.ctHyperLink1.setEnabled(true);
  } else {
    form.ctHyperLink1.setEnabled(false);
    showHelpImages(true);
    form.fraBankInfo.setEnabled(false);
    form.fraBankInfo.setVisible(false);
  }
}

void selectKind(frmRandomInfo& form) {
  if (!form.domestic() || form.store().PayeeIndBussFlg == businessFlag) {
    form.optCBusiness.setSelected(true);
    // A number that is not available is kept as blanks.
    const bool unavailable = trimmed(form.store().PayeeBusinessNum).empty();
    form.chkBNNotAvailable.setChecked(unavailable);
    if (!unavailable) form.txtBusinessNum.setText(form.store().PayeeBusinessNum);
  } else if (form.store().PayeeIndBussFlg == individualFlag) {
    form.optCIndividual.setSelected(true);
  }
}

void selectDiscounts(frmRandomInfo& form) {
  const bool offered = form.store().NVMemberType == L"B";
  form.chkDiscountsApply.setEnabled(offered);
  if (offered) form.chkDiscountsApply.setChecked(form.store().PayeeDiscountsApply == L"1");
}

}  // namespace

void frmRandomInfo::Form_Load() {
  trace(component(), L"RandomInfo - Form_Load");
  SetupForm();
  opening_ = {txtAccount.text(), txtBankID.text(), txtTransit.text(), txtRoutingNumber.text(),
              txtBankAccountNumber.text()};
  openingBank_ = foreignBank();
}

void frmRandomInfo::SetupForm() {
  trace(component(), L"RandomInfo - SetupForm");
  kindOfBiller_ = store().WhatKindOfBiller;
  homeCurrency_ = store().CurrencyCodeFromMain;
  const std::wstring title(trimmed(store().FormTitleFromMain));
  Random::Get_Windows_Dir(component());

  LoadCountries();
  LoadCurrencyCodes();
  LoadProvinces();

  ran_payee_name.setCaption(store().PayeeName);
  ran_payee_account.setCaption(store().PayeeBillAccount);
  showValues({&txtBusinessNum, &ran_payee_prov, &ran_payee_street, &ran_payee_city, &ran_payee_country});
  const bool zip = homeCurrency_ == L"USD";
  lblPostalCode.setCaption(zip ? L"Zip Code:" : L"Postal Code:");
  lblProvince.setCaption(zip ? L"State:" : L"Prov/State:");
  showValues({&cmbCurrencyCode});

  foreignCurrency_ = domestic() && !inCanada() && trimmed(cmbCurrencyCode.text()) != canadianDollar;
  SetFXPhoneNumber(!inCanada() && !inUnitedStates());
  if (cmbCurrencyCode.text() != canadianDollar) SetFXBiller(true);

  showValues({&ran_payee_postal, &ran_payee_email, &ran_payee_www, &ran_payee_contact, &ran_payee_ph_area,
              &ran_payee_phone, &ran_payee_fax_area, &ran_payee_faxnumber, &ran_Inter_payee_phone,
              &ran_inter_payee_faxnumber});
  setUpBankBlocks(*this);
  if (store().PayeeBankId.empty()) {
    passOver({&txtBankID, &txtTransit, &txtAccount});
  } else {
    showValues({&txtBankID, &txtTransit, &txtAccount});
  }
  lblbkclk.setVisible(false);
  selectKind(*this);
  selectDiscounts(*this);
  showOtherValues();

  if (domestic()) {
    setCaption(domesticTitle);
  } else if (!title.empty()) {
    setCaption(title);
  }
  Frame1.setCaption(L"Please enter the following information about this Biller/Fund Transfer");

  if (!domestic()) {
    SetupBusinessForm();
    optCIndividual.setSelected(true);  // the option is out of sight there; hosts know it so
  } else if (store().PayeeIndBusnTag != individualTag) {
    SetupBusinessForm();
    optCBusiness.setSelected(true);
  } else {
    SetupIndividualForm();
    optCIndividual.setSelected(true);
  }
}

void frmRandomInfo::selectProvince() {
  const std::vector<std::wstring>& provinces = ran_payee_prov.entries();
  const auto found = std::find(provinces.begin(), provinces.end(), store().PayeeProv);
  if (found != provinces.end()) {
    ran_payee_prov.setListIndex(static_cast<int>(found - provinces.begin()));
  } else {
    ran_payee_prov.setText(store().PayeeProv);  // shown all the same, so that it is not lost
  }
}

void frmRandomInfo::selectCountry() {
  const std::wstring& country = store().PayeeCountry;
  const std::wstring_view code = trimmed(country);
  // In the United States mode the user cannot mend what stands there: blanks are nothing.
  if (domestic() ? country.empty() : code.empty()) {
    setCountry(!domestic() && homeCurrency_ == L"USD" ? unitedStatesCode : canadaCode);
  } else {
    setCountry(code.size() == 3 ? std::wstring(code.substr(0, 2)) : domestic() ? country : std::wstring(code));
  }
}

void frmRandomInfo::SetupBusinessForm() {
  trace(component(), L"RandomInfo - SetupBusinessForm");
  for (forms::Label& mark : lblAsterisk) {
    if (mark.index() >= 50) mark.setVisible(false);  // those are an individual's
  }
  lblNotification.setVisible(false);
  fraBusinessNum.setVisible(domestic());
  txtBusinessNum.setEnabled(!international_ && !chkBNNotAvailable.checked());
  chkBNNotAvailable.setColours(forms::colours::buttonFace);
  fraBankAcctInfo.setCaption(optionalAccountCaption);
  cmdCheque.setVisible(false);
  lblFXBankingInfo.setVisible(domestic());  // whatever the currency
  lbl_note.setVisible(domestic());
  chkDiscountsApply.setVisible(domestic());
  cmbCurrencyCode.setEnabled(domestic());
  if (!domestic()) {
    ran_payee_country.setEnabled(false);
    txtBankName.setText(store().PayeeFXBankName);
    const ForeignAccount stored = foreignAccount(store());
    txtRoutingNumber.setText(stored.number);
    txtBankAccountNumber.setText(stored.account);
  }
  rearrange();
}

void frmRandomInfo::SetupIndividualForm() {
  trace(component(), L"RandomInfo - SetupIndividualForm");
  fraBusinessNum.setEnabled(false);
  txtBusinessNum.setEnabled(false);
  chkBNNotAvailable.setEnabled(false);
  chkBNNotAvailable.setColours(forms::colours::buttonFace);
  fraBankAcctInfo.setCaption(accountCaption);
  // Of the address block this is shown, and nothing else.
  const std::initializer_list<const forms::Control*> shown = {&lblEmail, &ran_payee_email, &imgHelpCSFTInfo[3],
                                                              &lblAsterisk[2]};
  for (forms::Control* control : controls()) {
    if (control->frame() == &Frame3) control->setVisible(std::ranges::find(shown, control) != shown.end());
  }
  // A private person is no international biller, whatever the currency.
  foreignCurrency_ = false;
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&lbl_note, &lblFXBankingInfo, &cmdFXBankingInfo})
    control->setVisible(false);
  fraBankAcctInfo.setVisible(true);
  lblEmail.setCaption(L"Recipient Email Address");
  fraBankInfo.setVisible(false);
  rearrange();
}

void frmRandomInfo::selectCurrency() {
  const std::wstring& currency = store().PayeeCurrency;
  if (currency == separatorCode) return setCurrency(canadianDollar);
  setCurrency(currency.empty() || (!domestic() && trimmed(currency).empty()) ? homeCurrency_ : currency);
}

void frmRandomInfo::Form_Activate() {
  trace(component(), L"RandomInfo - Form_Activate");
  modFormController::reStyleForm(component(), *this);
  if (Frame3.enabled() && ran_payee_street.visible()) {
    ran_payee_street.setFocus();
  } else if (!Frame3.enabled() && fraBankInfo.visible()) {
    fraBankInfo.setEnabled(false);
  }
  if (fraBankInfo.enabled() || Frame1.enabled()) ctHyperLink1.setEnabled(true);
  ctHyperLink1.setLeads(!trimmed(store().USBillPaymentURL).empty());
  if (readOnly_ && activeControl() == nullptr) cmd_ok.setFocus();
}

}  // namespace nv
