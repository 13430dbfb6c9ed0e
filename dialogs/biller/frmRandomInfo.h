// The biller information dialog: what the user enters to have a biller paid. It shows the shared biller record and,
// once accepted, writes the record back and tells whoever is connected to its events.
#pragma once

#include <array>
#include <cstdint>

#include "dialogs/support/ComponentForm.h"
#include "forms/Button.h"
#include "forms/Frame.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/TextField.h"

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
  Flag16 ValidateEmailAddress(std::wstring_view address, std::wstring& message, Flag16 allowEmpty);
  Flag16 ValidateWebsite(std::wstring_view site, std::wstring& message);
  /// Judges an e-mail address character by character.
  Flag16 IsEmailValid(std::wstring_view address);

  /// For viewing only: nothing can be edited, and OK becomes a way to close. To be called once loaded.
  void showReadOnly();

 private:
  // The controls, in tab order.
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
  forms::Label lblPostalCode;
  forms::TextBox ran_payee_postal;
  forms::Label lblEmail;
  forms::TextBox ran_payee_email;
  forms::Label lblWebsite;
  forms::TextBox ran_payee_www;
  forms::Label lblContact;
  forms::TextBox ran_payee_contact;
  std::array<forms::Image, 6> imgHelpCSFTInfo;
  forms::Button cmdFXBankingInfo;
  forms::Hyperlink ctHyperLink1;
  forms::StyledButton cmdCheque;
  forms::StyledButton cmd_help;
  forms::StyledButton cmd_ok;
  forms::StyledButton cmd_cancel;

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_QueryUnload(bool& cancel, forms::UnloadMode mode) override;
  void Form_KeyPress(wchar_t& key) override;

 private:
  void SetupForm();
  void cmd_ok_Click();
  void cmd_cancel_Click();
  void cmd_help_Click();
  void cmdCheque_Click();
  void imgHelpCSFTInfo_Click(int index);
  void ctHyperLink1_Click();

  void arrange();
  void connect();
  void showHelp(std::uint32_t topic);
  /// Copies the fields, trimmed, into the record. Returns whether a value differs from the stored one.
  bool copyToRecord();

  struct Field {
    forms::TextBox frmRandomInfo::*box;
    std::wstring Store::*stored;
  };
  static const Field fields[6];
};

}  // namespace nv
