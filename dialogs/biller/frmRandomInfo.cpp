#include "dialogs/biller/frmRandomInfo.h"

#include "dialogs/biller/Texts.h"
#include "dialogs/support/frmCheque.h"
#include "platform/Text.h"
#include "validation/SystemHelpers.h"

namespace nv {

using forms::Border;
using forms::UnloadMode;

namespace {

/// The help file, shown in its window type "ShowTopic".
constexpr const wchar_t* helpFile = L"NORVIK.CHM>ShowTopic";

constexpr const wchar_t* helpImage = L"HELPIMAGE";
constexpr const wchar_t* helpImageCaption = L"Help";
constexpr const wchar_t* requiredMark = L"*";

/// The topic about the dialog as a whole, and those by the index of the help image that opens them.
constexpr std::uint32_t helpTopic = 506000012;
constexpr std::uint32_t imageHelpTopics[] = {506000012, 506000014, 506000014, 506000013, 506000018, 506000019};

}  // namespace

frmRandomInfo::frmRandomInfo(Component& component, Border border)
    : ComponentForm(component, formName, L"frmRandomInfo", border),
      Frame1(*this, L"Frame1",
             L"Please enter the following information about this Customer Specific Biller/Funds Transfer"),
      Label1(Frame1, L"Label1", L"Biller Name:"),
      ran_payee_name(Frame1, L"ran_payee_name"),
      Label2(Frame1, L"Label2", L"Biller Account Number:"),
      ran_payee_account(Frame1, L"ran_payee_account"),
      Frame3(Frame1, L"Frame3"),
      Label3(Frame3, L"Label3", L"Address to which remittances are to be sent (as shown on the Biller's invoice):"),
      lblStreet(Frame3, L"lblStreet", L"Street:"),
      ran_payee_street(Frame3, L"ran_payee_street"),
      lblCity(Frame3, L"lblCity", L"City:"),
      ran_payee_city(Frame3, L"ran_payee_city"),
      lblProvince(Frame3, L"lblProvince", L"Prov/State:"),
      ran_payee_prov(Frame3, L"ran_payee_prov"),
      lblCountry(Frame3, L"lblCountry", L"Country:"),
      ran_payee_country(Frame3, L"ran_payee_country", {{L"Country", 3300}, {L"Code", 750}, {L"Phone", 900}},
                        countryCode),
      lblPostalCode(Frame3, L"lblPostalCode", L"Postal Code:"),
      ran_payee_postal(Frame3, L"ran_payee_postal"),
      lblCurrency(Frame3, L"lblCurrency", L"Currency:"),
      cmbCurrencyCode(Frame3, L"cmbCurrencyCode", {{L"Currency", 3300}, {L"Code", 750}}, currencyCode),
      lblPhoneNo(Frame3, L"lblPhoneNo", L"Phone:"),
      Label19(Frame3, L"Label19", L"+"),
      txtPhoneCountryCode(Frame3, L"txtPhoneCountryCode"),
      ran_payee_ph_area(Frame3, L"ran_payee_ph_area"),
      ran_payee_phone(Frame3, L"ran_payee_phone"),
      ran_Inter_payee_phone(Frame3, L"ran_Inter_payee_phone"),
      lblFax(Frame3, L"lblFax", L"Fax:"),
      Label20(Frame3, L"Label20", L"+"),
      txtFaxCountryCode(Frame3, L"txtFaxCountryCode"),
      ran_payee_fax_area(Frame3, L"ran_payee_fax_area"),
      ran_payee_faxnumber(Frame3, L"ran_payee_faxnumber"),
      ran_inter_payee_faxnumber(Frame3, L"ran_inter_payee_faxnumber"),
      lblEmail(Frame3, L"lblEmail", L"Email:"),
      ran_payee_email(Frame3, L"ran_payee_email"),
      lblNotification(Frame3, L"lblNotification", L"*Required if recipient is to receive email notification."),
      lblWebsite(Frame3, L"lblWebsite", L"Website:"),
      ran_payee_www(Frame3, L"ran_payee_www"),
      lblContact(Frame3, L"lblContact", L"Contact Person / Dept:"),
      ran_payee_contact(Frame3, L"ran_payee_contact"),
      chkDiscountsApply(Frame3, L"chkDiscountsApply", L"Discounts Apply to this Biller"),
      fraBusinessNum(Frame3, L"fraBusinessNum"),
      optCBusiness(fraBusinessNum, L"optCBusiness", L"&Business"),
      optCIndividual(fraBusinessNum, L"optCIndividual", L"&Individual"),
      lblBN(fraBusinessNum, L"lblBN", L"Business Number GST/HST (BN):"),
      txtBusinessNum(fraBusinessNum, L"txtBusinessNum"),
      chkBNNotAvailable(fraBusinessNum, L"chkBNNotAvailable", L"Not Available"),
      lblFXBankingInfo(
          Frame1, L"lblFXBankingInfo",
          L"Payments in currencies other than \"CAD\" (Canadian Dollars) must include specific information about the "
          L"bank account being transferred to. Please click the \"Enter Banking Information\" button below to enter "
          L"it."),
      cmdFXBankingInfo(Frame1, L"cmdFXBankingInfo", L"&Enter Banking Information"),
      fraBankAcctInfo(Frame1, L"fraBankAcctInfo", optionalAccountCaption),
      optBusiness(fraBankAcctInfo, L"optBusiness", L"Business"),
      optEmployee(fraBankAcctInfo, L"optEmployee", L"Employee"),
      lblbankTransit(fraBankAcctInfo, L"lblbankTransit", L"Transit Number (5 digits):"),
      txtTransit(fraBankAcctInfo, L"txtTransit"),
      lblbankId(fraBankAcctInfo, L"lblbankId", L"Bank Id (3 digits):"),
      txtBankID(fraBankAcctInfo, L"txtBankID"),
      Label13(fraBankAcctInfo, L"Label13", L"Account Number( max. 12 digits):"),
      txtAccount(fraBankAcctInfo, L"txtAccount"),
      lblConfirm(fraBankAcctInfo, L"lblConfirm", L"Confirm"),
      lblTransitConf(fraBankAcctInfo, L"lblTransitConf", L"Transit Number:"),
      txtTransitConf(fraBankAcctInfo, L"txtTransitConf"),
      lblBankIdConf(fraBankAcctInfo, L"lblBankIdConf", L"Bank Id:"),
      txtBankIDConf(fraBankAcctInfo, L"txtBankIDConf"),
      lblAccountConf(fraBankAcctInfo, L"lblAccountConf", L"Account Number:"),
      txtAccountConf(fraBankAcctInfo, L"txtAccountConf"),
      lbl_note(fraBankAcctInfo, L"lbl_note",
               L"Note: The first payment to a business may be made by cheque if a bank account has not been provided."),
      lblbkclk(fraBankAcctInfo, L"lblbkclk"),
      lblbankaccount(fraBankAcctInfo, L"lblbankaccount"),
      fraBankInfo(Frame1, L"fraBankInfo", L"Bank Account Information:"),
      lblBankName(fraBankInfo, L"lblBankName", L"Bank Name:"),
      txtBankName(fraBankInfo, L"txtBankName"),
      lblRoutingNumber(fraBankInfo, L"lblRoutingNumber", L"Routing Number (ACH Routing Number 9 Digits):"),
      txtRoutingNumber(fraBankInfo, L"txtRoutingNumber"),
      lblBankAccountNumber(fraBankInfo, L"lblBankAccountNumber", L"Account Number( max. 17 digits):"),
      txtBankAccountNumber(fraBankInfo, L"txtBankAccountNumber"),
      lblBankInfoConfirm(fraBankInfo, L"lblBankInfoConfirm", L"Confirm:"),
      txtConfirmBankAccountNumber(fraBankInfo, L"txtConfirmBankAccountNumber"),
      lblDisclaimer(fraBankInfo, L"lblDisclaimer", L"Disclaimer:"),
      lblDisclaimerDetails(fraBankInfo, L"lblDisclaimerDetails"),
      ctHyperLink1(fraBankInfo, L"ctHyperLink1"),
      Label14(Frame1, L"Label14", L"The above information must be entered accurately to ensure timely payment"),
      Label15(*this, L"Label15", L"Items with * are required fields."),
      cmdCheque(*this, L"cmdCheque", L"&View Sample Cheque"),
      cmd_help(*this, L"cmd_help", L"&Help"),
      cmd_ok(*this, L"cmd_ok", L"&OK"),
      cmd_cancel(*this, L"cmd_cancel", L"Cancel"),
      imgHelpCSFTInfo{{{Frame1, {L"imgHelpCSFTInfo", 0}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 1}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 2}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 3}, helpImage, helpImageCaption},
                       {fraBusinessNum, {L"imgHelpCSFTInfo", 4}, helpImage, helpImageCaption},
                       {fraBankAcctInfo, {L"imgHelpCSFTInfo", 5}, helpImage, helpImageCaption}}},
      lblAsterisk{{{Frame3, {L"lblAsterisk", 0}, requiredMark},
                   {Frame3, {L"lblAsterisk", 1}, requiredMark},
                   {Frame3, {L"lblAsterisk", 2}, requiredMark},
                   {Frame3, {L"lblAsterisk", 3}, requiredMark},
                   {Frame3, {L"lblAsterisk", 4}, requiredMark},
                   {Frame3, {L"lblAsterisk", 5}, requiredMark},
                   {Frame3, {L"lblAsterisk", 6}, requiredMark},
                   {fraBusinessNum, {L"lblAsterisk", 7}, requiredMark},
                   {fraBankAcctInfo, {L"lblAsterisk", 50}, requiredMark},
                   {fraBankAcctInfo, {L"lblAsterisk", 51}, requiredMark},
                   {fraBankAcctInfo, {L"lblAsterisk", 52}, requiredMark}}} {
  setCaption(domesticTitle);
  cmd_cancel.setCancels(true);
  for (forms::Label* data : {&ran_payee_name, &ran_payee_account}) data->setUsesMnemonic(false);
  const std::initializer_list<forms::Control*> hidden = {&ran_Inter_payee_phone, &ran_inter_payee_faxnumber,
                                                         &lblNotification,       &lblFXBankingInfo,
                                                         &cmdFXBankingInfo,      &optBusiness,
                                                         &optEmployee,           &lblbkclk,
                                                         &lblbankaccount,        &fraBankInfo,
                                                         &lblBankInfoConfirm,    &txtConfirmBankAccountNumber};
  for (forms::Control* control : hidden) control->setVisible(false);
  for (forms::Control* control : {&ran_Inter_payee_phone, &ran_inter_payee_faxnumber}) control->setEnabled(false);
  showConfirmation(false);
  boundFields();
  arrange();
  connectFields();
  connectLists();
  connectInternational();
  connectKinds();
  connectButtons();
}

