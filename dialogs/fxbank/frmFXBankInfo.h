// The foreign bank details dialog: the bank of a biller who is paid abroad, with a section for international banks and
// one for banks of the United States. Whoever shows it fills its fields, and reads them back when OKClicked says so.
#pragma once

#include <string>
#include <vector>

#include "dialogs/support/ComponentForm.h"
#include "forms/Button.h"
#include "forms/ComboBox.h"
#include "forms/DropDownList.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/TextField.h"

namespace nv {

class frmFXBankInfo : public ComponentForm {
 public:
  explicit frmFXBankInfo(Component& component);

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

 private:
  // The controls, in tab order.
  forms::Frame FraBankName;
  forms::Label Label1;
  forms::TextBox txtBankName;
  forms::Label Label4;
  forms::TextBox txtBankStreet;
  forms::Label Label6;
  forms::TextBox txtBankCity;
  forms::Label Label8;
  forms::ComboBox cmbBankProv;
  forms::Label Label9;
  forms::DropDownList cmbBankCountry;
  forms::Frame fraIntlBanks;
  forms::Label lblSwiftNumber;
  forms::TextBox txtSwiftNumber;
  forms::Label lblBankAccount;
  forms::TextBox txtBankAccount;
  forms::Label lblConfirmInt;
  forms::TextBox txtSwiftNumberConf;
  forms::TextBox txtBankAccountConf;
  forms::Frame fraUSBanks;
  forms::Label lblUSABA;
  forms::TextBox txtUSABA;
  forms::Label lblUSBankAccount;
  forms::TextBox txtUSBankAccount;
  forms::Label lblConfirmUS;
  forms::TextBox txtUSABAConf;
  forms::TextBox txtUSBankAccountConf;
  forms::StyledButton cmd_ok;
  forms::StyledButton cmd_cancel;

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
  };

  void EnableUSBankDetails();
  void EnableIntlBankDetails();
  void enable(Section& section);
  void discard(Section& section);

  void cmd_ok_Click();
  void cmd_cancel_Click();
  void tell(const wchar_t* text, const wchar_t* caption = applicationTitle);
  bool refusesBlank(forms::TextField& field, const wchar_t* message);
  bool refusesInternational();
  bool refusesUnitedStates();
  bool differsFromOpening(const Section& section) const;
  void acceptOrConfirm(Section& section);
  void openConfirmation(Section& section);
  void showConfirmation(Section& section);
  void closeConfirmation(Section& section);
  void sendToConfirmation(Section& section);
  void accept();

  void cmbBankProv_Change();
  void cmbBankCountry_LostFocus();
  static void refuseAllButCapitals(wchar_t& key);

  bool inUnitedStates() const { return cmbBankCountry.text() == unitedStates; }
  void arrange();
  void connect();

  Section international_;
  Section unitedStates_;
  bool accepted_ = false;
  bool accountChanged_ = false;
  std::wstring pendingAccount_;  // being confirmed; empty while no confirmation is open
  std::wstring openingAccount_;
  std::wstring openingSwift_;
  int lastKeyInProvince_ = 0;
};

}  // namespace nv
