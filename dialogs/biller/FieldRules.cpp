// What each field of the biller dialog does with keys, changes, the focus and pasting: families of event procedures
// that differ in a few values, a table for each.
#include <algorithm>
#include <iterator>

#include "dialogs/biller/Texts.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/support/PasteGuard.h"
#include "platform/Text.h"
#include "validation/AddressRules.h"
#include "validation/BusinessNumber.h"
#include "validation/TextHelpers.h"

namespace nv {

using forms::Control;
using forms::TextBox;
using forms::TextField;

namespace {

constexpr wchar_t pasteKey = 22;  // Control+V as a character
constexpr wchar_t doubleQuote = L'"';

/// What a field makes of a key: the character to go on with, or 0.
enum class Keys {
  digits,
  capitals,           // in upper case
  capitalsAndDigits,  // in upper case
  upperCase,          // any but the double quote
  noQuote,            // any but the double quote, as typed
  contact,            // any but the double quote, a to z in upper case
  accountNumber,      // any but blank, double quote and paste, in upper case
  postal,             // by country and position
};

}  // namespace

void frmRandomInfo::connectFields() {
  connectKeyFilters();
  connectChangeRules();
  connectBankNumbers();
  connectFocusReports();
  connectPasteGuards();
  on(txtBusinessNum.lostFocus, {formName, L"txtBusinessNum_LostFocus"}, [this] { txtBusinessNum_LostFocus(); });
  // These have nothing to do on being left, but are seen in the trace.
  const std::pair<Control&, const wchar_t*> left[] = {{ran_payee_prov, L"ran_payee_prov_LostFocus"},
                                                      {txtAccount, L"txtAccount_LostFocus"},
                                                      {txtBankAccountNumber, L"txtBankAccountNumber_LostFocus"},
                                                      {txtBankID, L"txtBankID_LostFocus"},
                                                      {txtTransit, L"txtTransit_LostFocus"}};
  for (const auto& [field, procedure] : left) on(field.lostFocus, {formName, procedure}, [] {});
}

void frmRandomInfo::moveOn(const Control& field, const std::vector<Control*>& candidates) {
  if (!field.hasFocus()) return;  // what code puts into a field leads nobody away from another
  const std::vector<Control*>& order = controls();
  const auto behind = std::ranges::find(order, &field);
  const auto next = std::find_if(behind, order.end(), [&](Control* control) {
    return control->reachable() && std::ranges::find(candidates, control) != candidates.end();
  });
  if (next != order.end()) (*next)->setFocus();
}

void frmRandomInfo::connectKeyFilters() {
  struct Row {
    TextField& field;
    const wchar_t* procedure;
    Keys keys;
    std::vector<Control*> next;  // where Enter leads: the first of these that is available
  };
  const Row rows[] = {
      {ran_payee_street, L"ran_payee_street_KeyPress", Keys::upperCase, {&ran_payee_city}},
      {ran_payee_city, L"ran_payee_city_KeyPress", Keys::upperCase, {&ran_payee_prov}},
      {ran_payee_prov, L"ran_payee_prov_KeyPress", Keys::capitals, {&ran_payee_postal, &ran_payee_country}},
      {ran_payee_postal,
       L"ran_payee_postal_KeyPress",
       Keys::postal,
       {&ran_payee_ph_area, &ran_payee_country, &cmbCurrencyCode}},
      {ran_payee_ph_area, L"ran_payee_ph_area_KeyPress", Keys::digits, {&ran_payee_phone}},
      {ran_payee_phone, L"ran_payee_phone_KeyPress", Keys::digits, {&ran_payee_fax_area}},
      {ran_payee_fax_area, L"ran_payee_fax_area_KeyPress", Keys::digits, {&ran_payee_faxnumber}},
      {ran_payee_faxnumber, L"ran_payee_faxnumber_KeyPress", Keys::digits, {&ran_payee_email}},
      {txtPhoneCountryCode,
       L"txtPhoneCountryCode_KeyPress",
       Keys::digits,
       {&ran_Inter_payee_phone, &ran_payee_ph_area}},
      {ran_Inter_payee_phone, L"ran_Inter_payee_phone_KeyPress", Keys::digits, {&ran_inter_payee_faxnumber}},
      {txtFaxCountryCode,
       L"txtFaxCountryCode_KeyPress",
       Keys::digits,
       {&ran_inter_payee_faxnumber, &ran_payee_fax_area}},
      {ran_inter_payee_faxnumber, L"ran_inter_payee_faxnumber_KeyPress", Keys::digits, {&ran_payee_email}},
      {ran_payee_email, L"ran_payee_email_KeyPress", Keys::noQuote, {&ran_payee_www, &txtTransit}},
      {ran_payee_www, L"ran_payee_www_KeyPress", Keys::noQuote, {&ran_payee_contact, &chkDiscountsApply}},
      {ran_payee_contact, L"ran_payee_contact_KeyPress", Keys::contact, {&txtBusinessNum, &txtTransit, &txtBankName}},
      {txtBusinessNum, L"txtBusinessNum_KeyPress", Keys::capitalsAndDigits, {&txtTransit}},
      {txtTransit, L"txttransit_KeyPress", Keys::digits, {&txtBankID}},
      {txtBankID, L"txtbankid_KeyPress", Keys::digits, {&txtAccount}},
      {txtAccount, L"txtaccount_KeyPress", Keys::digits, {&cmd_ok}},
      {txtTransitConf, L"txtAccountConf_KeyPress", Keys::digits, {&txtBankIDConf}},  // under the account's name
      {txtBankIDConf, L"txtBankIDConf_KeyPress", Keys::digits, {&txtAccountConf}},
      {txtAccountConf, L"txtAccountConf_KeyPress", Keys::digits, {&cmd_ok}},
      {txtBankAccountNumber, L"txtBankAccountNumber_KeyPress", Keys::accountNumber, {&cmd_ok}},
  };
  for (const Row& row : rows) {
    on(row.field.keyPress, {formName, row.procedure}, [this, row](wchar_t& key) {
      if (key == forms::keys::enter) {
        moveOn(row.field, row.next);
        return;
      }
      if (key == forms::keys::backspace) return;
      const wchar_t upper = component().services.machine.upperCase({&key, 1}).front();
      const auto passIf = [&key](bool passes, wchar_t shaped) { key = passes ? shaped : wchar_t{0}; };
      switch (row.keys) {
        case Keys::digits:
          return passIf(isDigit(key), key);
        case Keys::capitals:
          return passIf(isCapital(upper), upper);
        case Keys::capitalsAndDigits:
          return passIf(isCapital(upper) || isDigit(upper), upper);
        case Keys::upperCase:
          return passIf(key != doubleQuote, upper);
        case Keys::noQuote:
          return passIf(key != doubleQuote, key);
        case Keys::contact:
          return passIf(key != doubleQuote, asciiUpper(key));
        case Keys::accountNumber:
          return passIf(key != L' ' && key != doubleQuote && key != pasteKey, upper);
        case Keys::postal:
          return passIf(fitsPostal(upper), upper);
      }
    });
  }
}

/// Whether a postal code of the country may have the character where the caret is. Canada's alternate letters and
/// digits, those of the United States are digits.
bool frmRandomInfo::fitsPostal(wchar_t key) const {
  constexpr int canadianLength = 6;
  if (inUnitedStates()) return isDigit(key);
  if (!inCanada()) return isCapital(key) || isDigit(key) || key == L' ';
  const int position = ran_payee_postal.selection().start;
  return position < canadianLength && (position % 2 == 0 ? isCapital(key) : isDigit(key));
}

void frmRandomInfo::connectChangeRules() {
  enum class Shape { asTyped, cleansed, upperCase, trimmedUpperCase };
  struct Row {
    TextField& field;
    const wchar_t* procedure;
    Shape shape;
    std::vector<Control*> next;  // where a full field leads: the first of these that is available
    bool dialling = false;       // moves on in the countries that dial as North America does
  };
  const Row rows[] = {
      {ran_payee_street, L"ran_payee_street_Change", Shape::upperCase, {&ran_payee_city}},
      {ran_payee_city, L"ran_payee_city_Change", Shape::upperCase, {&ran_payee_prov}},
      {ran_payee_postal,
       L"ran_payee_postal_Change",
       Shape::upperCase,
       {&ran_payee_ph_area, &ran_payee_country, &cmbCurrencyCode}},
      {ran_payee_contact, L"ran_payee_contact_Change", Shape::upperCase, {&chkDiscountsApply}},
      {ran_payee_email, L"ran_payee_email_Change", Shape::cleansed, {&ran_payee_www}},
      {ran_payee_www, L"ran_payee_www_Change", Shape::cleansed, {&ran_payee_contact}},
      {ran_payee_ph_area, L"ran_payee_ph_area_Change", Shape::asTyped, {&ran_payee_phone}, true},
      {ran_payee_phone, L"ran_payee_phone_Change", Shape::asTyped, {&ran_payee_fax_area}},
      {ran_payee_fax_area, L"ran_payee_fax_area_Change", Shape::asTyped, {&ran_payee_faxnumber}, true},
      {ran_payee_faxnumber, L"ran_payee_faxnumber_Change", Shape::asTyped, {&ran_payee_email}},
      {txtPhoneCountryCode,
       L"txtPhoneCountryCode_Change",
       Shape::asTyped,
       {&ran_Inter_payee_phone, &ran_payee_ph_area}},
      {ran_Inter_payee_phone, L"ran_Inter_payee_phone_Change", Shape::asTyped, {&ran_inter_payee_faxnumber}},
      {txtFaxCountryCode,
       L"txtFaxCountryCode_Change",
       Shape::asTyped,
       {&ran_inter_payee_faxnumber, &ran_payee_fax_area}},
      {ran_inter_payee_faxnumber, L"ran_inter_payee_faxnumber_Change", Shape::asTyped, {&ran_payee_email}},
      {txtBankAccountNumber, L"txtBankAccountNumber_Change", Shape::cleansed, {}},
      {txtTransitConf, L"txtTransitConf_Change", Shape::asTyped, {&txtBankIDConf}},
      {txtBankIDConf, L"txtBankIDConf_Change", Shape::asTyped, {&txtAccountConf}},
      {txtAccountConf, L"txtAccountConf_Change", Shape::asTyped, {&cmd_ok}},
      {txtBusinessNum, L"txtBusinessNum_Change", Shape::trimmedUpperCase, {&txtTransit}},
      {ran_payee_prov, L"ran_payee_prov_Change", Shape::upperCase, {}},
  };
  for (const Row& row : rows) {
    on(row.field.change, {formName, row.procedure}, [this, row] {
      if (row.shape != Shape::asTyped) {
        std::wstring text = Random::CleanseCharacters(component(), row.field.text());
        if (row.shape == Shape::trimmedUpperCase) text = trimmed(text);
        if (row.shape != Shape::cleansed) text = component().services.machine.upperCase(text);
        row.field.setText(std::move(text));
      }
      changed(row.field);
      const bool full = static_cast<int>(row.field.text().size()) == row.field.maxLength();
      if (full && (!row.dialling || inCanada() || inUnitedStates())) moveOn(row.field, row.next);
    });
  }
}

/// What three of the fields do beside shaping their text.
void frmRandomInfo::changed(const TextField& field) {
  if (&field == &ran_payee_prov) {
    chooseKnownProvince();
  } else if (&field == &txtBusinessNum) {
    if (txtBusinessNum.text().empty()) return;
    optCBusiness.setSelected(true);
    chkBNNotAvailable.setChecked(false);  // it is available, then
  } else if (&field == &txtBankAccountNumber) {
    txtBankAccountNumber.setPasswordChar(0);
  }
}

/// A province that the host's text knows is the list's choice, too.
void frmRandomInfo::chooseKnownProvince() {
  const std::wstring& province = ran_payee_prov.text();
  if (province.size() != 2 || !Random::lookupProvince(component(), province)) return;
  const std::vector<std::wstring>& entries = ran_payee_prov.entries();
  const auto found = std::ranges::find(entries, province);
  if (found != entries.end()) ran_payee_prov.setListIndex(static_cast<int>(found - entries.begin()));
}

/// Bank numbers: a corrected one is seen in clear, a full one leads on, and once all are gone so is the re-keying.
void frmRandomInfo::connectBankNumbers() {
  struct Row {
    TextBox& field;
    const wchar_t* procedure;
    Control& next;
  };
  const Row rows[] = {
      {txtTransit, L"txttransit_Change", txtBankID},
      {txtBankID, L"txtBankID_Change", txtAccount},
      {txtAccount, L"txtAccount_Change", cmd_ok},
  };
  for (const Row& row : rows) {
    on(row.field.change, {formName, row.procedure}, [this, row] {
      row.field.setPasswordChar(0);
      const bool full = static_cast<int>(row.field.text().size()) == row.field.maxLength();
      if (full && row.field.hasFocus()) row.next.setFocus();
      if (hasBankNumbers()) return;
      pendingAccount_.clear();
      clearConfirmation();
      showConfirmation(false);
    });
  }
}

bool frmRandomInfo::hasBankNumbers() const {
  return !txtTransit.text().empty() || !txtBankID.text().empty() || !txtAccount.text().empty();
}

void frmRandomInfo::clearConfirmation() {
  for (TextBox* confirmation : {&txtTransitConf, &txtBankIDConf, &txtAccountConf}) confirmation->setText({});
}

void frmRandomInfo::showConfirmation(bool visible) {
  const std::initializer_list<Control*> row = {&lblConfirm,    &lblTransitConf, &txtTransitConf, &lblBankIdConf,
                                               &txtBankIDConf, &lblAccountConf, &txtAccountConf};
  for (Control* control : row) control->setVisible(visible);
}

void frmRandomInfo::connectFocusReports() {
  const std::pair<Control&, const wchar_t*> rows[] = {
      {ran_payee_street, L"ran_payee_street_GotFocus"},
      {ran_payee_city, L"ran_payee_city_GotFocus"},
      {ran_payee_prov, L"ran_payee_prov_GotFocus"},
      {ran_payee_postal, L"ran_payee_postal_GotFocus"},
      {ran_payee_ph_area, L"ran_payee_ph_area_GotFocus"},
      {ran_payee_phone, L"ran_payee_phone_GotFocus"},
      {ran_payee_fax_area, L"ran_payee_fax_area_GotFocus"},
      {ran_payee_faxnumber, L"ran_payee_faxnumber_GotFocus"},
      {ran_payee_email, L"ran_payee_email_GotFocus"},
      {ran_payee_www, L"ran_payee_www_GotFocus"},
      {ran_payee_contact, L"ran_payee_contact_GotFocus"},
      {txtPhoneCountryCode, L"txtPhoneCountryCode_GotFocus"},
      {txtFaxCountryCode, L"txtFaxCountryCode_GotFocus"},
      {ran_Inter_payee_phone, L"ran_Inter_payee_phone_GotFocus"},
      {ran_inter_payee_faxnumber, L"ran_inter_payee_faxnumber_GotFocus"},
      {txtTransit, L"txtTransit_GotFocus"},
      {txtBankID, L"txtBankID_GotFocus"},
      {txtAccount, L"txtAccount_GotFocus"},
  };
  for (const auto& [field, procedure] : rows) {
    on(field.gotFocus, {formName, procedure}, [this, &field = field] { reportTop(field); });
  }
}

void frmRandomInfo::connectPasteGuards() {
  struct Row {
    TextBox& field;
    const wchar_t* keyDown;
    const wchar_t* mouseDown;
  };
  const Row rows[] = {
      {txtBankID, L"txtBankID_KeyDown", L"txtBankID_MouseDown"},
      {txtTransit, L"txtTransit_KeyDown", L"txtTransit_MouseDown"},
      {txtAccount, L"txtAccount_KeyDown", L"txtAccount_MouseDown"},
      {txtTransitConf, L"txtTransitConf_KeyDown", L"txtTransitConf_MouseDown"},
      {txtBankIDConf, L"txtBankIDConf_KeyDown", L"txtBankIDConf_MouseDown"},
      {txtAccountConf, L"txtAccountConf_KeyDown", L"txtAccountConf_MouseDown"},
      {txtBankAccountNumber, L"txtBankAccountNumber_KeyDown", L"txtBankAccountNumber_MouseDown"},
      {txtConfirmBankAccountNumber, L"txtConfirmBankAccountNumber_KeyDown", L"txtConfirmBankAccountNumber_MouseDown"},
      {txtRoutingNumber, L"txtRoutingNumber_KeyDown", L"txtRoutingNumber_MouseDown"},
  };
  for (const Row& row : rows) {
    row.field.setTakesPaste(false);
    on(row.field.keyDown, {formName, row.keyDown}, [](forms::KeyDown& key) { discardPaste(key); });
    on(row.field.mouseDown, {formName, row.mouseDown},
       [this](const forms::MouseDown& mouse) { denyPasteMenu(component(), mouse); });
  }
  on(ran_payee_email.mouseDown, {formName, L"ran_payee_email_MouseDown"},
     [this](const forms::MouseDown& mouse) { denyPasteMenu(component(), mouse); });
}

void frmRandomInfo::txtBusinessNum_LostFocus() {
  const Control* const receiver = activeControl();
  if (receiver == &cmd_cancel || receiver == &chkBNNotAvailable || receiver == &optCIndividual) return;
  if (txtBusinessNum.text().empty()) return;
  const Busy busy(*this);
  if (Random::VerifyBusinessNumber(component(), txtBusinessNum.text())) return;
  txtBusinessNum.selectAll();
  txtBusinessNum.setFocus();
}

}  // namespace nv
