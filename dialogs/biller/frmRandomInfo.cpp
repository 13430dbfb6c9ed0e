#include "dialogs/biller/frmRandomInfo.h"

#include "dialogs/support/frmCheque.h"
#include "platform/Text.h"
#include "validation/Random.h"

namespace nv {

using forms::Border;
using forms::UnloadMode;

namespace {

/// The help file, shown in its window type "ShowTopic".
constexpr const wchar_t* helpFile = L"NORVIK.CHM>ShowTopic";

constexpr const wchar_t* helpImage = L"HELPIMAGE";
constexpr const wchar_t* helpImageCaption = L"Help";

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
      lblPostalCode(Frame3, L"lblPostalCode", L"Postal Code:"),
      ran_payee_postal(Frame3, L"ran_payee_postal"),
      lblEmail(Frame3, L"lblEmail", L"Email:"),
      ran_payee_email(Frame3, L"ran_payee_email"),
      lblWebsite(Frame3, L"lblWebsite", L"Website:"),
      ran_payee_www(Frame3, L"ran_payee_www"),
      lblContact(Frame3, L"lblContact", L"Contact Person / Dept:"),
      ran_payee_contact(Frame3, L"ran_payee_contact"),
      imgHelpCSFTInfo{{{Frame1, {L"imgHelpCSFTInfo", 0}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 1}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 2}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 3}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 4}, helpImage, helpImageCaption},
                       {Frame3, {L"imgHelpCSFTInfo", 5}, helpImage, helpImageCaption}}},
      cmdFXBankingInfo(Frame1, L"cmdFXBankingInfo", L"&Enter Banking Information"),
      ctHyperLink1(*this, L"ctHyperLink1", L"Click here for more information about US Payments"),
      cmdCheque(*this, L"cmdCheque", L"&View Sample Cheque"),
      cmd_help(*this, L"cmd_help", L"&Help"),
      cmd_ok(*this, L"cmd_ok", L"&OK"),
      cmd_cancel(*this, L"cmd_cancel", L"Cancel") {
  setCaption(L"Norvik - Biller / Funds Transfer Information");
  cmd_cancel.setCancels(true);
  ran_payee_name.setUsesMnemonic(false);
  ran_payee_account.setUsesMnemonic(false);
  arrange();
  connect();
}

void frmRandomInfo::connect() {
  on(cmd_ok.click, {formName, L"cmd_ok_Click"}, [this] { cmd_ok_Click(); });
  on(cmd_cancel.click, {formName, L"cmd_cancel_Click"}, [this] { cmd_cancel_Click(); });
  on(cmd_help.click, {formName, L"cmd_help_Click"}, [this] { cmd_help_Click(); });
  on(cmdCheque.click, {formName, L"cmdCheque_Click"}, [this] { cmdCheque_Click(); });
  on(ctHyperLink1.click, {formName, L"ctHyperLink1_Click"}, [this] { ctHyperLink1_Click(); });
  for (forms::Image& image : imgHelpCSFTInfo) {
    on(image.click, {formName, L"imgHelpCSFTInfo_Click"}, [this, &image] { imgHelpCSFTInfo_Click(image.index()); });
  }
}

void frmRandomInfo::Form_Load() {
  entered(component(), L"RandomInfo - Form_Load");
  SetupForm();
}

void frmRandomInfo::SetupForm() {
  entered(component(), L"RandomInfo - SetupForm");
  Random::Get_Windows_Dir(component());
  ran_payee_name.setCaption(store().PayeeName);
  ran_payee_account.setCaption(store().PayeeBillAccount);
  for (const Field& field : fields) (this->*field.box).setText(store().*field.stored);
  Frame1.setCaption(L"Please enter the following information about this Biller/Fund Transfer");
}

void frmRandomInfo::Form_Activate() {
  entered(component(), L"RandomInfo - Form_Activate");
  ran_payee_street.setFocus();
}

void frmRandomInfo::showReadOnly() {
  Frame1.setCaption(L"Information about this Biller/Payee");
  Frame3.setEnabled(false);
  if (trimmed(store().PayeeFXBankCity).empty()) {
    Frame1.setEnabled(false);
  } else {
    cmdFXBankingInfo.setCaption(L"View Banking Information");
  }
  cmd_cancel.setVisible(false);
  cmd_ok.setCaption(L"Close");
  cmd_ok.setCancels(true);  // Escape keeps closing the dialog
}