/// How much can be typed into each field. Texts of the record may be longer.
void frmRandomInfo::boundFields() {
  const std::pair<forms::TextField&, int> lengths[] = {
      {ran_payee_street, 60},
      {ran_payee_city, 20},
      {ran_payee_prov, 2},
      {ran_payee_postal, 9},
      {txtPhoneCountryCode, 4},
      {ran_payee_ph_area, 3},
      {ran_payee_phone, 7},
      {ran_Inter_payee_phone, 15},
      {txtFaxCountryCode, 4},
      {ran_payee_fax_area, 3},
      {ran_payee_faxnumber, 7},
      {ran_inter_payee_faxnumber, 15},
      {ran_payee_email, 50},
      {ran_payee_www, 50},
      {ran_payee_contact, 40},
      {txtBusinessNum, 15},
      {txtTransit, 5},
      {txtTransitConf, 5},
      {txtBankID, 3},
      {txtBankIDConf, 3},
      {txtAccount, 12},
      {txtAccountConf, 12},
      {txtBankName, 35},
      {txtRoutingNumber, 9},
      {txtBankAccountNumber, 17},
      {txtConfirmBankAccountNumber, 17},
  };
  for (const auto& [field, length] : lengths) field.setMaxLength(length);
}

void frmRandomInfo::connectButtons() {
  on(cmd_ok.click, {formName, L"cmd_ok_Click"}, [this] { cmd_ok_Click(); });
  on(cmd_cancel.click, {formName, L"cmd_cancel_Click"}, [this] { cmd_cancel_Click(); });
  on(cmd_help.click, {formName, L"cmd_help_Click"}, [this] { cmd_help_Click(); });
  on(cmdCheque.click, {formName, L"cmdCheque_Click"}, [this] { cmdCheque_Click(); });
  on(ctHyperLink1.click, {formName, L"ctHyperLink1_Click"}, [this] { ctHyperLink1_Click(); });
  for (forms::Image& image : imgHelpCSFTInfo) {
    on(image.click, {formName, L"imgHelpCSFTInfo_Click"}, [this, &image] { imgHelpCSFTInfo_Click(image.index()); });
  }
}

