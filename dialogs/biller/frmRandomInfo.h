// The biller information dialog: what the user enters to have a biller paid. It shows the shared biller record and,
// once accepted, writes the record back and tells whoever is connected to its events.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "dialogs/fxbank/frmFXBankInfo.h"
#include "dialogs/support/ComponentForm.h"
#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/TextField.h"
#include "forms/Toggle.h"

namespace nv {

class frmRandomInfo : public ComponentForm {
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

 private:
  // The controls, in tab order: the order in which a person fills them.
  forms::Frame Frame1;
  forms::Label Label1;
  forms::Label ran_payee_name;
  forms::Label Label2;
  forms::Label ran_payee_account;
  forms::Frame Frame3;
  forms::Label Label3;
  forms::Label lblStreet;
  forms::TextBox ran_payee_street;
  forms::Label lblCity;
  forms::TextBox ran_payee_city;
  forms::Label lblProvince;
  forms::ComboBox ran_payee_prov;
  forms::Label lblCountry;
  forms::DropDownList ran_payee_country;
  forms::Label lblPostalCode;
  forms::TextBox ran_payee_postal;
  forms::Label lblCurrency;
  forms::DropDownList cmbCurrencyCode;
  forms::Label lblPhoneNo;
  forms::Label Label19;
  forms::TextBox txtPhoneCountryCode;
  forms::TextBox ran_payee_ph_area;
  forms::TextBox ran_payee_phone;
  forms::TextBox ran_Inter_payee_phone;
  forms::Label lblFax;
  forms::Label Label20;
  forms::TextBox txtFaxCountryCode;
  forms::TextBox ran_payee_fax_area;
  forms::TextBox ran_payee_faxnumber;
  forms::TextBox ran_inter_payee_faxnumber;
  forms::Label lblEmail;
  forms::TextBox ran_payee_email;
  forms::Label lblNotification;
  forms::Label lblWebsite;
  forms::TextBox ran_payee_www;
  forms::Label lblContact;
  forms::TextBox ran_payee_contact;
  forms::CheckBox chkDiscountsApply;
  forms::Frame fraBusinessNum;
  forms::OptionButton optCBusiness;
  forms::OptionButton optCIndividual;
  forms::Label lblBN;
  forms::TextBox txtBusinessNum;
  forms::CheckBox chkBNNotAvailable;
  forms::Label lblFXBankingInfo;
  forms::Button cmdFXBankingInfo;
  forms::Frame fraBankAcctInfo;
  forms::OptionButton optBusiness;
  forms::OptionButton optEmployee;
  forms::Label lblbankTransit;
  forms::TextBox txtTransit;
  forms::Label lblbankId;
  forms::TextBox txtBankID;
  forms::Label Label13;
  forms::TextBox txtAccount;
  forms::Label lblConfirm;
  forms::Label lblTransitConf;
  forms::TextBox txtTransitConf;
  forms::Label lblBankIdConf;
  forms::TextBox txtBankIDConf;
  forms::Label lblAccountConf;
  forms::TextBox txtAccountConf;
  forms::Label lbl_note;
  forms::Label lblbkclk;
  forms::Label lblbankaccount;
  forms::Frame fraBankInfo;
  forms::Label lblBankName;
  forms::TextBox txtBankName;
  forms::Label lblRoutingNumber;
  forms::TextBox txtRoutingNumber;
  forms::Label lblBankAccountNumber;
  forms::TextBox txtBankAccountNumber;
  forms::Label lblBankInfoConfirm;
  forms::TextBox txtConfirmBankAccountNumber;
  forms::Label lblDisclaimer;
  forms::Label lblDisclaimerDetails;
  forms::Hyperlink ctHyperLink1;
  forms::Label Label14;
  forms::Label Label15;
  forms::StyledButton cmdCheque;
  forms::StyledButton cmd_help;
  forms::StyledButton cmd_ok;
  forms::StyledButton cmd_cancel;
  std::array<forms::Image, 6> imgHelpCSFTInfo;  // name, phone, fax, e-mail, business number, bank account
  std::array<forms::Label, 11> lblAsterisk;     // required-field marks: indices 0 to 7 and 50 to 52

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_QueryUnload(bool& cancel, forms::UnloadMode mode) override;
  void Form_KeyPress(wchar_t& key) override;

