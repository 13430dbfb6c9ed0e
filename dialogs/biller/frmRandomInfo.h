// The biller information dialog: what the user enters to have a biller paid. It shows the shared biller record and,
// once accepted, writes the record back and tells whoever is connected to its events.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/biller/ProvisionalValues.h"
#include "dialogs/biller/Texts.h"
#include "dialogs/fxbank/frmFXBankInfo.h"
#include "dialogs/support/Fields.h"
#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/TextField.h"
#include "forms/Toggle.h"

namespace nv {

class frmRandomInfo : public FieldForm {
 public:
  /// The form's name, by which Unload_From_Remote finds its instances.
  static constexpr const wchar_t* formName = L"RandomInfo";

  frmRandomInfo(Component& component, forms::Border border);

  // Events, in the order of the host's events.
  forms::Event<> CSBOK;
  forms::Event<std::int16_t> CurrentFieldTop;  // top of the field that got the focus, in twips from the dialog's top
  forms::Event<> Cancel;
  forms::Event<> ViewSampleCheque;

  // What is wrong with an address. `message` is what to tell the user; it is left alone when the result is true. A
  // failure of the pattern matching is the caller's.

  /// @param allowEmpty accept an empty address.
  bool ValidateEmailAddress(std::wstring_view address, std::wstring& message, bool allowEmpty);
  bool ValidateWebsite(std::wstring_view site, std::wstring& message);
  /// Judges an e-mail address character by character.
  bool IsEmailValid(std::wstring_view address);

  /// For viewing only: nothing can be edited, and OK becomes a way to close. To be called once loaded.
  void showReadOnly();

  /// Domestic is the ordinary biller; every other kind is paid in US dollars through the US payment route.
  bool domestic() const { return kindOfBiller_ == L" "; }
  /// Whether the country is one of North America's that dial alike, in its two- or three-letter form.
  bool inCanada() const;
  bool inUnitedStates() const;
  /// What ShowForm returns once the dialog is closed.
  std::int32_t closeResult() const { return closeResult_; }
  static constexpr std::int32_t cancelledResult = 50000;

