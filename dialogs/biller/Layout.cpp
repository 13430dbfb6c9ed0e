// Where the biller dialog's controls stand: two columns of fields, the biller kind, the bank block. The rows are the
// same in every mode; a mode stacks the blocks that it shows.
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

}  // namespace

void frmRandomInfo::arrange() {
  arrangeAddress();
  arrangeBankAccount();
  arrangeBankInfo();
  lblFXBankingInfo.setPlace({blockLeft + leftLabels, 0, blockWidth - 2 * leftLabels, 2 * textHeight});
  cmdFXBankingInfo.setPlace({blockLeft + leftLabels, 0, 2700, buttonHeight});
  Label14.setPlace({blockLeft + leftLabels, 0, 9000, textHeight});
  Label15.setPlace({margin + blockLeft + leftLabels, 0, 4200, textHeight});
  const std::pair<forms::Control&, Twips> buttons[] = {
      {cmd_cancel, buttonWidth}, {cmd_ok, buttonWidth}, {cmd_help, buttonWidth}, {cmdCheque, 2100}};
  Twips rightEdge = margin + frameWidth;
  for (const auto& [button, width] : buttons) {
    button.setPlace({rightEdge - width, 0, width, buttonHeight});
    rightEdge -= width + gap;
  }
  arrangeBusiness();
}

/// Name and account, and the two columns of the address block over the kind of biller.
void frmRandomInfo::arrangeAddress() {
  constexpr Twips headFields = blockLeft + 2100, headPitch = 285;
  Label1.setPlace({blockLeft + leftLabels, frameHead, 1800, textHeight});
  ran_payee_name.setPlace({headFields, frameHead, 6000, textHeight});
  imgHelpCSFTInfo[0].setPlace({blockLeft + helpColumn, frameHead - 15, iconSize, iconSize});
  Label2.setPlace({blockLeft + leftLabels, frameHead + headPitch, 1800, textHeight});
  ran_payee_account.setPlace({headFields, frameHead + headPitch, 6000, textHeight});

  Label3.setPlace({leftLabels, blockWithoutHead + 15, 9000, textHeight});
  constexpr Twips firstRow = blockWithoutHead + textHeight + gap;
  Grid left(leftLabels, leftFields, firstRow);
  left.row(lblStreet, {{ran_payee_street, 4020}}).mark(lblAsterisk[0]);
  left.row(lblCity, {{ran_payee_city, characters(20)}}).mark(lblAsterisk[1]);
  left.row(lblProvince, {{ran_payee_prov, 900}}).mark(lblAsterisk[3]);
  left.row(lblCountry, {{ran_payee_country, 1200}}).mark(lblAsterisk[5]);
  left.row(lblPostalCode, {{ran_payee_postal, characters(9)}}).mark(lblAsterisk[4]);
  left.row(lblCurrency, {{cmbCurrencyCode, 1200}});

  Grid right(rightLabels, rightFields, firstRow);
  const auto phoneRow = [&right](forms::Label& label, forms::Label& plus, forms::TextBox& country, forms::TextBox& area,
                                 forms::TextBox& number, forms::TextBox& international, forms::Image& help) {
    const Twips top = right.top();
    right.row(label, {{plus, 105}, {country, characters(4)}, {area, characters(3)}, {number, characters(7)}});
    international.setPlace({area.place().left, top, characters(15), fieldHeight});
    help.setPlace({helpColumn, top + (fieldHeight - iconSize) / 2, iconSize, iconSize});
  };
  phoneRow(lblPhoneNo, Label19, txtPhoneCountryCode, ran_payee_ph_area, ran_payee_phone, ran_Inter_payee_phone,
           imgHelpCSFTInfo[1]);
  right.mark(lblAsterisk[6]);
  phoneRow(lblFax, Label20, txtFaxCountryCode, ran_payee_fax_area, ran_payee_faxnumber, ran_inter_payee_faxnumber,
           imgHelpCSFTInfo[2]);
  right.row(lblEmail, {{ran_payee_email, 2880}}).mark(lblAsterisk[2]).help(imgHelpCSFTInfo[3]);
  right.row(lblWebsite, {{ran_payee_www, 2880}});
  right.row(lblContact, {{ran_payee_contact, 2880}});
  right.row({{chkDiscountsApply, 2880}});
  lblNotification.setPlace({leftLabels, left.top(), 6000, textHeight});

  constexpr Twips kindLeft = leftLabels - blockLeft;  // in line with the labels above
  Grid kind(kindLeft, kindLeft, blockWithoutHead);
  kind.row({{optCBusiness, 1200},
            {optCIndividual, 1320},
            {lblBN, 2640},
            {txtBusinessNum, characters(15)},
            {chkBNNotAvailable, 1440}});
  kind.mark(lblAsterisk[7]).help(imgHelpCSFTInfo[4]);
  fraBusinessNum.setPlace({blockLeft, left.bottom() + gap, blockWidth - 2 * blockLeft, kind.bottom() + gap});
  Frame3.setPlace(
      {blockLeft, frameHead + headPitch + textHeight + gap, blockWidth, fraBusinessNum.place().bottom() + gap});
}

