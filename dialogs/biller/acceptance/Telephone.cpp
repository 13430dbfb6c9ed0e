// The checks of the telephone and fax numbers.
#include "dialogs/biller/acceptance/Acceptance.h"

namespace nv {

using forms::TextBox;

namespace {

constexpr std::size_t areaLength = 3, numberLength = 7;

/// Whether numbers are checked against the North American form. A country held by its three-letter code is exempt.
bool dialsAsNorthAmerica(const frmRandomInfo& form) {
  const std::wstring& country = form.ran_payee_country.text();
  return country == canadaCode || country == unitedStatesCode;
}

/// Area codes and numbers of North America begin with 2 to 9.
bool hasInvalidFirstDigit(const TextBox& field) {
  return field.text().starts_with(L'0') || field.text().starts_with(L'1');
}

bool tooLong(const TextBox& area, const TextBox& number) {
  constexpr std::size_t longest = 14;
  return area.text().size() + number.text().size() > longest;
}

}  // namespace

Verdict frmRandomInfo::Acceptance::checkTelephoneCountryCode() {
  return empty(form_.txtPhoneCountryCode) ? Verdict::stopAt(form_.txtPhoneCountryCode) : Verdict::passed();
}

Verdict frmRandomInfo::Acceptance::checkInternationalTelephone() {
  TextBox& phone = form_.ran_Inter_payee_phone;
  return visibleOrEnabled(phone) && empty(phone) ? Verdict::stopEmptied(phone) : Verdict::passed();
}

Verdict frmRandomInfo::Acceptance::checkNorthAmericanTelephone() {
  if (!dialsAsNorthAmerica(form_)) return Verdict::passed();
  TextBox& area = form_.ran_payee_ph_area;
  TextBox& number = form_.ran_payee_phone;
  if (empty(area)) return Verdict::stopEmptied(area);
  if (area.text().size() != areaLength) return Verdict::stopSelected(area);
  if (visibleOrEnabled(number)) {
    if (empty(number)) return Verdict::stopEmptied(number);
    if (number.text().size() != numberLength) return Verdict::stopSelected(number);
  }
  if (hasInvalidFirstDigit(area)) return Verdict::stopSelected(area);
  if (hasInvalidFirstDigit(number)) return Verdict::stopSelected(number);
  return Verdict::passed();
}

Verdict frmRandomInfo::Acceptance::checkTelephoneLength() {
  if (!tooLong(form_.ran_payee_ph_area, form_.ran_payee_phone)) return Verdict::passed();
  return Verdict::stopAt(form_.ran_payee_ph_area)
      .saying(L"The combined phone area code and phone number cannot exceed 14 digits.");
}

Verdict frmRandomInfo::Acceptance::checkMailOrFax() {
  TextBox& mail = form_.ran_payee_email;
  const bool reachable = !empty(mail) || !empty(form_.ran_payee_fax_area) || !empty(form_.ran_payee_faxnumber);
  if (!form_.domestic() || reachable) return Verdict::passed();
  return Verdict::stopEmptied(mail).saying(mailOrFaxMessage);
}

Verdict frmRandomInfo::Acceptance::checkFax() {
  TextBox& international = form_.ran_inter_payee_faxnumber;
  TextBox& area = form_.ran_payee_fax_area;
  TextBox& number = form_.ran_payee_faxnumber;
  if (visibleOrEnabled(international)) {
    if (!empty(international) && empty(form_.txtFaxCountryCode)) return Verdict::stopAt(form_.txtFaxCountryCode);
  } else if (!empty(area)) {
    if (empty(form_.txtFaxCountryCode)) return Verdict::stopAt(form_.txtFaxCountryCode);
    if (dialsAsNorthAmerica(form_)) {
      if (area.text().size() != areaLength) return Verdict::stopSelected(area);
      if (visibleOrEnabled(number) && empty(number)) return Verdict::stopSelected(number);
      if (hasInvalidFirstDigit(area)) return Verdict::stopSelected(area);
      if (hasInvalidFirstDigit(number)) return Verdict::stopSelected(number);
    }
  }
  if (!empty(number) && number.text().size() != numberLength && dialsAsNorthAmerica(form_)) {
    return Verdict::stopSelected(number);
  }
  if (!visibleOrEnabled(number)) return Verdict::passed();
  if (!empty(number) && empty(area)) return Verdict::stopSelected(area);
  if (!tooLong(area, number)) return Verdict::passed();
  return Verdict::stopAt(area).saying(L"The combined fax area code and fax number cannot exceed 14 digits.");
}

}  // namespace nv