  // The controls, in tab order: the order in which a person fills them.
  forms::Frame Frame1{*this, L"Frame1",
                      L"Please enter the following information about this Customer Specific Biller/Funds Transfer"};
  forms::Label Label1{Frame1, L"Label1", L"Biller Name:"};
  forms::Label ran_payee_name{Frame1, L"ran_payee_name"};
  forms::Label Label2{Frame1, L"Label2", L"Biller Account Number:"};
  forms::Label ran_payee_account{Frame1, L"ran_payee_account"};
  forms::Frame Frame3{Frame1, L"Frame3"};
  forms::Label Label3{Frame3, L"Label3",
                      L"Address to which remittances are to be sent (as shown on the Biller's invoice):"};
  forms::Label lblStreet{Frame3, L"lblStreet", L"Street:"};
  forms::TextBox ran_payee_street{Frame3, L"ran_payee_street"};
  forms::Label lblCity{Frame3, L"lblCity", L"City:"};
  forms::TextBox ran_payee_city{Frame3, L"ran_payee_city"};
  forms::Label lblProvince{Frame3, L"lblProvince", L"Prov/State:"};
  forms::ComboBox ran_payee_prov{Frame3, L"ran_payee_prov"};
  forms::Label lblCountry{Frame3, L"lblCountry", L"Country:"};
  forms::DropDownList ran_payee_country{
      Frame3, L"ran_payee_country", {{L"Country", 3300}, {L"Code", 750}, {L"Phone", 900}}, countryCode};
  forms::Label lblPostalCode{Frame3, L"lblPostalCode", L"Postal Code:"};
  forms::TextBox ran_payee_postal{Frame3, L"ran_payee_postal"};
  forms::Label lblCurrency{Frame3, L"lblCurrency", L"Currency:"};
  forms::DropDownList cmbCurrencyCode{Frame3, L"cmbCurrencyCode", {{L"Currency", 3300}, {L"Code", 750}}, currencyCode};
  forms::Label lblPhoneNo{Frame3, L"lblPhoneNo", L"Phone:"};
  forms::Label Label19{Frame3, L"Label19", L"+"};
  forms::TextBox txtPhoneCountryCode{Frame3, L"txtPhoneCountryCode"};
  forms::TextBox ran_payee_ph_area{Frame3, L"ran_payee_ph_area"};
  forms::TextBox ran_payee_phone{Frame3, L"ran_payee_phone"};
  forms::TextBox ran_Inter_payee_phone{Frame3, L"ran_Inter_payee_phone"};
  forms::Label lblFax{Frame3, L"lblFax", L"Fax:"};
  forms::Label Label20{Frame3, L"Label20", L"+"};
  forms::TextBox txtFaxCountryCode{Frame3, L"txtFaxCountryCode"};
  forms::TextBox ran_payee_fax_area{Frame3, L"ran_payee_fax_area"};
  forms::TextBox ran_payee_faxnumber{Frame3, L"ran_payee_faxnumber"};
  forms::TextBox ran_inter_payee_faxnumber{Frame3, L"ran_inter_payee_faxnumber"};
  forms::Label lblEmail{Frame3, L"lblEmail", L"Email:"};
  forms::TextBox ran_payee_email{Frame3, L"ran_payee_email"};
  forms::Label lblNotification{Frame3, L"lblNotification", L"*Required if recipient is to receive email notification."};
  forms::Label lblWebsite{Frame3, L"lblWebsite", L"Website:"};
  forms::TextBox ran_payee_www{Frame3, L"ran_payee_www"};
  forms::Label lblContact{Frame3, L"lblContact", L"Contact Person / Dept:"};
  forms::TextBox ran_payee_contact{Frame3, L"ran_payee_contact"};
  forms::CheckBox chkDiscountsApply{Frame3, L"chkDiscountsApply", L"Discounts Apply to this Biller"};
  forms::Frame fraBusinessNum{Frame3, L"fraBusinessNum"};
  forms::OptionButton optCBusiness{fraBusinessNum, L"optCBusiness", L"&Business"};
  forms::OptionButton optCIndividual{fraBusinessNum, L"optCIndividual", L"&Individual"};
  forms::Label lblBN{fraBusinessNum, L"lblBN", L"Business Number GST/HST (BN):"};
  forms::TextBox txtBusinessNum{fraBusinessNum, L"txtBusinessNum"};
  forms::CheckBox chkBNNotAvailable{fraBusinessNum, L"chkBNNotAvailable", L"Not Available"};
  forms::Label lblFXBankingInfo{Frame1, L"lblFXBankingInfo", foreignBankExplained};
  forms::Button cmdFXBankingInfo{Frame1, L"cmdFXBankingInfo", L"&Enter Banking Information"};
  forms::Frame fraBankAcctInfo{Frame1, L"fraBankAcctInfo", optionalAccountCaption};
  forms::OptionButton optBusiness{fraBankAcctInfo, L"optBusiness", L"Business"};
  forms::OptionButton optEmployee{fraBankAcctInfo, L"optEmployee", L"Employee"};
  forms::Label lblbankTransit{fraBankAcctInfo, L"lblbankTransit", L"Transit Number (5 digits):"};
  forms::TextBox txtTransit{fraBankAcctInfo, L"txtTransit"};
  forms::Label lblbankId{fraBankAcctInfo, L"lblbankId", L"Bank Id (3 digits):"};
  forms::TextBox txtBankID{fraBankAcctInfo, L"txtBankID"};
  forms::Label Label13{fraBankAcctInfo, L"Label13", L"Account Number( max. 12 digits):"};
  forms::TextBox txtAccount{fraBankAcctInfo, L"txtAccount"};
  forms::Label lblConfirm{fraBankAcctInfo, L"lblConfirm", L"Confirm"};
  forms::Label lblTransitConf{fraBankAcctInfo, L"lblTransitConf", L"Transit Number:"};
  forms::TextBox txtTransitConf{fraBankAcctInfo, L"txtTransitConf"};
  forms::Label lblBankIdConf{fraBankAcctInfo, L"lblBankIdConf", L"Bank Id:"};
  forms::TextBox txtBankIDConf{fraBankAcctInfo, L"txtBankIDConf"};
  forms::Label lblAccountConf{fraBankAcctInfo, L"lblAccountConf", L"Account Number:"};
  forms::TextBox txtAccountConf{fraBankAcctInfo, L"txtAccountConf"};
  forms::Label lbl_note{
      fraBankAcctInfo, L"lbl_note",
      L"Note: The first payment to a business may be made by cheque if a bank account has not been provided."};
  forms::Label lblbkclk{fraBankAcctInfo, L"lblbkclk"};
  forms::Label lblbankaccount{fraBankAcctInfo, L"lblbankaccount"};
  forms::Frame fraBankInfo{Frame1, L"fraBankInfo", L"Bank Account Information:"};
  forms::Label lblBankName{fraBankInfo, L"lblBankName", L"Bank Name:"};
  forms::TextBox txtBankName{fraBankInfo, L"txtBankName"};
  forms::Label lblRoutingNumber{fraBankInfo, L"lblRoutingNumber", L"Routing Number (ACH Routing Number 9 Digits):"};
  forms::TextBox txtRoutingNumber{fraBankInfo, L"txtRoutingNumber"};
  forms::Label lblBankAccountNumber{fraBankInfo, L"lblBankAccountNumber", L"Account Number( max. 17 digits):"};
  forms::TextBox txtBankAccountNumber{fraBankInfo, L"txtBankAccountNumber"};
  forms::Label lblBankInfoConfirm{fraBankInfo, L"lblBankInfoConfirm", L"Confirm:"};
  forms::TextBox txtConfirmBankAccountNumber{fraBankInfo, L"txtConfirmBankAccountNumber"};
  forms::Label lblDisclaimer{fraBankInfo, L"lblDisclaimer", L"Disclaimer:"};
  forms::Label lblDisclaimerDetails{fraBankInfo, L"lblDisclaimerDetails"};
  forms::Hyperlink ctHyperLink1{fraBankInfo, L"ctHyperLink1"};
  forms::Label Label14{Frame1, L"Label14",
                       L"The above information must be entered accurately to ensure timely payment"};
  forms::Label Label15{*this, L"Label15", L"Items with * are required fields."};
  forms::StyledButton cmdCheque{*this, L"cmdCheque", L"&View Sample Cheque"};
  forms::StyledButton cmd_help{*this, L"cmd_help", L"&Help"};
  forms::StyledButton cmd_ok{*this, L"cmd_ok", L"&OK"};
  forms::StyledButton cmd_cancel{*this, L"cmd_cancel", L"Cancel"};
  std::array<forms::Image, 6> imgHelpCSFTInfo{
      {{Frame1, {L"imgHelpCSFTInfo", 0}, helpImage, helpImageCaption},
       {Frame3, {L"imgHelpCSFTInfo", 1}, helpImage, helpImageCaption},
       {Frame3, {L"imgHelpCSFTInfo", 2}, helpImage, helpImageCaption},
       {Frame3, {L"imgHelpCSFTInfo", 3}, helpImage, helpImageCaption},
       {fraBusinessNum, {L"imgHelpCSFTInfo", 4}, helpImage, helpImageCaption},
       {fraBankAcctInfo, {L"imgHelpCSFTInfo", 5}, helpImage, helpImageCaption}}};
  std::array<forms::Label, 11> lblAsterisk{{{Frame3, {L"lblAsterisk", 0}, requiredMark},
                                            {Frame3, {L"lblAsterisk", 1}, requiredMark},
                                            {Frame3, {L"lblAsterisk", 2}, requiredMark},
                                            {Frame3, {L"lblAsterisk", 3}, requiredMark},
                                            {Frame3, {L"lblAsterisk", 4}, requiredMark},
                                            {Frame3, {L"lblAsterisk", 5}, requiredMark},
                                            {Frame3, {L"lblAsterisk", 6}, requiredMark},
                                            {fraBusinessNum, {L"lblAsterisk", 7}, requiredMark},
                                            {fraBankAcctInfo, {L"lblAsterisk", 50}, requiredMark},
                                            {fraBankAcctInfo, {L"lblAsterisk", 51}, requiredMark},
                                            {fraBankAcctInfo, {L"lblAsterisk", 52}, requiredMark}}};

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_QueryUnload(bool& cancel, forms::UnloadMode mode) override;
  void Form_KeyPress(wchar_t& key) override;
  bool Form_Help(const forms::Control& control) override;
  void Form_Unload() noexcept override;
  void reportTop(const forms::Control& field) override;

