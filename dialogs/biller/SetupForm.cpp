// Setting the biller dialog up: the record into the controls, the layout of the biller's kind, and the buttons that
// tell the kind.
#include <algorithm>

#include "dialogs/biller/ForeignAccount.h"
#include "dialogs/biller/Texts.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/support/modFormController.h"
#include "platform/Text.h"
#include "validation/SystemHelpers.h"

namespace nv {

using forms::keys::enter;

void frmRandomInfo::Form_Load() {
  trace(component(), L"RandomInfo - Form_Load");
  frame3Height_ = Frame3.place().height;
  SetupForm();
  opening_ = {txtAccount.text(), txtBankID.text(), txtTransit.text(), txtRoutingNumber.text(),
              txtBankAccountNumber.text()};
}

void frmRandomInfo::SetupForm() {
  trace(component(), L"RandomInfo - SetupForm");
  const std::wstring homeCurrency = store().CurrencyCodeFromMain;
  const std::wstring title(trimmed(store().FormTitleFromMain));
  Random::Get_Windows_Dir(component());

  LoadCountries();
  LoadCurrencyCodes();
  LoadProvinces();

  ran_payee_name.setCaption(store().PayeeName);
  ran_payee_account.setCaption(store().PayeeBillAccount);
  txtBusinessNum.setText(store().PayeeBusinessNum);
  selectProvince();
  ran_payee_street.setText(store().PayeeStreet);
  ran_payee_city.setText(store().PayeeCity);
  selectCountry();
  const bool zip = homeCurrency == L"USD";
  lblPostalCode.setCaption(zip ? L"Zip Code:" : L"Postal Code:");
  lblProvince.setCaption(zip ? L"State:" : L"Prov/State:");
  const bool given = !store().PayeeCurrency.empty() && store().PayeeCurrency != separatorCode;
  setCurrency(given ? store().PayeeCurrency : homeCurrency);

  foreignCurrency_ = domestic() && !inCanada() && trimmed(cmbCurrencyCode.text()) != canadianDollar;
  SetFXPhoneNumber(!inCanada() && !inUnitedStates());
  if (cmbCurrencyCode.text() != canadianDollar) SetFXBiller(true);

  ran_payee_postal.setText(store().PayeePostal);
  ran_payee_email.setText(store().PayeeEmail);
  ran_payee_www.setText(store().PayeeWeb);
  ran_payee_contact.setText(store().PayeeContactName);
  fillPhones();
  setUpBankBlocks();
  if (!store().PayeeBankId.empty()) {
    txtBankID.setText(store().PayeeBankId);
    txtTransit.setText(store().PayeeBankTransit);
    txtAccount.setText(store().PayeeBankAccount);
  }
  lblbkclk.setVisible(false);
  selectKind();
  selectDiscounts();
  txtPhoneCountryCode.setText(store().PayeePhoneCountryCode.empty() ? L"1" : store().PayeePhoneCountryCode);
  txtFaxCountryCode.setText(store().PayeeFaxCountryCode.empty() ? L"1" : store().PayeeFaxCountryCode);

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
  if (country.empty()) {
    setCountry(!domestic() && store().CurrencyCodeFromMain == L"USD" ? unitedStatesCode : canadaCode);
  } else {
    const std::wstring_view code = trimmed(country);
    setCountry(code.size() == 3 ? std::wstring(code.substr(0, 2)) : country);
  }
}

void frmRandomInfo::fillPhones() {
  if (ran_payee_ph_area.available()) {
    ran_payee_ph_area.setText(store().PayeePhoneArea);
    ran_payee_phone.setText(store().PayeePhoneNumber);
    ran_payee_fax_area.setText(store().PayeeFaxArea);
    ran_payee_faxnumber.setText(store().PayeeFaxNumber);
  } else {
    ran_Inter_payee_phone.setText(store().PayeeFXPhoneNumber);
    ran_inter_payee_faxnumber.setText(store().PayeeFXFaxNumber);
  }
}

void frmRandomInfo::setUpBankBlocks() {
  const bool permitted = store().UserBankAcctPermission != flagFalse;
  const auto showHelpImages = [this](bool visible) {
    for (forms::Image& image : imgHelpCSFTInfo) image.setVisible(visible);
  };
  if (domestic()) {
    if (store().PayeeIndBusnTag != businessTag) return;
    fraBankInfo.setVisible(false);
    showHelpImages(true);
    fraBankAcctInfo.setEnabled(permitted);
  } else if (permitted) {
    showHelpImages(false);
    fraBankInfo.setVisible(true);
    fraBankAcctInfo.setVisible(false);
    cmdFXBankingInfo.setVisible(false);
    lblDisclaimerDetails.setCaption(
        L"Please ensure that your supplier's banking information is entered correctly into the fields above.\r\n"
        L"Ensure that the Routing Number is NOT a wire transfer routing number.\r\n"
        L"Refer to the following site for more detailed information:");
    ctHyperLink1.setCaption(L"Click here for more information about US Payments");
    ctHyperLink1.setEnabled(true);
  } else {
    ctHyperLink1.setEnabled(false);
    showHelpImages(true);
    fraBankInfo.setEnabled(false);
    fraBankInfo.setVisible(false);
  }
}

void frmRandomInfo::selectKind() {
  if (!domestic() || store().PayeeIndBussFlg == businessFlag) {
    optCBusiness.setSelected(true);
    // A number that is not available is kept as blanks.
    const bool unavailable = trimmed(store().PayeeBusinessNum).empty();
    chkBNNotAvailable.setChecked(unavailable);
    if (!unavailable) txtBusinessNum.setText(store().PayeeBusinessNum);
  } else if (store().PayeeIndBussFlg == individualFlag) {
    optCIndividual.setSelected(true);
  }
}

void frmRandomInfo::selectDiscounts() {
  const bool offered = store().NVMemberType == L"B";
  chkDiscountsApply.setEnabled(offered);
  if (offered) chkDiscountsApply.setChecked(store().PayeeDiscountsApply == L"1");
}

void frmRandomInfo::showMarks(int first, int last, bool visible) {
  for (forms::Label& mark : lblAsterisk) {
    if (mark.index() >= first && mark.index() <= last) mark.setVisible(visible);
  }
}

/// The business number's field, open or closed to entry, in the colour that says so.
void frmRandomInfo::switchBusinessNumber(bool on) {
  txtBusinessNum.setEnabled(on);
  txtBusinessNum.setBackColor(on ? forms::colours::windowBackground : forms::colours::buttonFace);
}

void frmRandomInfo::SetupBusinessForm() {
  trace(component(), L"RandomInfo - SetupBusinessForm");
  showMarks(0, 7, true);
  showMarks(50, 52, false);
  lblNotification.setVisible(false);
  fraBusinessNum.setVisible(domestic());
  switchBusinessNumber(!chkBNNotAvailable.checked());
  chkBNNotAvailable.setBackColor(forms::colours::buttonFace);
  fraBankAcctInfo.setCaption(optionalAccountCaption);
  cmdCheque.setVisible(false);
  lblFXBankingInfo.setVisible(domestic());  // whatever the currency
  lbl_note.setVisible(domestic());
  chkDiscountsApply.setVisible(domestic());
  cmbCurrencyCode.setEnabled(domestic());
  if (domestic()) {
    arrangeBusiness();
    return;
  }
  ran_payee_country.setEnabled(false);
  txtBankName.setText(store().PayeeFXBankName);
  const ForeignAccount stored = foreignAccount(store());
  txtRoutingNumber.setText(stored.number);
  txtBankAccountNumber.setText(stored.account);
  arrangeUnitedStates();
}

void frmRandomInfo::SetupIndividualForm() {
  trace(component(), L"RandomInfo - SetupIndividualForm");
  showMarks(0, 7, false);
  showMarks(50, 52, true);
  lblNotification.setVisible(false);
  fraBusinessNum.setEnabled(false);
  switchBusinessNumber(false);
  chkBNNotAvailable.setEnabled(false);
  chkBNNotAvailable.setBackColor(forms::colours::buttonFace);
  fraBankAcctInfo.setCaption(accountCaption);
  const std::initializer_list<forms::Control*> hidden = {&lbl_note,
                                                         &fraBusinessNum,
                                                         &Label3,
                                                         &lblStreet,
                                                         &ran_payee_street,
                                                         &lblCity,
                                                         &ran_payee_city,
                                                         &lblProvince,
                                                         &ran_payee_prov,
                                                         &lblPostalCode,
                                                         &ran_payee_postal,
                                                         &lblCountry,
                                                         &ran_payee_country,
                                                         &lblCurrency,
                                                         &cmbCurrencyCode,
                                                         &lblWebsite,
                                                         &ran_payee_www,
                                                         &lblContact,
                                                         &ran_payee_contact,
                                                         &chkDiscountsApply,
                                                         &lblPhoneNo,
                                                         &Label19,
                                                         &txtPhoneCountryCode,
                                                         &ran_payee_ph_area,
                                                         &ran_payee_phone,
                                                         &ran_Inter_payee_phone,
                                                         &lblFax,
                                                         &Label20,
                                                         &txtFaxCountryCode,
                                                         &ran_payee_fax_area,
                                                         &ran_payee_faxnumber,
                                                         &ran_inter_payee_faxnumber,
                                                         &imgHelpCSFTInfo[1],
                                                         &imgHelpCSFTInfo[2],
                                                         &imgHelpCSFTInfo[4]};
  for (forms::Control* control : hidden) control->setVisible(false);
  // A private person is no international biller, whatever the currency.
  for (forms::Control* control : std::initializer_list<forms::Control*>{&lblFXBankingInfo, &cmdFXBankingInfo}) {
    control->setVisible(false);
  }
  fraBankAcctInfo.setVisible(true);
  showMarks(2, 2, true);
  lblAsterisk[2].setEnabled(true);
  arrangeIndividual();
  lblEmail.setCaption(L"Recipient Email Address");
  fraBankInfo.setVisible(false);
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
  if (!Frame1.enabled()) cmd_ok.setFocus();  // nothing is left but to close
}

// The kind of biller, and of payment

void frmRandomInfo::connectKinds() {
  on(optCBusiness.click, {formName, L"optCBusiness_Click"}, [this] { optCBusiness_Click(); });
  on(optCIndividual.click, {formName, L"optCIndividual_Click"}, [this] { optCIndividual_Click(); });
  on(optCBusiness.gotFocus, {formName, L"optCBusiness_GotFocus"}, [this] { reportTop(optCBusiness); });
  on(optCIndividual.gotFocus, {formName, L"optCIndividual_GotFocus"}, [this] { reportTop(optCIndividual); });
  on(chkBNNotAvailable.click, {formName, L"chkBNNotAvailable_Click"}, [this] { chkBNNotAvailable_Click(); });
  on(chkBNNotAvailable.gotFocus, {formName, L"chkBNNotAvailable_GotFocus"}, [this] { reportTop(chkBNNotAvailable); });
  on(optBusiness.click, {formName, L"optBusiness_Click"}, [this] { optBusiness_Click(); });
  on(optEmployee.click, {formName, L"optEmployee_Click"}, [this] {
    fraBankAcctInfo.setEnabled(true);
    txtTransit.setFocus();
  });

  const auto onEnter = [this](forms::Control& control, const wchar_t* procedure, forms::Control& next) {
    on(control.keyPress, {formName, procedure}, [&next](wchar_t& key) {
      if (key == enter && next.available()) next.setFocus();
    });
  };
  onEnter(chkBNNotAvailable, L"chkBNNotAvailable_KeyPress", txtTransit);
  onEnter(chkDiscountsApply, L"chkDiscountsApply_KeyPress", ran_payee_contact);
  onEnter(optEmployee, L"optEmployee_KeyPress", txtTransit);
  on(optBusiness.keyPress, {formName, L"optBusiness_KeyPress"}, [this](wchar_t& key) {
    if (key != enter) return;
    forms::Control& next = txtTransit.enabled() ? static_cast<forms::Control&>(txtTransit) : cmd_ok;
    next.setFocus();
  });
}

void frmRandomInfo::optCBusiness_Click() {
  if (chkBNNotAvailable.checked() || !optCBusiness.enabled()) return;
  chkBNNotAvailable.setEnabled(true);
  switchBusinessNumber(true);
  txtBusinessNum.setFocus();
}

void frmRandomInfo::optCIndividual_Click() {
  chkBNNotAvailable.setEnabled(false);
  switchBusinessNumber(false);
  chkBNNotAvailable.setChecked(false);
  txtBusinessNum.setText({});
  if (ran_Inter_payee_phone.available()) {
    ran_Inter_payee_phone.setFocus();
  } else if (ran_payee_ph_area.available()) {
    ran_payee_ph_area.setFocus();
  }
}

void frmRandomInfo::chkBNNotAvailable_Click() {
  if (chkBNNotAvailable.checked() && !optCBusiness.selected()) optCBusiness.setSelected(true);
  if (optCBusiness.selected()) switchBusinessNumber(!chkBNNotAvailable.checked());
}

void frmRandomInfo::optBusiness_Click() {
  const bool permitted = store().UserBankAcctPermission != flagFalse;
  fraBankAcctInfo.setEnabled(permitted);
  if (permitted) return;
  for (forms::TextBox* number : {&txtTransit, &txtBankID, &txtAccount}) number->setText({});
}

}  // namespace nv
