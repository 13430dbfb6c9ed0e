#include "dialogs/fxbank/frmFXBankInfo.h"

#include <utility>

#include "dialogs/support/ComboBoxAutoComplete.h"
#include "dialogs/support/Grid.h"
#include "dialogs/support/modFormController.h"
#include "platform/Text.h"
#include "validation/TextHelpers.h"

namespace nv {

namespace {

constexpr const wchar_t* formName = L"frmFXBankInfo";

/// The form that the guards' procedures are reported under, as hosts' diagnostics have come to know them.
constexpr const wchar_t* billerForm = L"RandomInfo";

}  // namespace

frmFXBankInfo::frmFXBankInfo(Component& component, bool domestic)
    : FieldForm(component, formName, formName, forms::Border::dialog), domestic_(domestic) {
  setCaption(L"International Payment Banking Information");
  cmd_cancel.setCancels(true);
  for (forms::StyledButton* button : {&cmd_ok, &cmd_cancel}) button->setFont({.name = L"Tahoma"});
  for (Section* section : {&international_, &unitedStates_}) closeConfirmation(*section);
  connectFields(rows());
  onClick(cmd_ok, [this] { cmd_ok_Click(); });
  onClick(cmd_cancel, [this] { unload(); });
  // Not traced: it only notes the key, which decides whether the province is completed.
  cmbBankProv.keyDown = [this](forms::KeyDown& key) { lastKeyInProvince_ = key.code; };
  rearrange();
}

void frmFXBankInfo::arrange() {
  using namespace design;
  constexpr forms::Twips labels = 120, fields = 2040, width = 7200;
  const auto fit = [](forms::Frame& frame, forms::Twips top, const Grid& grid) {
    frame.setPlace({margin, top, width, grid.bottom() + margin});
  };
  Grid bank(labels, fields, frameHead - 60);
  bank.row(Label1, {txtBankName})
      .row(Label4, {txtBankStreet})
      .row(Label6, {txtBankCity})
      .row(Label8, {cmbBankProv})
      .row(Label9, {cmbBankCountry});
  fit(FraBankName, margin, bank);

  forms::Frame* above = &FraBankName;
  for (Section* section : {&international_, &unitedStates_}) {
    Grid grid(labels, fields, frameHead);
    grid.row(section->numberLabel, {section->number}).row(section->accountLabel, {section->account});
    grid.row(section->confirmLabel, {section->numberConf}).row({section->accountConf});
    fit(section->frame, above->place().bottom() + gap, grid);
    if (section->frame.visible()) above = &section->frame;
  }

  const forms::Twips buttons = above->place().bottom() + margin;
  const forms::Twips right = margin + width;
  cmd_cancel.setPlace({right - buttonWidth, buttons, buttonWidth, buttonHeight});
  cmd_ok.setPlace({right - 2 * buttonWidth - gap, buttons, buttonWidth, buttonHeight});
  setSize(right + margin, buttons + buttonHeight + margin);
}

std::vector<Field> frmFXBankInfo::rows() {
  constexpr int addressLength = 35, swiftLength = 11, accountLength = 34, routingLength = 9, usAccountLength = 17;
  /// A field of text that is shaped to capitals and leads on when it is full.
  const auto text = [](forms::TextField& field, int length, forms::Control& next) {
    return Field{.field = field, .length = length, .next = {&next}, .shape = Shape::upperCase};
  };
  /// A number is to be typed, not pasted.
  const auto number = [&text](forms::TextBox& field, int length, forms::Control& next) {
    Field row = text(field, length, next);
    row.unmasks = true;
    row.whenLeft = onlyTraced;
    row.paste = Paste::refused;
    row.guardsOf = billerForm;
    return row;
  };
  const auto confirmation = [&number](forms::TextBox& field, int length, forms::Control& next,
                                      const forms::Control& confirmed) {
    Field row = number(field, length, next);
    row.unmasks = false;
    row.confirms = &confirmed;
    return row;
  };
  Field routingConfirmation = confirmation(txtUSABAConf, routingLength, txtUSBankAccountConf, txtUSABA);
  routingConfirmation.shapedInstead = &txtUSABA;  // not its own text: kept as hosts know it
  return {
      text(txtBankName, addressLength, txtBankStreet),
      text(txtBankStreet, addressLength, txtBankCity),
      text(txtBankCity, addressLength, cmbBankProv),
      {.field = cmbBankProv,
       .length = addressLength,
       .width = 2400,
       .keys = isCapital,
       .shape = Shape::asTyped,
       .changed = [this] { cmbBankProv_Change(); }},
      {.field = cmbBankCountry, .width = 2400, .keys = isCapital, .whenLeft = [this] { cmbBankCountry_LostFocus(); }},
      number(txtSwiftNumber, swiftLength, txtBankAccount),
      number(txtBankAccount, accountLength, cmd_ok),
      confirmation(txtSwiftNumberConf, swiftLength, txtBankAccountConf, txtSwiftNumber),
      confirmation(txtBankAccountConf, accountLength, cmd_ok, txtBankAccount),
      number(txtUSABA, routingLength, txtUSBankAccount),
      number(txtUSBankAccount, usAccountLength, cmd_ok),
      std::move(routingConfirmation),
      confirmation(txtUSBankAccountConf, usAccountLength, cmd_ok, txtUSBankAccount),
  };
}

// Opening

void frmFXBankInfo::Form_Load() {
  trace(component(), L"frmFXBankInfo - Form_Load");
  modFormController::reStyleForm(component(), *this);
}

void frmFXBankInfo::fill(const Details& details, const std::vector<std::wstring>& provinces,
                         const forms::RowTable& countries) {
  for (const std::wstring& province : provinces) cmbBankProv.add(province);
  cmbBankCountry.setRows(countries);
  cmbBankCountry.setText(details.country);
  cmbBankCountry.selectWhere(countryCode, details.country);
  if (inUnitedStates()) {
    EnableUSBankDetails();
  } else {
    EnableIntlBankDetails();
  }
  txtBankName.setText(details.name);
  txtBankStreet.setText(details.street);
  txtBankCity.setText(details.city);
  cmbBankProv.setText(details.province);
  txtSwiftNumber.setText(details.swift);
  txtBankAccount.setText(details.account);
  txtUSABA.setText(details.routing);
  txtUSBankAccount.setText(details.usAccount);
  for (Section* section : {&international_, &unitedStates_}) {
    section->openingNumber = trimmed(section->number.text());
    section->openingAccount = trimmed(section->account.text());
  }
}

frmFXBankInfo::Details frmFXBankInfo::details() const {
  const auto text = [](const forms::TextField& field) { return std::wstring(trimmed(field.text())); };
  return {text(txtBankName),    text(txtBankStreet),  text(txtBankCity), text(cmbBankProv),     text(cmbBankCountry),
          text(txtSwiftNumber), text(txtBankAccount), text(txtUSABA),    text(txtUSBankAccount)};
}

void frmFXBankInfo::showReadOnly() {
  setForReading();
  cmd_ok.setVisible(false);
  cmd_cancel.setCaption(L"Close");
  (inUnitedStates() ? fraIntlBanks : fraUSBanks).setVisible(false);  // there is nothing in it
  for (forms::Frame* frame : {&FraBankName, &fraIntlBanks, &fraUSBanks}) frame->setEnabled(false);
  rearrange();
}

// The sections

void frmFXBankInfo::EnableUSBankDetails() {
  trace(component(), L"frmFXBankInfo - EnableUSBankDetails");
  setEnabled(unitedStates_, true);
  discard(international_);
}

void frmFXBankInfo::EnableIntlBankDetails() {
  trace(component(), L"frmFXBankInfo - EnableIntlBankDetails");
  setEnabled(international_, true);
  discard(unitedStates_);
}

void frmFXBankInfo::setEnabled(Section& section, bool enabled) {
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &section.frame, &section.numberLabel, &section.number, &section.accountLabel, &section.account}) {
    control->setEnabled(enabled);
  }
}