 private:
  /// What is known of each field (Fields.cpp).
  std::vector<Field> rows();

  // The record into the controls, and the layout of a biller kind (SetupForm.cpp).
  void SetupForm();
  void selectProvince();
  void selectCountry();
  void selectCurrency();
  void SetupBusinessForm();
  void SetupIndividualForm();

  // Where everything stands (Layout.cpp).
  void arrange() override;

  // The biller kind and payment kind (Kinds.cpp).
  void connectKinds();
  bool hasBusinessNumber() const { return optCBusiness.selected() && !chkBNNotAvailable.checked(); }

  // Reference lists (ReferenceLists.cpp).
  void LoadProvinces();
  void LoadCurrencyCodes();
  void LoadCountries();
  std::wstring deciphered(const std::wstring& file);
  void setCountry(const std::wstring& code);
  void setCurrency(const std::wstring& code);

  // The international state and the decisions that lead to it (International.cpp).
  void SetFXBiller(bool isFX);
  void explainForeignBank();
  void clearForeignCurrencyAtHome();
  void SetFXPhoneNumber(bool isFX);
  void ShowFXBankingInfoScreen();
  bool FXCurrencyExists(std::wstring_view code);
  void cmbCurrencyCode_LostFocus();
  void ran_payee_country_LostFocus();
  void storeForeignBank(frmFXBankInfo::Details bank);
  /// The record's foreign bank as the user sees it, each text without the blanks around it.
  std::vector<std::wstring> foreignBank() const;

