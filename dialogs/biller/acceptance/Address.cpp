// The checks of the address.
#include <algorithm>

#include "dialogs/biller/ReferenceLists.h"
#include "dialogs/biller/acceptance/Acceptance.h"
#include "dialogs/support/Messages.h"
#include "validation/AddressRules.h"
#include "validation/TextHelpers.h"

namespace nv {

using forms::TextBox;

namespace {

/// A street or a city: filled, not longer than can be typed, with a letter in it.
Verdict checkPlace(Component& component, TextBox& field, const wchar_t* message) {
  const std::wstring_view text = trimmed(field.text());
  if (text.empty()) return Verdict::stopEmptied(field);
  if (field.text().size() > static_cast<std::size_t>(field.maxLength())) return Verdict::stopSelected(field);
  if (Random::IsAlpha(component, text) && text.size() >= 2) return Verdict::passed();
  return Verdict::stopAt(field).saying(message);
}

/// Whether the text matches the form, in which "A" stands for a capital letter and "0" for a digit.
bool hasForm(std::wstring_view text, std::wstring_view form) {
  return std::ranges::equal(text, form,
                            [](wchar_t c, wchar_t kind) { return kind == L'0' ? isDigit(c) : isCapital(c); });
}

}  // namespace

Verdict frmRandomInfo::Acceptance::checkStreet() {
  return checkPlace(component(), form_.ran_payee_street, L"The street you have entered is invalid.");
}

Verdict frmRandomInfo::Acceptance::checkPostOfficeBox() {
  const std::wstring_view currency = textOf(form_.cmbCurrencyCode);
  const bool abroad = !currency.empty() && currency != canadianDollar && store().InternationalPayment != flagFalse;
  if (!abroad && form_.domestic()) return Verdict::passed();
  if (Random::Has_PO_Box_Address(component(), form_.ran_payee_street.text()) == 0) return Verdict::passed();
  return Verdict::stopAt(form_.ran_payee_street).saying(postOfficeBoxMessage);
}

Verdict frmRandomInfo::Acceptance::checkCity() {
  return checkPlace(component(), form_.ran_payee_city, L"The city you have entered is invalid.");
}

Verdict frmRandomInfo::Acceptance::checkCountry() {
  forms::DropDownList& country = form_.ran_payee_country;
  if (!country.reachable()) return Verdict::passed();  // fixed in the United States mode: nobody could mend it
  if (empty(country)) return Verdict::stopAt(country);
  if (country.text().size() != 2) return Verdict::stopSelected(country);
  return Verdict::passed();
}

Verdict frmRandomInfo::Acceptance::checkProvince() {
  forms::ComboBox& province = form_.ran_payee_prov;
  if (!form_.inCanada() && !form_.inUnitedStates()) return Verdict::passed();
  if (empty(province)) {
    province.setListIndex(forms::ComboBox::none);
    return Verdict::stopAt(province);
  }
  if (province.text().size() != 2) return Verdict::stopAt(province);
  const bool known = form_.inCanada()
                         ? Random::lookupProvince(component(), province.text())
                         : std::ranges::find(unitedStatesCodes(), province.text()) != unitedStatesCodes().end();
  return known ? Verdict::passed() : Verdict::stopAt(province);
}

Verdict frmRandomInfo::Acceptance::checkPostalCode() {
  TextBox& postal = form_.ran_payee_postal;
  if (empty(postal)) return Verdict::stopEmptied(postal);
  const std::wstring_view code = textOf(postal);
  bool valid = postal.text().size() <= static_cast<std::size_t>(postal.maxLength());
  if (form_.inCanada()) {
    valid = valid && hasForm(code, L"A0A0A0") &&
            Random::LookupPostcode(component(), form_.ran_payee_prov.text() + code.front());
  } else if (form_.inUnitedStates()) {
    valid = valid && (hasForm(code, L"000000000") || hasForm(code, L"00000"));
  }
  return valid ? Verdict::passed() : Verdict::stopSelected(postal);
}

Verdict frmRandomInfo::Acceptance::checkForeignCurrency() {
  const bool canadian = form_.ran_payee_country.text().starts_with(canadaCode);
  if (canadian || !empty(form_.cmbCurrencyCode)) return Verdict::passed();
  return Verdict::stopAt(form_.cmbCurrencyCode);
}

}  // namespace nv