void frmRandomInfo::Form_KeyPress(wchar_t& key) {
  entered(component(), L"RandomInfo - Form_KeyPress");
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
  entered(component(), L"RandomInfo - Form_QueryUnload");
  if (mode == UnloadMode::code) return;
  store().closeResult = Store::cancelledResult;
  widgetset().runPendingEvents();
  unload();
  Cancel.raise();
}

void frmRandomInfo::cmd_ok_Click() {
  if (store().importFlag != flagFalse) {  // for viewing only: there is nothing to accept
    unload();
    return;
  }
  const bool changed = copyToRecord();
  if (store().Add == flagFalse && !changed) store().closeResult = Store::cancelledResult;
  CSBOK.raise();
  unload();
}

/// The plain text fields and the values of the record that they show.
const frmRandomInfo::Field frmRandomInfo::fields[] = {
    {&frmRandomInfo::ran_payee_street, &Store::PayeeStreet},
    {&frmRandomInfo::ran_payee_city, &Store::PayeeCity},
    {&frmRandomInfo::ran_payee_postal, &Store::PayeePostal},
    {&frmRandomInfo::ran_payee_email, &Store::PayeeEmail},
    {&frmRandomInfo::ran_payee_www, &Store::PayeeWeb},
    {&frmRandomInfo::ran_payee_contact, &Store::PayeeContactName},
};

bool frmRandomInfo::copyToRecord() {
  bool changed = false;
  for (const Field& field : fields) {
    std::wstring& stored = store().*field.stored;
    const std::wstring_view entered = trimmed((this->*field.box).text());
    if (trimmed(stored) != entered) changed = true;
    stored = entered;
  }
  return changed;
}

void frmRandomInfo::arrange() {
  constexpr forms::Twips margin = 150, row = 390, field = 315, label = 1950, gap = 120;
  forms::Twips top = 300;
  const auto headRow = [&](forms::Label& caption, forms::Label& value) {
    caption.setPlace({margin, top, label, 240});
    value.setPlace({margin + label + gap, top, 5700, 240});
    top += 300;
  };
  headRow(Label1, ran_payee_name);
  headRow(Label2, ran_payee_account);
  imgHelpCSFTInfo[0].setPlace({8970, 285, 240, 240});

  const forms::Twips frameTop = top + gap;
  Label3.setPlace({margin, 240, 8400, 240});
  top = 600;
  const auto fieldRow = [&](forms::Label& caption, forms::TextBox& box, forms::Twips width, forms::Image& help) {
    caption.setPlace({margin, top + 45, label, 240});
    box.setPlace({margin + label + gap, top, width, field});
    help.setPlace({margin + label + gap + width + gap, top + 45, 240, 240});
    top += row;
  };
  fieldRow(lblStreet, ran_payee_street, 5700, imgHelpCSFTInfo[1]);
  fieldRow(lblCity, ran_payee_city, 2700, imgHelpCSFTInfo[2]);
  fieldRow(lblPostalCode, ran_payee_postal, 1350, imgHelpCSFTInfo[3]);
  fieldRow(lblEmail, ran_payee_email, 4800, imgHelpCSFTInfo[4]);
  fieldRow(lblWebsite, ran_payee_www, 4800, imgHelpCSFTInfo[5]);
  lblContact.setPlace({margin, top + 45, label, 240});
  ran_payee_contact.setPlace({margin + label + gap, top, 4800, field});
  top += row;
  Frame3.setPlace({margin, frameTop, 9060, top + 60});
  cmdFXBankingInfo.setPlace({margin, Frame3.place().bottom() + gap, 2700, 375});
  Frame1.setPlace({margin, margin, 9360, cmdFXBankingInfo.place().bottom() + margin});

  top = Frame1.place().bottom() + gap;
  ctHyperLink1.setPlace({margin, top + 75, 3900, 240});
  cmdCheque.setPlace({4110, top, 1860, 375});
  cmd_help.setPlace({6060, top, 1080, 375});
  cmd_ok.setPlace({7230, top, 1080, 375});
  cmd_cancel.setPlace({8430, top, 1080, 375});
  setSize(9660, top + 375 + margin);
}

}  // namespace nv
