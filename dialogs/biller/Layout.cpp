// Where the biller dialog's controls stand: two columns of fields, the biller kind, the bank block. There is one
// arrangement for all modes: what is hidden takes no room.
#include <algorithm>

#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/support/Grid.h"

namespace nv {

using namespace design;
using forms::Twips;

namespace {

constexpr Twips frameWidth = 11400;
constexpr Twips blockLeft = 120;  // of the blocks in Frame1
constexpr Twips blockWidth = frameWidth - 2 * blockLeft;

// Columns, from the left edge of a block.
constexpr Twips leftLabels = 240, leftFields = 1620;
constexpr Twips rightLabels = 5880, rightFields = 7740;
constexpr Twips helpColumn = rightFields + 2940;  // of the help icons
constexpr Twips individualFields = 2340;

constexpr Twips blockWithoutHead = 150;  // from the top of a frame without a caption to its first row
constexpr Twips dialogFoot = 500;        // below the buttons
constexpr Twips underBankInfo = 100;     // in the United States layout
constexpr Twips noteUnderFrame = 40;

/// Name and account, and the two columns of the address block over the kind of biller. Of a private person's address
/// there is only a place for mail, which has both columns.
void arrangeAddress(frmRandomInfo& form) {
  constexpr Twips headFields = blockLeft + 2100, headPitch = 285;
  form.Label1.setPlace({blockLeft + leftLabels, frameHead, 1800, textHeight});
  form.ran_payee_name.setPlace({headFields, frameHead, 8400, textHeight});
  form.imgHelpCSFTInfo[0].setPlace({blockLeft + helpColumn, frameHead - 15, iconSize, iconSize});
  form.Label2.setPlace({blockLeft + leftLabels, frameHead + headPitch, 1800, textHeight});
  form.ran_payee_account.setPlace({headFields, frameHead + headPitch, 8400, textHeight});

  form.Label3.setPlace({leftLabels, blockWithoutHead + 15, 9000, textHeight});
  const bool whole = form.Label3.visible();
  const Twips firstRow = blockWithoutHead + (whole ? textHeight + gap : 0);
  Grid left(leftLabels, leftFields, firstRow);
  left.row(form.lblStreet, {form.ran_payee_street}).mark(form.lblAsterisk[0]);
  left.row(form.lblCity, {form.ran_payee_city}).mark(form.lblAsterisk[1]);
  left.row(form.lblProvince, {form.ran_payee_prov}).mark(form.lblAsterisk[3]);
  left.row(form.lblCountry, {form.ran_payee_country}).mark(form.lblAsterisk[5]);
  left.row(form.lblPostalCode, {form.ran_payee_postal}).mark(form.lblAsterisk[4]);
  left.row(form.lblCurrency, {form.cmbCurrencyCode});

  Grid right(whole ? rightLabels : leftLabels, whole ? rightFields : individualFields, firstRow);
  const auto phoneRow = [&right](forms::Label& label, forms::Label& plus, forms::TextBox& country, forms::TextBox& area,
                                 forms::TextBox& number, forms::TextBox& international, forms::Image& help) {
    right.row(label, {{plus, 105}, country, area, number}).help(help, helpColumn);
    international.setPlace({area.place().left, area.place().top, international.place().width, area.place().height});
  };
  phoneRow(form.lblPhoneNo, form.Label19, form.txtPhoneCountryCode, form.ran_payee_ph_area, form.ran_payee_phone,
           form.ran_Inter_payee_phone, form.imgHelpCSFTInfo[1]);
  right.mark(form.lblAsterisk[6]);
  phoneRow(form.lblFax, form.Label20, form.txtFaxCountryCode, form.ran_payee_fax_area, form.ran_payee_faxnumber,
           form.ran_inter_payee_faxnumber, form.imgHelpCSFTInfo[2]);
  const Twips mailWidth = whole ? form.ran_payee_www.place().width : characters(form.ran_payee_email.maxLength());
  right.row(form.lblEmail, {{form.ran_payee_email, mailWidth}})
      .mark(form.lblAsterisk[2])
      .help(form.imgHelpCSFTInfo[3], helpColumn);
  right.row(form.lblWebsite, {form.ran_payee_www});
  right.row(form.lblContact, {form.ran_payee_contact});
  right.row({{form.chkDiscountsApply, 2880}});
  form.lblNotification.setPlace({leftLabels, left.top(), 6000, textHeight});

  Grid kind(leftLabels, leftLabels, blockWithoutHead);
  kind.row({{form.optCBusiness, 1200},
            {form.optCIndividual, 1320},
            {form.lblBN, 2640},
            form.txtBusinessNum,
            {form.chkBNNotAvailable, 1440}});
  kind.mark(form.lblAsterisk[7]).help(form.imgHelpCSFTInfo[4], helpColumn - blockLeft);
  Twips end = std::max(left.bottom(), right.bottom()) + gap;
  form.fraBusinessNum.setPlace({blockLeft, end, blockWidth - 2 * blockLeft, kind.bottom() + gap});
  if (whole) end += gap + (form.fraBusinessNum.visible() ? form.fraBusinessNum.place().height : 0);
  form.Frame3.setPlace({blockLeft, frameHead + headPitch + textHeight + gap, blockWidth, end});
}

/// The bank account, over the row in which it is confirmed.
void arrangeBankAccount(frmRandomInfo& form) {
  struct Column {
    forms::Label& label;
    forms::TextBox& field;
    forms::Label& confirmLabel;
    forms::TextBox& confirmField;
    forms::Label& mark;
    Twips left;
    Twips labelWidth;
    Twips confirmIndent;  // room for the word before the row
  };
  const Column columns[] = {
      {form.lblbankTransit, form.txtTransit, form.lblTransitConf, form.txtTransitConf, form.lblAsterisk[8], leftLabels,
       2040, 840},
      {form.lblbankId, form.txtBankID, form.lblBankIdConf, form.txtBankIDConf, form.lblAsterisk[9], 3480, 1500, 0},
      {form.Label13, form.txtAccount, form.lblAccountConf, form.txtAccountConf, form.lblAsterisk[10], 6000, 2520, 0},
  };
  constexpr Twips confirmTop = frameHead + rowPitch;
  for (const Column& column : columns) {
    const Twips fields = column.left + column.labelWidth;
    Grid(column.left, fields, frameHead).row(column.label, {column.field}).mark(column.mark);
    Grid(column.left + column.confirmIndent, fields, confirmTop).row(column.confirmLabel, {column.confirmField});
  }
  Grid rows(leftLabels, leftLabels, frameHead);
  rows.row({{form.lblbankTransit, form.lblbankTransit.place().width}}).help(form.imgHelpCSFTInfo[5], helpColumn);
  rows.row({{form.lblConfirm, 720}});
  Grid(leftLabels, leftLabels, confirmTop).row({{form.optBusiness, 1200}, {form.optEmployee, 1200}});
  form.lbl_note.setPlace({leftLabels, rows.top(), 9600, textHeight});
  for (forms::Label* label : {&form.lblbkclk, &form.lblbankaccount})
    label->setPlace({leftLabels, confirmTop, 3000, textHeight});
  const Twips end = form.lbl_note.visible() ? form.lbl_note.place().bottom() : rows.bottom();
  form.fraBankAcctInfo.setPlace({blockLeft, 0, blockWidth, end + gap});
}

/// The bank of a biller in the United States.
void arrangeBankInfo(frmRandomInfo& form) {
  Grid bank(leftLabels, leftLabels + 3720, frameHead);
  bank.row(form.lblBankName, {form.txtBankName});
  bank.row(form.lblRoutingNumber, {form.txtRoutingNumber});
  bank.row(form.lblBankAccountNumber, {form.txtBankAccountNumber});
  bank.row(form.lblBankInfoConfirm, {form.txtConfirmBankAccountNumber});
  constexpr Twips details = leftLabels + 1260;
  form.lblDisclaimer.setPlace({leftLabels, bank.top(), 1200, textHeight});
  form.lblDisclaimerDetails.setPlace({details, bank.top(), 9000, 3 * textHeight});
  form.ctHyperLink1.setPlace({details, form.lblDisclaimerDetails.place().bottom(), 4800, textHeight + 30});
  form.fraBankInfo.setPlace({blockLeft, 0, blockWidth, form.ctHyperLink1.place().bottom() + gap});
}

/// Puts what is seen of these, from Frame3 on, below each other, and fits Frame1 around them.
/// @param below room between the last one and the end of Frame1.
void stack(frmRandomInfo& form, std::initializer_list<forms::Control*> blocks, Twips below) {
  Twips top = form.Frame3.place().top;
  forms::Place last;
  for (forms::Control* block : blocks) {
    if (!block->visible()) continue;
    block->move(block->place().left, top);
    last = block->place();
    top = last.bottom() + gap;
  }
  // Where it is hidden, what is measured from it still ends there.
  if (!form.fraBankInfo.visible()) form.fraBankInfo.setPlace({blockLeft, last.top, blockWidth, last.height});
  form.Frame1.setPlace({margin, margin, frameWidth, last.bottom() + below});
}

void putUnderFrame1(frmRandomInfo& form) {
  const Twips bottom = form.Frame1.place().bottom();
  form.Label15.setPlace({margin + blockLeft + leftLabels, bottom + noteUnderFrame, 4200, textHeight});
  const std::pair<forms::Control&, Twips> buttons[] = {
      {form.cmd_cancel, buttonWidth}, {form.cmd_ok, buttonWidth}, {form.cmd_help, buttonWidth}, {form.cmdCheque, 2100}};
  Twips right = margin + frameWidth;
  for (const auto& [button, width] : buttons) {
    button.setPlace({right - width, bottom + gap, width, buttonHeight});
    if (button.visible()) right -= width + gap;
  }
  form.setSize(frameWidth + 2 * margin, form.cmd_ok.place().bottom() + dialogFoot);
}

}  // namespace

void frmRandomInfo::arrange() {
  explainForeignBank();
  arrangeAddress(*this);
  arrangeBankAccount(*this);
  arrangeBankInfo(*this);
  lblFXBankingInfo.setPlace({blockLeft + leftLabels, 0, blockWidth - 2 * leftLabels, 2 * textHeight});
  cmdFXBankingInfo.setPlace({blockLeft + leftLabels, 0, 2700, buttonHeight});
  Label14.setPlace({blockLeft + leftLabels, 0, 9000, textHeight});
  if (domestic()) {
    stack(*this, {&Frame3, &lblFXBankingInfo, &cmdFXBankingInfo, &fraBankAcctInfo, &Label14}, gap);
  } else {
    stack(*this, {&Frame3, &Label14, &cmdFXBankingInfo, &fraBankAcctInfo, &fraBankInfo}, underBankInfo);
  }
  putUnderFrame1(*this);
}

}  // namespace nv
