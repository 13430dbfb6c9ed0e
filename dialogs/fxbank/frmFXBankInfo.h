// The foreign bank details dialog: the bank of a biller who is paid abroad, with a section for international banks and
// one for banks of the United States. Whoever shows it fills its fields, and reads them back when OKClicked says so.
#pragma once

#include <string>
#include <vector>

#include "dialogs/support/CountryColumn.h"
#include "dialogs/support/Fields.h"
#include "dialogs/support/Verdict.h"
#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextField.h"

namespace nv {

class frmFXBankInfo : public FieldForm {
 public:
  /// @param domestic the biller's mode, which decides on routing numbers.
  frmFXBankInfo(Component& component, bool domestic);

  /// What the dialog shows and hands back. Of the two pairs of numbers the one for the country counts.
  struct Details {
    std::wstring name;
    std::wstring street;
    std::wstring city;
    std::wstring province;
    std::wstring country;  // two-letter code
    std::wstring swift;
    std::wstring account;
    std::wstring routing;
    std::wstring usAccount;
  };
  static constexpr const wchar_t* unitedStates = L"US";

  /// Fills the fields before the dialog is shown, with the section of the country switched on.
  void fill(const Details& details, const std::vector<std::wstring>& provinces, const forms::RowTable& countries);
  /// What the fields hold, each trimmed.
  Details details() const;
  /// For viewing only: nothing can be edited, and cancelling is closing.
  void showReadOnly();

  /// Whether OK has accepted the details.
  bool OKClicked();

  // The controls, in tab order.
  forms::Frame FraBankName{*this, L"FraBankName"};
  forms::Label Label1{FraBankName, L"Label1", L"Bank Name:"};
  forms::TextBox txtBankName{FraBankName, L"txtBankName"};
  forms::Label Label4{FraBankName, L"Label4", L"Bank Street:"};
  forms::TextBox txtBankStreet{FraBankName, L"txtBankStreet"};
  forms::Label Label6{FraBankName, L"Label6", L"Bank City:"};
  forms::TextBox txtBankCity{FraBankName, L"txtBankCity"};
  forms::Label Label8{FraBankName, L"Label8", L"Prov/State:"};
  forms::ComboBox cmbBankProv{FraBankName, L"cmbBankProv"};
  forms::Label Label9{FraBankName, L"Label9", L"Country:"};
  forms::DropDownList cmbBankCountry{
      FraBankName, L"cmbBankCountry", {{L"Country", 3300}, {L"Code", 750}, {L"Phone", 900}}, countryCode};
  forms::Frame fraIntlBanks{*this, L"fraIntlBanks", L"For International Banks:"};
  forms::Label lblSwiftNumber{fraIntlBanks, L"lblSwiftNumber", L"SWIFT Code:"};
  forms::TextBox txtSwiftNumber{fraIntlBanks, L"txtSwiftNumber"};
  forms::Label lblBankAccount{fraIntlBanks, L"lblBankAccount", L"IBAN# or Bank Account:"};
  forms::TextBox txtBankAccount{fraIntlBanks, L"txtBankAccount"};
  forms::Label lblConfirmInt{fraIntlBanks, L"lblConfirmInt", L"Confirm:"};
  forms::TextBox txtSwiftNumberConf{fraIntlBanks, L"txtSwiftNumberConf"};
  forms::TextBox txtBankAccountConf{fraIntlBanks, L"txtBankAccountConf"};
  forms::Frame fraUSBanks{*this, L"fraUSBanks", L"For US Banks:"};
  forms::Label lblUSABA{fraUSBanks, L"lblUSABA", L"ABA Routing:"};
  forms::TextBox txtUSABA{fraUSBanks, L"txtUSABA"};
  forms::Label lblUSBankAccount{fraUSBanks, L"lblUSBankAccount", L"Account:"};
  forms::TextBox txtUSBankAccount{fraUSBanks, L"txtUSBankAccount"};
  forms::Label lblConfirmUS{fraUSBanks, L"lblConfirmUS", L"Confirm:"};
  forms::TextBox txtUSABAConf{fraUSBanks, L"txtUSABAConf"};
  forms::TextBox txtUSBankAccountConf{fraUSBanks, L"txtUSBankAccountConf"};
  forms::StyledButton cmd_ok{*this, L"cmd_ok", L"&OK"};
  forms::StyledButton cmd_cancel{*this, L"cmd_cancel", L"Cancel"};

 protected:
  void Form_Load() override;

 private:
  /// One of the two account sections: the bank's number and the account, each with its confirmation.
  struct Section {
    forms::Frame& frame;
    forms::Label& numberLabel;
    forms::TextBox& number;
    forms::Label& accountLabel;
    forms::TextBox& account;
    forms::Label& confirmLabel;
    forms::TextBox& numberConf;
    forms::TextBox& accountConf;
    // What the dialog was filled with.
    std::wstring openingNumber{};
    std::wstring openingAccount{};
  };

  /// What is known of each field.
  std::vector<Field> rows();
  void arrange() override;

  void EnableUSBankDetails();
  void EnableIntlBankDetails();
  void discard(Section& section);
  static void setEnabled(Section& section, bool enabled);
  void cmbBankProv_Change();
  void cmbBankCountry_LostFocus();
  bool inUnitedStates() const { return cmbBankCountry.text() == unitedStates; }

  // OK (Acceptance.cpp)
  void cmd_ok_Click();
  Verdict accept();
  Verdict checkInternational() const;
  Verdict checkUnitedStates() const;
  Verdict confirm(Section& section);
  void showConfirmation(Section& section);
  void closeConfirmation(Section& section);
  static Verdict sendToConfirmation(Section& section);

  Section international_{fraIntlBanks,   lblSwiftNumber, txtSwiftNumber,     lblBankAccount,
                         txtBankAccount, lblConfirmInt,  txtSwiftNumberConf, txtBankAccountConf};
  Section unitedStates_{fraUSBanks,       lblUSABA,     txtUSABA,     lblUSBankAccount,
                        txtUSBankAccount, lblConfirmUS, txtUSABAConf, txtUSBankAccountConf};
  bool domestic_;
  bool accepted_ = false;
  bool accountChanged_ = false;
  bool confirming_ = false;  // a confirmation is open
  int lastKeyInProvince_ = 0;
};

}  // namespace nv