  // What only one field does (FieldRules.cpp).
  bool fitsPostal(wchar_t key) const;
  void chooseKnownProvince();
  void txtBusinessNum_Change();
  void txtBusinessNum_LostFocus();
  std::wstring businessNumberToStore() const;
  bool hasBankNumbers() const;
  void bankNumberChanged();
  void clearConfirmation();
  void showConfirmation(bool visible);

  // OK (acceptance/).
  class Acceptance;
  void cmd_ok_Click();

  // Help, links, the sample cheque and the way out.
  void connectButtons();
  void showHelp(std::uint32_t topic);
  void cmd_cancel_Click();

  /// What the bank fields held just after set-up.
  struct BankTexts {
    std::wstring account;
    std::wstring bankId;
    std::wstring transit;
    std::wstring routingNumber;
    std::wstring bankAccountNumber;
  };

  // WhatKindOfBiller and CurrencyCodeFromMain as they were at set-up: a host that creates another ClsRandom resets
  // both.
  std::wstring kindOfBiller_;
  std::wstring homeCurrency_;
  BankTexts opening_;
  std::vector<std::wstring> openingBank_;
  ProvisionalValues provisional_{store()};
  bool foreignCurrency_ = false;  // confirmed as international: nothing is asked, a foreign bank is required
  bool international_ = false;    // shown as international, by SetFXBiller
  bool readOnly_ = false;         // shown for viewing only
  bool confirming_ = false;       // the bank account is being entered a second time
  std::int32_t closeResult_ = 0;
};

}  // namespace nv
