#include "dialogs/biller/frmRandomInfo.h"

#include <algorithm>

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

/// The topic about the dialog as a whole.
constexpr std::uint32_t helpTopic = 506000012;

/// What there is help with beyond it: the label of fields, or a frame around some, and the topic.
struct Help {
  const forms::Control* subject;
  std::uint32_t topic;
};

/// By the index of the image that opens it.
std::array<Help, 6> helps(const frmRandomInfo& form) {
  return {{{&form.Label1, helpTopic},
           {&form.lblPhoneNo, 506000014},
           {&form.lblFax, 506000014},
           {&form.lblEmail, 506000013},
           {&form.fraBusinessNum, 506000018},
           {&form.fraBankAcctInfo, 506000019}}};
}

/// A country code says nothing without a number.
void hideUnlessKnown(std::initializer_list<const forms::TextBox*> number, std::initializer_list<forms::Control*> code) {
  if (std::ranges::any_of(number, [](const forms::TextBox* part) { return !trimmed(part->text()).empty(); })) return;
  for (forms::Control* each : code) each->setVisible(false);
}

}  // namespace

frmRandomInfo::frmRandomInfo(Component& component, Border border)
    : FieldForm(component, formName, L"frmRandomInfo", border) {
  setCaption(domesticTitle);
  cmd_cancel.setCancels(true);
  for (forms::Label* data : {&ran_payee_name, &ran_payee_account}) data->setUsesMnemonic(false);
  const std::initializer_list<forms::Control*> hidden = {
      &lblNotification, &lblFXBankingInfo, &cmdFXBankingInfo, &optBusiness,        &optEmployee,
      &lblbkclk,        &lblbankaccount,   &fraBankInfo,      &lblBankInfoConfirm, &txtConfirmBankAccountNumber};
  for (forms::Control* control : hidden) control->setVisible(false);
  showConfirmation(false);
  connectFields(rows());
  connectKinds();
  connectButtons();
  rearrange();
}

/// So that the host can scroll an embedded dialog.
void frmRandomInfo::reportTop(const forms::Control& field) {
  CurrentFieldTop.raise(static_cast<std::int16_t>(field.topInForm()));
}

void frmRandomInfo::showReadOnly() {
  readOnly_ = true;
  Frame1.setCaption(L"Information about this Biller/Payee");
  setForReading();
  for (forms::Frame* fields : {&Frame3, &fraBankAcctInfo, &fraBankInfo}) fields->setEnabled(false);
  const bool foreignBank = !trimmed(store().PayeeFXBankCity).empty();
  if (foreignBank) {
    cmdFXBankingInfo.setCaption(L"View Banking Information");
  } else {
    Frame1.setEnabled(false);
  }
  cmdFXBankingInfo.setVisible(foreignBank);
  // Nothing is to be entered: what speaks of that goes, and so do the help images that cannot be clicked.
  for (forms::Label& mark : lblAsterisk) mark.setVisible(false);
  for (forms::Image& image : imgHelpCSFTInfo) image.setVisible(image.visible() && !image.blocked());
  for (forms::Label* request : {&Label14, &Label15}) request->setVisible(false);
  hideUnlessKnown({&ran_payee_ph_area, &ran_payee_phone, &ran_Inter_payee_phone}, {&Label19, &txtPhoneCountryCode});
  hideUnlessKnown({&ran_payee_fax_area, &ran_payee_faxnumber, &ran_inter_payee_faxnumber},
                  {&Label20, &txtFaxCountryCode});
  cmd_cancel.setVisible(false);
  cmd_ok.setCaption(L"Close");
  cmd_ok.setCancels(true);  // Escape keeps closing the dialog
  rearrange();
}

void frmRandomInfo::Form_KeyPress(wchar_t& key) {
  trace(component(), L"RandomInfo - Form_KeyPress");
  if (key == forms::keys::enter) sendKey(L'9');  // hosts have come to know it so; Enter itself goes on its way
}

// Help, links, the sample cheque and the way out

void frmRandomInfo::showHelp(std::uint32_t topic) {
  component().services.shell.showHelp(store().gstrInstallRoot() + helpFile, topic, handle());
}

bool frmRandomInfo::Form_Help(const forms::Control& control) {
  const auto about = [&control](const Help& help) {
    return help.subject == labelOf(control) || help.subject == control.frame();
  };
  const auto all = helps(*this);
  const auto found = std::ranges::find_if(all, about);
  showHelp(found == all.end() ? helpTopic : found->topic);
  return true;
}

void frmRandomInfo::connectButtons() {
  onClick(cmd_ok, [this] { cmd_ok_Click(); });
  onClick(cmd_cancel, [this] { cmd_cancel_Click(); });
  onClick(cmd_help, [this] { showHelp(helpTopic); });
  for (forms::Image& image : imgHelpCSFTInfo) {
    const Help help = helps(*this)[static_cast<std::size_t>(image.index())];
    image.describe({.label = help.subject, .before = L"Help with ", .key = L"F1"});
    onClick(image, [this, help] { showHelp(help.topic); });
  }
  fraBusinessNum.describe({.label = &optCBusiness, .after = L" or Individual"});
  Frame3.describe({.label = &Label3});
  onClick(cmdFXBankingInfo, [this] { ShowFXBankingInfoScreen(); });
  onClick(ctHyperLink1, [this] {
    const std::wstring_view address = trimmed(store().USBillPaymentURL);
    if (!address.empty()) Random::OpenBrowser(component(), address);
  });
  onClick(cmdCheque, [this] {
    auto& cheque = component().chequeForm;
    if (!cheque || !cheque->loaded()) cheque = std::make_shared<frmCheque>(component());
    cheque->showModal();
  });
}

void frmRandomInfo::cmd_cancel_Click() {
  closeResult_ = cancelledResult;
  unload();
  Cancel.raise();
}

void frmRandomInfo::Form_QueryUnload(bool& /*cancel*/, UnloadMode mode) {
  trace(component(), L"RandomInfo - Form_QueryUnload");
  if (mode == UnloadMode::code) return;
  closeResult_ = cancelledResult;
  widgetset().runPendingEvents();
  unload();
  Cancel.raise();
}

void frmRandomInfo::Form_Unload() noexcept {
  provisional_.takeBack();
}

}  // namespace nv
