// What is known of each field of the biller dialog: one row, in the order in which a person fills them.
#include "dialogs/biller/frmRandomInfo.h"

namespace nv {

std::vector<Field> frmRandomInfo::rows() {
  const auto northAmerica = [this] { return inCanada() || inUnitedStates(); };
  // A row is to be seen as one.
  // clang-format off
  return {
      // Address
      {.field = ran_payee_street, .length = 60, .width = 4020, .keys = anyCharacter, .typedAs = Case::upper,
       .next = {&ran_payee_city}, .shape = Shape::upperCase, .reportsTop = true, .record = &Store::PayeeStreet,
       .mark = &lblAsterisk[0]},
      {.field = ran_payee_city, .length = 20, .keys = anyCharacter, .typedAs = Case::upper, .next = {&ran_payee_prov},
       .shape = Shape::upperCase, .reportsTop = true, .record = &Store::PayeeCity, .mark = &lblAsterisk[1]},
      {.field = ran_payee_prov, .length = 2, .width = 900, .keys = isCapital, .typedAs = Case::upper,
       .next = {&ran_payee_country, &ran_payee_postal}, .whenFull = Field::Leads{}, .shape = Shape::upperCase,
       .changed = [this] { chooseKnownProvince(); }, .reportsTop = true, .whenLeft = onlyTraced,
       .record = &Store::PayeeProv, .show = [this] { selectProvince(); }, .mark = &lblAsterisk[3]},
      {.field = ran_payee_country, .width = 1200, .keys = isCapital, .typedAs = Case::asciiUpper,
       .next = {&ran_payee_postal}, .reportsTop = true, .whenLeft = [this] { ran_payee_country_LostFocus(); },
       .record = &Store::PayeeCountry, .show = [this] { selectCountry(); }, .mark = &lblAsterisk[5]},
      {.field = ran_payee_postal, .length = 9, .keys = [this](wchar_t key) { return fitsPostal(key); },
       .typedAs = Case::upper, .next = {&cmbCurrencyCode, &ran_payee_ph_area}, .shape = Shape::upperCase,
       .reportsTop = true, .record = &Store::PayeePostal, .mark = &lblAsterisk[4]},
      {.field = cmbCurrencyCode, .width = 1200, .keys = isCapital, .typedAs = Case::asciiUpper,
       .next = {&ran_payee_ph_area, &ran_Inter_payee_phone}, .whenLeft = [this] { cmbCurrencyCode_LostFocus(); },
       .record = &Store::PayeeCurrency, .show = [this] { selectCurrency(); }},

      // Telephone and fax: of either form of numbers one is enabled
      {.field = txtPhoneCountryCode, .length = 4, .keys = isDigit, .next = {&ran_payee_ph_area, &ran_Inter_payee_phone},
       .shape = Shape::asTyped, .reportsTop = true, .record = &Store::PayeePhoneCountryCode, .whenEmpty = L"1",
       .part = L" country code", .mark = &lblAsterisk[6]},
      {.field = ran_payee_ph_area, .length = 3, .keys = isDigit, .next = {&ran_payee_phone},
       .leadsWhenFull = northAmerica, .shape = Shape::asTyped, .reportsTop = true, .record = &Store::PayeePhoneArea,
       .onlyWhileEnabled = true, .part = L" area code", .mark = &lblAsterisk[6]},
      {.field = ran_payee_phone, .length = 7, .keys = isDigit, .next = {&ran_payee_fax_area}, .shape = Shape::asTyped,
       .reportsTop = true, .record = &Store::PayeePhoneNumber, .onlyWhileEnabled = true, .part = L" number",
       .mark = &lblAsterisk[6]},
      {.field = ran_Inter_payee_phone, .length = 15, .keys = isDigit, .next = {&ran_inter_payee_faxnumber},
       .shape = Shape::asTyped, .reportsTop = true, .record = &Store::PayeeFXPhoneNumber, .onlyWhileEnabled = true,
       .part = L" number", .mark = &lblAsterisk[6]},
      {.field = txtFaxCountryCode, .length = 4, .keys = isDigit,
       .next = {&ran_payee_fax_area, &ran_inter_payee_faxnumber}, .shape = Shape::asTyped, .reportsTop = true,
       .record = &Store::PayeeFaxCountryCode, .whenEmpty = L"1", .part = L" country code"},
      {.field = ran_payee_fax_area, .length = 3, .keys = isDigit, .next = {&ran_payee_faxnumber},
       .leadsWhenFull = northAmerica, .shape = Shape::asTyped, .reportsTop = true, .record = &Store::PayeeFaxArea,
       .onlyWhileEnabled = true, .part = L" area code"},
      {.field = ran_payee_faxnumber, .length = 7, .keys = isDigit, .next = {&ran_payee_email}, .shape = Shape::asTyped,
       .reportsTop = true, .record = &Store::PayeeFaxNumber, .onlyWhileEnabled = true, .part = L" number"},
      {.field = ran_inter_payee_faxnumber, .length = 15, .keys = isDigit, .next = {&ran_payee_email},
       .shape = Shape::asTyped, .reportsTop = true, .record = &Store::PayeeFXFaxNumber, .onlyWhileEnabled = true,
       .part = L" number"},

      // Details
      {.field = ran_payee_email, .length = 50, .width = 2880, .keys = anyCharacter,
       .next = {&ran_payee_www, &txtTransit}, .whenFull = Field::Leads{&ran_payee_www}, .shape = Shape::cleansed,
       .reportsTop = true, .paste = Paste::notByMenu, .record = &Store::PayeeEmail, .mark = &lblAsterisk[2]},
      {.field = ran_payee_www, .length = 50, .width = 2880, .keys = anyCharacter,
       .next = {&ran_payee_contact, &chkDiscountsApply}, .whenFull = Field::Leads{&ran_payee_contact},
       .shape = Shape::cleansed, .reportsTop = true, .record = &Store::PayeeWeb},
      {.field = ran_payee_contact, .length = 40, .width = 2880, .keys = anyCharacter, .typedAs = Case::asciiUpper,
       .next = {&txtBusinessNum, &txtTransit, &txtBankName}, .whenFull = Field::Leads{&chkDiscountsApply},
       .shape = Shape::upperCase, .reportsTop = true, .record = &Store::PayeeContactName},
      {.field = chkDiscountsApply, .keys = anyCharacter, .next = {&ran_payee_contact}},

      // The kind of biller
      {.field = optCBusiness, .reportsTop = true},
      {.field = optCIndividual, .reportsTop = true},
      {.field = txtBusinessNum, .length = 15, .keys = isCapitalOrDigit, .typedAs = Case::upper, .next = {&txtTransit},
       .shape = Shape::trimmedUpperCase, .changed = [this] { txtBusinessNum_Change(); },
       .whenLeft = [this] { txtBusinessNum_LostFocus(); }, .record = &Store::PayeeBusinessNum,
       .value = [this] { return businessNumberToStore(); }, .mark = &lblAsterisk[7]},
      {.field = chkBNNotAvailable, .keys = anyCharacter, .next = {&txtTransit}, .reportsTop = true},

      // The bank account in Canada
      {.field = optBusiness, .keys = anyCharacter, .next = {&txtTransit, &cmd_ok}},
      {.field = optEmployee, .keys = anyCharacter, .next = {&txtTransit}},
      {.field = txtTransit, .length = 5, .keys = isDigit, .next = {&txtBankID}, .shape = Shape::asTyped,
       .unmasks = true, .changed = [this] { bankNumberChanged(); }, .reportsTop = true, .whenLeft = onlyTraced,
       .paste = Paste::refused, .record = &Store::PayeeBankTransit, .mark = &lblAsterisk[8],
       .keyPressAs = L"txttransit", .changeAs = L"txttransit"},
      {.field = txtBankID, .length = 3, .keys = isDigit, .next = {&txtAccount}, .shape = Shape::asTyped,
       .unmasks = true, .changed = [this] { bankNumberChanged(); }, .reportsTop = true, .whenLeft = onlyTraced,
       .paste = Paste::refused, .record = &Store::PayeeBankId, .mark = &lblAsterisk[9], .keyPressAs = L"txtbankid"},
      {.field = txtAccount, .length = 12, .keys = isDigit, .next = {&cmd_ok}, .shape = Shape::asTyped, .unmasks = true,
       .changed = [this] { bankNumberChanged(); }, .reportsTop = true, .whenLeft = onlyTraced, .paste = Paste::refused,
       .record = &Store::PayeeBankAccount, .mark = &lblAsterisk[10], .keyPressAs = L"txtaccount"},
      {.field = txtTransitConf, .length = 5, .keys = isDigit, .next = {&txtBankIDConf}, .shape = Shape::asTyped,
       .paste = Paste::refused, .confirms = &txtTransit, .keyPressAs = L"txtAccountConf"},
      {.field = txtBankIDConf, .length = 3, .keys = isDigit, .next = {&txtAccountConf}, .shape = Shape::asTyped,
       .paste = Paste::refused, .confirms = &txtBankID},
      {.field = txtAccountConf, .length = 12, .keys = isDigit, .next = {&cmd_ok}, .shape = Shape::asTyped,
       .paste = Paste::refused, .confirms = &txtAccount},

      // The bank in the United States
      {.field = txtBankName, .length = 35},
      {.field = txtRoutingNumber, .length = 9, .paste = Paste::refused},
      {.field = txtBankAccountNumber, .length = 17, .keys = isAccountCharacter, .typedAs = Case::upper,
       .next = {&cmd_ok}, .whenFull = Field::Leads{}, .shape = Shape::cleansed, .unmasks = true, .whenLeft = onlyTraced,
       .paste = Paste::refused},
      {.field = txtConfirmBankAccountNumber, .length = 17, .keys = isAccountCharacter, .typedAs = Case::upper,
       .next = {&cmd_ok}, .whenFull = Field::Leads{}, .shape = Shape::cleansed, .paste = Paste::refused,
       .confirms = &txtBankAccountNumber},
  };
  // clang-format on
}

}  // namespace nv