/// Tells the host where the user works, so that it can scroll an embedded dialog.
void frmRandomInfo::reportTop(const forms::Control& field) const {
  CurrentFieldTop.raise(static_cast<std::int16_t>(field.topInForm()));
}

void frmRandomInfo::showReadOnly() {
  readOnly_ = true;
  Frame1.setCaption(L"Information about this Biller/Payee");
  for (forms::Frame* fields : {&Frame3, &fraBankAcctInfo, &fraBankInfo}) fields->setEnabled(false);
  if (trimmed(store().PayeeFXBankCity).empty()) {
    Frame1.setEnabled(false);
  } else {
    cmdFXBankingInfo.setCaption(L"View Banking Information");
  }
  cmd_cancel.setVisible(false);
  cmd_ok.setCaption(L"Close");
  cmd_help.setPlace(cmd_ok.place());
  cmd_ok.setPlace(cmd_cancel.place());
  cmd_ok.setCancels(true);  // Escape keeps closing the dialog
}

void frmRandomInfo::Form_KeyPress(wchar_t& key) {
  trace(component(), L"RandomInfo - Form_KeyPress");
  if (key == forms::keys::enter) sendKey(L'9');  // hosts have come to know it so; Enter itself goes on its way
}

// Help, links and the sample cheque

void frmRandomInfo::showHelp(std::uint32_t topic) {
  component().services.shell.showHelp(store().gstrInstallRoot() + helpFile, topic, handle());
}

void frmRandomInfo::cmd_help_Click() {
  showHelp(helpTopic);
}

void frmRandomInfo::imgHelpCSFTInfo_Click(int index) {
  if (index >= 0 && index < static_cast<int>(std::size(imageHelpTopics))) showHelp(imageHelpTopics[index]);
}

void frmRandomInfo::ctHyperLink1_Click() {
  const std::wstring_view address = trimmed(store().USBillPaymentURL);
  if (!address.empty()) Random::OpenBrowser(component(), address);
}

void frmRandomInfo::cmdCheque_Click() {
  auto& cheque = component().chequeForm;
  if (!cheque || !cheque->loaded()) cheque = std::make_shared<frmCheque>(component());
  cheque->showModal();
}

// The way out

void frmRandomInfo::cmd_cancel_Click() {
  store().closeResult = Store::cancelledResult;
  unload();
  Cancel.raise();
}

void frmRandomInfo::Form_QueryUnload(bool& /*cancel*/, UnloadMode mode) {
  trace(component(), L"RandomInfo - Form_QueryUnload");
  if (mode == UnloadMode::code) return;
  store().closeResult = Store::cancelledResult;
  widgetset().runPendingEvents();
  unload();
  Cancel.raise();
}

}  // namespace nv