/// Empties and closes the section that is left, its open confirmation included.
void frmFXBankInfo::discard(Section& section) {
  if (section.confirmLabel.visible()) confirming_ = false;
  section.number.setText({});
  section.account.setText({});
  setEnabled(section, false);
  closeConfirmation(section);
}

void frmFXBankInfo::closeConfirmation(Section& section) {
  section.confirmLabel.setVisible(false);
  for (forms::TextBox* box : {&section.numberConf, &section.accountConf}) {
    box->setText({});
    box->setEnabled(false);
    box->setVisible(false);
  }
  rearrange();
}

void frmFXBankInfo::cmbBankCountry_LostFocus() {
  if (leavesToCancel()) return;
  if (const auto row = cmbBankCountry.selectedRow()) {
    cmbBankCountry.setText(std::wstring(cmbBankCountry.cell(*row, countryCode)));
  }
  if (inUnitedStates()) {
    EnableUSBankDetails();
    txtUSABA.setFocus();
  } else {
    EnableIntlBankDetails();
    txtSwiftNumber.setFocus();
  }
}

void frmFXBankInfo::cmbBankProv_Change() {
  const std::wstring& country = cmbBankCountry.text();
  if (country != L"CAN" && country != L"CA") return;
  cmbBankProv.setText(component().services.machine.upperCase(cmbBankProv.text()));
  // Once for each key: what is completed, or set by code, is not completed again.
  const int key = std::exchange(lastKeyInProvince_, 0);
  const bool typed = key != 0 && key != forms::keys::backspace && key != forms::keys::del;
  if (typed && !cmbBankProv.text().empty()) Random::ComboBoxAutoComplete(component(), cmbBankProv);
}

// The way out

bool frmFXBankInfo::OKClicked() {
  trace(component(), L"frmFXBankInfo - OKClicked");
  return accepted_;
}

}  // namespace nv
