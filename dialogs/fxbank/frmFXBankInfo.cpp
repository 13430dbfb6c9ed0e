#include "dialogs/fxbank/frmFXBankInfo.h"

#include <utility>

#include "dialogs/support/ComboBoxAutoComplete.h"
#include "dialogs/support/CountryColumn.h"
#include "dialogs/support/Grid.h"
#include "dialogs/support/PasteGuard.h"
#include "dialogs/support/modFormController.h"
#include "platform/Text.h"
#include "validation/TextHelpers.h"

namespace nv {

namespace {

constexpr const wchar_t* formName = L"frmFXBankInfo";

/// The object name in the labels of some procedures, which hosts' diagnostics have come to know so.
constexpr const wchar_t* billerObject = L"RandomInfo";

constexpr int addressLength = 35;
constexpr int swiftLength = 11;
constexpr int accountLength = 34;
constexpr int routingLength = 9;
constexpr int usAccountLength = 17;

}  // namespace

frmFXBankInfo::frmFXBankInfo(Component& component)
    : ComponentForm(component, formName, formName, forms::Border::dialog),
      FraBankName(*this, L"FraBankName"),
      Label1(FraBankName, L"Label1", L"Bank Name:"),
      txtBankName(FraBankName, L"txtBankName"),
      Label4(FraBankName, L"Label4", L"Bank Street:"),
      txtBankStreet(FraBankName, L"txtBankStreet"),
      Label6(FraBankName, L"Label6", L"Bank City:"),
      txtBankCity(FraBankName, L"txtBankCity"),
      Label8(FraBankName, L"Label8", L"Prov/State:"),
      cmbBankProv(FraBankName, L"cmbBankProv"),
      Label9(FraBankName, L"Label9", L"Country:"),
      cmbBankCountry(FraBankName, L"cmbBankCountry", {{L"Country", 3300}, {L"Code", 750}, {L"Phone", 900}},
                     countryCode),
      fraIntlBanks(*this, L"fraIntlBanks", L"For International Banks:"),
      lblSwiftNumber(fraIntlBanks, L"lblSwiftNumber", L"SWIFT Code:"),
      txtSwiftNumber(fraIntlBanks, L"txtSwiftNumber"),
      lblBankAccount(fraIntlBanks, L"lblBankAccount", L"IBAN# or Bank Account:"),
      txtBankAccount(fraIntlBanks, L"txtBankAccount"),
      lblConfirmInt(fraIntlBanks, L"lblConfirmInt", L"Confirm:"),
      txtSwiftNumberConf(fraIntlBanks, L"txtSwiftNumberConf"),
      txtBankAccountConf(fraIntlBanks, L"txtBankAccountConf"),
      fraUSBanks(*this, L"fraUSBanks", L"For US Banks:"),
      lblUSABA(fraUSBanks, L"lblUSABA", L"ABA Routing:"),
      txtUSABA(fraUSBanks, L"txtUSABA"),
      lblUSBankAccount(fraUSBanks, L"lblUSBankAccount", L"Account:"),
      txtUSBankAccount(fraUSBanks, L"txtUSBankAccount"),
      lblConfirmUS(fraUSBanks, L"lblConfirmUS", L"Confirm:"),
      txtUSABAConf(fraUSBanks, L"txtUSABAConf"),
      txtUSBankAccountConf(fraUSBanks, L"txtUSBankAccountConf"),
      cmd_ok(*this, L"cmd_ok", L"&OK"),
      cmd_cancel(*this, L"cmd_cancel", L"Cancel"),
      international_{fraIntlBanks,   lblSwiftNumber, txtSwiftNumber,     lblBankAccount,
                     txtBankAccount, lblConfirmInt,  txtSwiftNumberConf, txtBankAccountConf},
      unitedStates_{fraUSBanks,       lblUSABA,     txtUSABA,     lblUSBankAccount,
                    txtUSBankAccount, lblConfirmUS, txtUSABAConf, txtUSBankAccountConf} {
  setCaption(L"International Payment Banking Information");
  cmd_cancel.setCancels(true);
  for (forms::StyledButton* button : {&cmd_ok, &cmd_cancel}) button->setFont({.name = L"Tahoma"});
  for (forms::TextField* field :
       {static_cast<forms::TextField*>(&txtBankName), static_cast<forms::TextField*>(&txtBankStreet),
        static_cast<forms::TextField*>(&txtBankCity), static_cast<forms::TextField*>(&cmbBankProv)}) {
    field->setMaxLength(addressLength);
  }
  for (forms::TextBox* box : {&txtSwiftNumber, &txtSwiftNumberConf}) box->setMaxLength(swiftLength);
  for (forms::TextBox* box : {&txtBankAccount, &txtBankAccountConf}) box->setMaxLength(accountLength);
  for (forms::TextBox* box : {&txtUSABA, &txtUSABAConf}) box->setMaxLength(routingLength);
  for (forms::TextBox* box : {&txtUSBankAccount, &txtUSBankAccountConf}) box->setMaxLength(usAccountLength);
  for (Section* section : {&international_, &unitedStates_}) closeConfirmation(*section);
  arrange();
  connect();
}

void frmFXBankInfo::arrange() {
  using namespace design;
  constexpr forms::Twips labels = 120, fields = 2040, width = 7200;
  const auto fit = [](forms::Frame& frame, forms::Twips top, const Grid& grid) {
    frame.setPlace({margin, top, width, grid.bottom() + margin});
  };
  Grid bank(labels, fields, frameHead - 60);
  bank.row(Label1, {{txtBankName, characters(addressLength)}})
      .row(Label4, {{txtBankStreet, characters(addressLength)}})
      .row(Label6, {{txtBankCity, characters(addressLength)}})
      .row(Label8, {{cmbBankProv, 2400}})
      .row(Label9, {{cmbBankCountry, 2400}});
  fit(FraBankName, margin, bank);

  forms::Frame* above = &FraBankName;
  for (Section* section : {&international_, &unitedStates_}) {
    const forms::Twips number = characters(section->number.maxLength()),
                       account = characters(section->account.maxLength());
    Grid grid(labels, fields, frameHead);
    grid.row(section->numberLabel, {{section->number, number}})
        .row(section->accountLabel, {{section->account, account}});
    grid.row(section->confirmLabel, {{section->numberConf, number}}).row({{section->accountConf, account}});
    fit(section->frame, above->place().bottom() + gap, grid);
    above = &section->frame;
  }

  const forms::Twips buttons = above->place().bottom() + margin;
  const forms::Twips right = margin + width;
  cmd_cancel.setPlace({right - buttonWidth, buttons, buttonWidth, buttonHeight});
  cmd_ok.setPlace({right - 2 * buttonWidth - gap, buttons, buttonWidth, buttonHeight});
  setSize(right + margin, buttons + buttonHeight + margin);
}

void frmFXBankInfo::connect() {
  struct TextRule {
    forms::TextBox& box;
    const wchar_t* procedure;
    forms::TextBox& cleansed;
    forms::Control& next;    // gets the focus when the box is full
    bool showsText = false;  // drops its mask when edited, so that the user sees what is being changed
  };
  const TextRule textRules[] = {
      {txtBankName, L"txtBankName_Change", txtBankName, txtBankStreet},
      {txtBankStreet, L"txtBankStreet_Change", txtBankStreet, txtBankCity},
      {txtBankCity, L"txtBankCity_Change", txtBankCity, cmbBankProv},
      {txtSwiftNumber, L"txtSwiftNumber_Change", txtSwiftNumber, txtBankAccount, true},
      {txtBankAccount, L"txtBankAccount_Change", txtBankAccount, cmd_ok, true},
      {txtSwiftNumberConf, L"txtSwiftNumberConf_Change", txtSwiftNumberConf, txtBankAccountConf},
      {txtBankAccountConf, L"txtBankAccountConf_Change", txtBankAccountConf, cmd_ok},
      {txtUSABA, L"txtUSABA_Change", txtUSABA, txtUSBankAccount, true},
      {txtUSBankAccount, L"txtUSBankAccount_Change", txtUSBankAccount, cmd_ok, true},
      {txtUSABAConf, L"txtUSABAConf_Change", txtUSABA, txtUSBankAccountConf},  // the other box is meant
      {txtUSBankAccountConf, L"txtUSBankAccountConf_Change", txtUSBankAccountConf, cmd_ok},
  };
  for (const TextRule& rule : textRules) {
    on(rule.box.change, {formName, rule.procedure}, [this, rule] {
      if (rule.showsText) rule.box.setPasswordChar(0);
      rule.cleansed.setText(
          component().services.machine.upperCase(Random::CleanseCharacters(component(), rule.cleansed.text())));
      const bool full = static_cast<int>(rule.box.text().size()) == rule.box.maxLength();
      if (full && rule.next.available()) rule.next.setFocus();
    });
  }

  // The numbers are to be typed, not pasted.
  struct Guard {
    forms::TextBox& box;
    const wchar_t* keyDown;
    const wchar_t* mouseDown;
    const wchar_t* lostFocus;
  };
  const Guard guards[] = {
      {txtBankAccount, L"txtBankAccount_KeyDown", L"txtBankAccount_MouseDown", L"txtBankAccount_LostFocus"},
      {txtBankAccountConf, L"txtBankAccountConf_KeyDown", L"txtBankAccountConf_MouseDown",
       L"txtBankAccountConf_LostFocus"},
      {txtSwiftNumber, L"txtSwiftNumber_KeyDown", L"txtSwiftNumber_MouseDown", L"txtSwiftNumber_LostFocus"},
      {txtSwiftNumberConf, L"txtSwiftNumberConf_KeyDown", L"txtSwiftNumberConf_MouseDown",
       L"txtSwiftNumberConf_LostFocus"},
      {txtUSABA, L"txtUSABA_KeyDown", L"txtUSABA_MouseDown", L"txtUSABA_LostFocus"},
      {txtUSABAConf, L"txtUSABAConf_KeyDown", L"txtUSABAConf_MouseDown", L"txtUSABAConf_LostFocus"},
      {txtUSBankAccount, L"txtUSBankAccount_KeyDown", L"txtUSBankAccount_MouseDown", L"txtUSBankAccount_LostFocus"},
      {txtUSBankAccountConf, L"txtUSBankAccountConf_KeyDown", L"txtUSBankAccountConf_MouseDown",
       L"txtUSBankAccountConf_LostFocus"},
  };
  for (const Guard& guard : guards) {
    guard.box.setTakesPaste(false);
    on(guard.box.keyDown, {billerObject, guard.keyDown}, [](forms::KeyDown& key) { discardPaste(key); });
    on(guard.box.mouseDown, {billerObject, guard.mouseDown},
       [this](const forms::MouseDown& mouse) { denyPasteMenu(component(), mouse); });
    on(guard.box.lostFocus, {billerObject, guard.lostFocus}, [] {});
  }

  on(cmbBankProv.change, {formName, L"cmbBankProv_Change"}, [this] { cmbBankProv_Change(); });
  on(cmbBankProv.keyPress, {formName, L"cmbBankProv_KeyPress"}, [](wchar_t& key) { refuseAllButCapitals(key); });
  on(cmbBankCountry.keyPress, {formName, L"cmbBankCountry_KeyPress"}, [](wchar_t& key) { refuseAllButCapitals(key); });
  on(cmbBankCountry.lostFocus, {formName, L"cmbBankCountry_LostFocus"}, [this] { cmbBankCountry_LostFocus(); });
  on(cmd_ok.click, {formName, L"cmd_ok_Click"}, [this] { cmd_ok_Click(); });
  on(cmd_cancel.click, {formName, L"cmd_cancel_Click"}, [this] { cmd_cancel_Click(); });
  // Not a procedure of its own: what was typed last decides whether the province is completed.
  cmbBankProv.keyDown = [this](forms::KeyDown& key) { lastKeyInProvince_ = key.code; };
}

void frmFXBankInfo::refuseAllButCapitals(wchar_t& key) {
  if (key != forms::keys::backspace && !isCapital(key)) key = 0;
}

// Opening

void frmFXBankInfo::Form_Load() {
  trace(component(), L"frmFXBankInfo - Form_Load");
  modFormController::reStyleForm(component(), *this);
  openingAccount_ = store().PayeeFXBankAccount;
  openingSwift_ = store().PayeeFXBankSwift;
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
}

frmFXBankInfo::Details frmFXBankInfo::details() const {
  const auto text = [](const forms::TextField& field) { return std::wstring(trimmed(field.text())); };
  return {text(txtBankName),    text(txtBankStreet),  text(txtBankCity), text(cmbBankProv),     text(cmbBankCountry),
          text(txtSwiftNumber), text(txtBankAccount), text(txtUSABA),    text(txtUSBankAccount)};
}

void frmFXBankInfo::showReadOnly() {
  cmd_ok.setVisible(false);
  cmd_cancel.setCaption(L"Close");
  for (forms::Frame* frame : {&FraBankName, &fraIntlBanks, &fraUSBanks}) frame->setEnabled(false);
}

// The sections

void frmFXBankInfo::EnableUSBankDetails() {
  trace(component(), L"frmFXBankInfo - EnableUSBankDetails");
  enable(unitedStates_);
  discard(international_);
}

void frmFXBankInfo::EnableIntlBankDetails() {
  trace(component(), L"frmFXBankInfo - EnableIntlBankDetails");
  enable(international_);
  discard(unitedStates_);
}

void frmFXBankInfo::enable(Section& section) {
  for (forms::Control* control :
       {static_cast<forms::Control*>(&section.frame), static_cast<forms::Control*>(&section.number),
        static_cast<forms::Control*>(&section.account), static_cast<forms::Control*>(&section.numberLabel),
        static_cast<forms::Control*>(&section.accountLabel)}) {
    control->setEnabled(true);
  }
}

/// What was typed in a section that is left is gone, an open confirmation included.
void frmFXBankInfo::discard(Section& section) {
  if (section.confirmLabel.visible()) pendingAccount_.clear();
  section.number.setText({});
  section.account.setText({});
  for (forms::Control* control :
       {static_cast<forms::Control*>(&section.number), static_cast<forms::Control*>(&section.account),
        static_cast<forms::Control*>(&section.numberLabel), static_cast<forms::Control*>(&section.accountLabel),
        static_cast<forms::Control*>(&section.frame)}) {
    control->setEnabled(false);
  }
  closeConfirmation(section);
}

void frmFXBankInfo::closeConfirmation(Section& section) {
  section.confirmLabel.setVisible(false);
  for (forms::TextBox* box : {&section.numberConf, &section.accountConf}) {
    box->setText({});
    box->setEnabled(false);
    box->setVisible(false);
  }
}

void frmFXBankInfo::cmbBankCountry_LostFocus() {
  const forms::Control* const receiver = activeControl();
  if (receiver != nullptr && receiver->name() == L"cmd_cancel") return;
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

void frmFXBankInfo::cmd_cancel_Click() {
  unload();
}

bool frmFXBankInfo::OKClicked() {
  trace(component(), L"frmFXBankInfo - OKClicked");
  return accepted_;
}

}  // namespace nv