/// The bank account, over the row in which it is confirmed.
void frmRandomInfo::arrangeBankAccount() {
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
      {lblbankTransit, txtTransit, lblTransitConf, txtTransitConf, lblAsterisk[8], leftLabels, 2040, 840},
      {lblbankId, txtBankID, lblBankIdConf, txtBankIDConf, lblAsterisk[9], 3480, 1500, 0},
      {Label13, txtAccount, lblAccountConf, txtAccountConf, lblAsterisk[10], 6000, 2520, 0},
  };
  constexpr Twips confirmTop = frameHead + rowPitch;
  for (const Column& column : columns) {
    const Twips width = characters(column.field.maxLength());
    const Twips fields = column.left + column.labelWidth;
    Grid(column.left, fields, frameHead).row(column.label, {{column.field, width}}).mark(column.mark);
    Grid(column.left + column.confirmIndent, fields, confirmTop)
        .row(column.confirmLabel, {{column.confirmField, width}});
  }
  imgHelpCSFTInfo[5].setPlace(
      {txtAccount.place().right() + 60, frameHead + (fieldHeight - iconSize) / 2, iconSize, iconSize});
  lblConfirm.setPlace(besideField(leftLabels, confirmTop, 720));
  Grid(leftLabels, leftLabels, confirmTop).row({{optBusiness, 1200}, {optEmployee, 1200}});
  lbl_note.setPlace({leftLabels, confirmTop + rowPitch, 9600, textHeight});
  for (forms::Label* label : {&lblbkclk, &lblbankaccount}) label->setPlace({leftLabels, confirmTop, 3000, textHeight});
  fraBankAcctInfo.setPlace({blockLeft, 0, blockWidth, lbl_note.place().bottom() + gap});
}

/// The bank of a biller in the United States.
void frmRandomInfo::arrangeBankInfo() {
  Grid bank(leftLabels, leftLabels + 3720, frameHead);
  bank.row(lblBankName, {{txtBankName, characters(35)}});
  bank.row(lblRoutingNumber, {{txtRoutingNumber, characters(9)}});
  bank.row(lblBankAccountNumber, {{txtBankAccountNumber, characters(17)}});
  bank.row(lblBankInfoConfirm, {{txtConfirmBankAccountNumber, characters(17)}});
  constexpr Twips details = leftLabels + 1260;
  lblDisclaimer.setPlace({leftLabels, bank.top(), 1200, textHeight});
  lblDisclaimerDetails.setPlace({details, bank.top(), 9000, 3 * textHeight});
  ctHyperLink1.setPlace({details, lblDisclaimerDetails.place().bottom(), 4800, textHeight + 30});
  fraBankInfo.setPlace({blockLeft, 0, blockWidth, ctHyperLink1.place().bottom() + gap});
}

/// Puts the blocks of Frame1 below each other, from Frame3 on; the bank blocks share one place.
/// @param below room between the last block and the end of Frame1.
void frmRandomInfo::stack(std::initializer_list<forms::Control*> blocks, Twips below) {
  Twips top = Frame3.place().top;
  Twips bottom = top;
  for (forms::Control* block : blocks) {
    block->move(block->place().left, top);
    bottom = block->place().bottom();
    top = bottom + gap;
  }
  Frame1.setPlace({margin, margin, frameWidth, bottom + below});
}

void frmRandomInfo::arrangeBusiness() {
  stack({&Frame3, &lblFXBankingInfo, &fraBankAcctInfo, &Label14}, gap);
  cmdFXBankingInfo.move(cmdFXBankingInfo.place().left, fraBankAcctInfo.place().top);
  putUnderFrame1();
}

void frmRandomInfo::arrangeUnitedStates() {
  Frame3.setPlace({Frame3.place().left, Frame3.place().top, blockWidth, frame3Height_ - fraBusinessNum.place().height});
  // Without banking details to enter the dialog is no taller than what it shows.
  if (!fraBankInfo.visible()) {
    fraBankInfo.setPlace({blockLeft, 0, blockWidth, fraBankAcctInfo.place().height});
  }
  stack({&Frame3, &Label14, &fraBankInfo}, underBankInfo);
  fraBankAcctInfo.move(blockLeft, fraBankInfo.place().top);
  cmdFXBankingInfo.move(cmdFXBankingInfo.place().left, fraBankInfo.place().top);
  putUnderFrame1();
}

void frmRandomInfo::arrangeIndividual() {
  Grid grid(leftLabels, individualFields, blockWithoutHead);
  grid.row(lblEmail, {{ran_payee_email, characters(50)}}).mark(lblAsterisk[2]).help(imgHelpCSFTInfo[3]);
  Frame3.setPlace({blockLeft, Frame3.place().top, blockWidth, grid.bottom() + gap});
  stack({&Frame3, &fraBankAcctInfo, &Label14}, gap);
  putUnderFrame1();
}

void frmRandomInfo::putUnderFrame1() {
  const Twips bottom = Frame1.place().bottom();
  Label15.move(Label15.place().left, bottom + noteUnderFrame);
  for (forms::Control* button : {&cmdCheque, &cmd_help, &cmd_ok, &cmd_cancel}) {
    button->move(button->place().left, bottom + gap);
  }
  setSize(frameWidth + 2 * margin, cmd_ok.place().top + cmd_ok.place().height + dialogFoot);
}

}  // namespace nv