 private:
  // Set-up: the record into the controls, and the layout of a biller kind (SetupForm.cpp).
  void SetupForm();
  void selectProvince();
  void selectCountry();
  void fillPhones();
  void setUpBankBlocks();
  void selectKind();
  void selectDiscounts();
  void SetupBusinessForm();
  void SetupIndividualForm();
  void switchBusinessNumber(bool on);
  void showMarks(int first, int last, bool visible);

  // Where everything stands (Layout.cpp).
  void arrange();
  void arrangeAddress();
  void arrangeBankAccount();
  void arrangeBankInfo();
  void arrangeBusiness();
  void arrangeUnitedStates();
  void arrangeIndividual();
  void stack(std::initializer_list<forms::Control*> blocks, forms::Twips below);
  void putUnderFrame1();

  // The biller kind and payment kind buttons (SetupForm.cpp).
  void connectKinds();
  void optCBusiness_Click();
  void optCIndividual_Click();
  void chkBNNotAvailable_Click();
  void optBusiness_Click();

  // Reference lists (ReferenceLists.cpp).
  void connectLists();
  void LoadProvinces();
  void LoadCurrencyCodes();
  void LoadCountries();
  std::wstring deciphered(const std::wstring& file);
  void setCountry(const std::wstring& code);
  void setCurrency(const std::wstring& code);

  // The international state and the decisions that lead to it (International.cpp).
  void connectInternational();
  void SetFXBiller(bool isFX);
  void SetFXPhoneNumber(bool isFX);
  void ShowFXBankingInfoScreen();
  bool FXCurrencyExists(std::wstring_view code);
  void cmbCurrencyCode_LostFocus();
  void ran_payee_country_LostFocus();
  bool leavesToCancel() const;
  bool acceptsInternational();
  void takeTelephoneCode();
  void storeForeignBank(frmFXBankInfo::Details bank);

  // What each field does with keys, changes, focus and pasting (FieldRules.cpp).
  void connectFields();
  void connectKeyFilters();
  void connectChangeRules();
  void connectBankNumbers();
  void connectFocusReports();
  void connectPasteGuards();
  bool fitsPostal(wchar_t key) const;
  void changed(const forms::TextField& field);
  void chooseKnownProvince();
  void txtBusinessNum_LostFocus();
  /// The first available of `candidates` behind `field` in tab order takes the focus from it.
  void moveOn(const forms::Control& field, const std::vector<forms::Control*>& candidates);
  bool hasBankNumbers() const;
  void clearConfirmation();
  void showConfirmation(bool visible);

  // OK (Acceptance.cpp).
  class Acceptance;
  void cmd_ok_Click();

  // Procedures for the host.
  void boundFields();
  void connectButtons();
  void cmd_cancel_Click();
  void cmd_help_Click();
  void cmdCheque_Click();
  void imgHelpCSFTInfo_Click(int index);
  void ctHyperLink1_Click();
  void showHelp(std::uint32_t topic);
  void reportTop(const forms::Control& field) const;

  /// Domestic is the ordinary biller; every other kind is paid in US dollars through the US payment route.
  bool domestic() const { return store().WhatKindOfBiller == L" "; }
  /// Whether the country is one of North America's that dial alike, in its two- or three-letter form.
  bool inCanada() const;
  bool inUnitedStates() const;

  /// What the bank fields held just after set-up.
  struct BankTexts {
    std::wstring account;
    std::wstring bankId;
    std::wstring transit;
    std::wstring routingNumber;
    std::wstring bankAccountNumber;
  };

  BankTexts opening_;
  bool foreignCurrency_ = false;  // the biller has been accepted as an international one
  bool foreignBankChanged_ =
      false;                       // details of the foreign bank in the record differ from what the dialog opened with
  bool readOnly_ = false;          // shown for viewing only
  std::wstring pendingAccount_;    // bank account being re-keyed; empty while none is
  forms::Twips frame3Height_ = 0;  // as designed
};

}  // namespace nv
