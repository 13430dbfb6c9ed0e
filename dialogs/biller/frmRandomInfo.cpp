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

/// The topic about the dialog as a whole, and those by the index of the help image that opens them.
constexpr std::uint32_t helpTopic = 506000012;
constexpr std::uint32_t imageHelpTopics[] = {506000012, 506000014, 506000014, 506000013, 506000018, 506000019};

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

void frmRandomInfo::connectButtons() {
  const auto showHelp = [this](std::uint32_t topic) {
    component().services.shell.showHelp(store().gstrInstallRoot() + helpFile, topic, handle());
  };
  onClick(cmd_ok, [this] { cmd_ok_Click(); });
  onClick(cmd_cancel, [this] { cmd_cancel_Click(); });
  onClick(cmd_help, [showHelp] { showHelp(helpTopic); });
  for (forms::Image& image : imgHelpCSFTInfo) {
    onClick(image, [showHelp, &image] { showHelp(imageHelpTopics[image.index()]); });
  }
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
