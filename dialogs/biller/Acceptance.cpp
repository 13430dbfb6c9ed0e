// What the biller dialog does when the user presses OK: a chain of checks, the first of which that is not content ends
// the attempt and leaves the dialog open; then the record.
#include <algorithm>
#include <vector>

#include "dialogs/biller/ForeignAccount.h"
#include "dialogs/biller/ReferenceLists.h"
#include "dialogs/biller/Texts.h"
#include "dialogs/biller/frmRandomInfo.h"
#include "dialogs/support/Messages.h"
#include "platform/HostInstallation.h"
#include "platform/Text.h"
#include "validation/Random.h"

namespace nv {

using forms::Control;
using forms::TextBox;
using forms::TextField;
using platform::MessageBoxes;

namespace {

constexpr wchar_t mask = L'*';

constexpr const wchar_t* mailCaption = L"E-mail Address entry";
constexpr const wchar_t* accountCheckCaption = L"Bank Account Number Validation";
constexpr const wchar_t* mailOrFaxMessage = L"Please enter either an email address or a fax number.";

/// A business number that is not available is kept so.
constexpr const wchar_t* noBusinessNumber = L"         ";

std::wstring_view textOf(const TextField& field) {
  return trimmed(field.text());
}

bool empty(const TextField& field) {
  return textOf(field).empty();
}

/// Whether there is nothing but zeros in it, and at least one.
bool onlyZeros(std::wstring_view text) {
  return !text.empty() && text.find_first_not_of(L'0') == std::wstring_view::npos;
}

bool visibleOrEnabled(const Control& control) {
  return control.visible() || control.enabled();
}

bool sameTrimmed(const TextField& a, const TextField& b) {
  return textOf(a) == textOf(b);
}

/// Whether the text has this form: "A" stands for a capital letter, "0" for a digit.
bool hasForm(std::wstring_view text, std::wstring_view form) {
  return std::ranges::equal(text, form,
                            [](wchar_t c, wchar_t kind) { return kind == L'0' ? isDigit(c) : c >= L'A' && c <= L'Z'; });
}

/// Area codes and numbers of North America begin with 2 to 9.
bool hasInvalidFirstDigit(std::wstring_view digits) {
  return digits.starts_with(L'0') || digits.starts_with(L'1');
}

}  // namespace

/// One attempt. Each check returns whether it stops the attempt; it has told the user then and put the focus where the
/// mending is to be done.
class frmRandomInfo::Acceptance {
 public:
  explicit Acceptance(frmRandomInfo& form) : form_(form), busy_(form) {}

  void run() {
    using Check = bool (Acceptance::*)();
    static constexpr Check addressChecks[] = {
        &Acceptance::street,
        &Acceptance::postOfficeBox,
        &Acceptance::city,
        &Acceptance::country,
        &Acceptance::province,
        &Acceptance::postalCode,
        &Acceptance::foreignCurrency,
        &Acceptance::telephoneCountryCode,
        &Acceptance::internationalTelephone,
        &Acceptance::northAmericanTelephone,
        &Acceptance::telephoneLength,
        &Acceptance::mailOrFax,
        &Acceptance::fax,
        // the details of the biller, one after the other
        &Acceptance::mail,
        &Acceptance::mailOrFaxOrBank,
        &Acceptance::website,
        &Acceptance::contact,
        &Acceptance::mailForCurrency,
        &Acceptance::kind,
        &Acceptance::businessNumber,
        &Acceptance::bankId,
        &Acceptance::transit,
        &Acceptance::account,
    };
    static constexpr Check otherChecks[] = {
        &Acceptance::routingNumberDetails, &Acceptance::individual,        &Acceptance::foreignBank,
        &Acceptance::bankAccount,          &Acceptance::duplicateCurrency,
    };
    // A check may let others run: whoever closes the dialog meanwhile ends the attempt.
    const auto stops = [this](Check check) { return (this->*check)() || !form_.loaded(); };
    const bool checksAddress = !form_.domestic() || store().PayeeIndBusnTag == businessTag;
    if (checksAddress && std::ranges::any_of(addressChecks, stops)) return;
    if (std::ranges::any_of(otherChecks, stops)) return;
    accept();
  }

 private:
  // Address

  bool street() { return place(form_.ran_payee_street, 60, L"The street you have entered is invalid."); }

  bool postOfficeBox() {
    const std::wstring_view currency = textOf(form_.cmbCurrencyCode);
    const bool abroad = !currency.empty() && currency != canadianDollar && store().InternationalPayment != flagFalse;
    if (!abroad && form_.domestic()) return false;
    if (Random::Has_PO_Box_Address(component(), form_.ran_payee_street.text()) == 0) return false;
    return stopWith(postOfficeBoxMessage, form_.ran_payee_street);
  }

  bool city() { return place(form_.ran_payee_city, 20, L"The city you have entered is invalid."); }

  bool country() {
    DropDownField& country = form_.ran_payee_country;
    if (empty(country)) return stopAt(country);
    return country.text().size() != 2 && stopSelected(country);
  }

  bool province() {
    forms::ComboBox& province = form_.ran_payee_prov;
    if (!form_.inCanada() && !form_.inUnitedStates()) return false;
    if (empty(province)) {
      province.setListIndex(forms::ComboBox::none);
      return stopAt(province);
    }
    if (province.text().size() != 2) return stopAt(province);
    const bool known = form_.inCanada()
                           ? Random::lookupProvince(component(), province.text()) != flagFalse
                           : std::ranges::find(unitedStatesCodes(), province.text()) != unitedStatesCodes().end();
    return !known && stopAt(province);
  }

  bool postalCode() {
    TextBox& postal = form_.ran_payee_postal;
    if (empty(postal)) return stopEmpty(postal);
    const std::wstring_view code = textOf(postal);
    bool fits = postal.text().size() <= 9;
    if (form_.inCanada()) {
      fits = fits && hasForm(code, L"A0A0A0") &&
             Random::LookupPostcode(component(), form_.ran_payee_prov.text() + code.front()) != flagFalse;
    } else if (form_.inUnitedStates()) {
      fits = fits && (hasForm(code, L"000000000") || hasForm(code, L"00000"));
    }
    return !fits && stopSelected(postal);
  }

  bool foreignCurrency() {
    const bool canadian = form_.ran_payee_country.text().starts_with(canadaCode);
    return !canadian && empty(form_.cmbCurrencyCode) && stopAt(form_.cmbCurrencyCode);
  }

  // Telephone and fax

  bool telephoneCountryCode() { return empty(form_.txtPhoneCountryCode) && stopAt(form_.txtPhoneCountryCode); }

  bool internationalTelephone() {
    TextBox& phone = form_.ran_Inter_payee_phone;
    return visibleOrEnabled(phone) && empty(phone) && stopEmpty(phone);
  }

  bool northAmericanTelephone() {
    if (!dialsAsNorthAmerica()) return false;
    TextBox& area = form_.ran_payee_ph_area;
    TextBox& number = form_.ran_payee_phone;
    if (empty(area)) return stopEmpty(area);
    if (area.text().size() != 3) return stopSelected(area);
    if (visibleOrEnabled(number)) {
      if (empty(number)) return stopEmpty(number);
      if (number.text().size() != 7) return stopSelected(number);
    }
    if (hasInvalidFirstDigit(area.text())) return stopSelected(area);
    return hasInvalidFirstDigit(number.text()) && stopSelected(number);
  }

  bool telephoneLength() {
    return tooLong(form_.ran_payee_ph_area, form_.ran_payee_phone) &&
           stopWith(L"The combined phone area code and phone number cannot exceed 14 digits.", form_.ran_payee_ph_area);
  }

  bool mailOrFax() {
    TextBox& mail = form_.ran_payee_email;
    if (!form_.domestic()) return false;
    if (!empty(mail) || !empty(form_.ran_payee_fax_area) || !empty(form_.ran_payee_faxnumber)) return false;
    tell(mailOrFaxMessage);
    return stopEmpty(mail);
  }

  bool fax() {
    TextBox& international = form_.ran_inter_payee_faxnumber;
    TextBox& area = form_.ran_payee_fax_area;
    TextBox& number = form_.ran_payee_faxnumber;
    if (visibleOrEnabled(international)) {
      if (!empty(international) && empty(form_.txtFaxCountryCode)) return stopAt(form_.txtFaxCountryCode);
    } else if (!empty(area)) {
      if (empty(form_.txtFaxCountryCode)) return stopAt(form_.txtFaxCountryCode);
      if (dialsAsNorthAmerica()) {
        if (area.text().size() != 3) return stopSelected(area);
        if (visibleOrEnabled(number) && empty(number)) return stopSelected(number);
        if (hasInvalidFirstDigit(area.text())) return stopSelected(area);
        if (hasInvalidFirstDigit(number.text())) return stopSelected(number);
      }
    }
    if (!empty(number) && number.text().size() != 7 && dialsAsNorthAmerica()) return stopSelected(number);
    if (!visibleOrEnabled(number)) return false;
    if (!empty(number) && empty(area)) return stopSelected(area);
    return tooLong(area, number) &&
           stopWith(L"The combined fax area code and fax number cannot exceed 14 digits.", area);
  }

  // Details

  bool mail() {
    TextBox& mail = form_.ran_payee_email;
    mail.setText(std::wstring(textOf(mail)));
    if (mail.text().empty()) return false;
    std::wstring refusal;
    form_.ValidateEmailAddress(mail.text(), refusal, flagFalse);
    if (refusal.empty() && mail.text().size() <= 50) return false;
    tell(refusal, mailCaption);
    return stopSelected(mail);
  }

  bool mailOrFaxOrBank() {
    if (anyBankNumber() || !empty(form_.ran_payee_email) || !empty(form_.ran_payee_faxnumber)) return false;
    return stopWith(mailOrFaxMessage, form_.ran_payee_email);
  }

  bool website() {
    TextBox& site = form_.ran_payee_www;
    if (empty(site)) {
      site.setText({});
      return false;
    }
    std::wstring refusal;
    form_.ValidateWebsite(site.text(), refusal);
    if (refusal.empty() && site.text().size() <= 50) return false;
    tell(refusal, L"Website entry");
    return stopSelected(site);
  }

  bool contact() {
    TextBox& contact = form_.ran_payee_contact;
    if (empty(contact)) contact.setText({});
    return contact.text().size() > 40 && stopSelected(contact);
  }

  bool mailForCurrency() {
    if (textOf(form_.cmbCurrencyCode) == canadianDollar || !empty(form_.ran_payee_email)) return false;
    const std::wstring message =
        form_.domestic() ? L"An email address is required for international payments."
                         : L"An email address is required for " + store().CurrencyCodeFromMain + L" payments.";
    return stopWith(message, form_.ran_payee_email);
  }

  bool kind() {
    return !form_.optCBusiness.selected() && !form_.optCIndividual.selected() && stopAt(form_.optCBusiness);
  }

  bool businessNumber() {
    if (!hasBusinessNumber() || !form_.txtBusinessNum.enabled()) return false;
    TextBox& number = form_.txtBusinessNum;
    if (empty(number) || onlyZeros(textOf(number))) return stopAt(number);
    return Random::VerifyBusinessNumber(component(), number.text()) == flagFalse && stopAt(number);
  }

  bool bankId() {
    if (!checksBankNumbers()) return false;
    TextBox& id = form_.txtBankID;
    id.setText(std::wstring(textOf(id)));
    if (id.text().empty()) return false;
    if (onlyZeros(id.text())) return stopSelected(id);
    std::wstring refusal;
    const std::int16_t result = checkBankId(id.text(), refusal);
    if (result == valid) return false;
    if (result != doubtful) {
      tell(refusal, L"Bank Id Validation");
      return stopSelected(id);
    }
    const MessageBoxes::Answer answer = component().services.messages.show(
        L"That Bank ID does not appear to be valid. Please make sure you have not entered a cheque number. Are you "
        L"sure "
        L"you want to use the Bank ID you have entered?",
        L"Bank ID Validation", MessageBoxes::Icon::information, MessageBoxes::Buttons::yesNo);
    return answer != MessageBoxes::Answer::yes && stopSelected(id);
  }

  bool transit() {
    if (!checksBankNumbers()) return false;
    TextBox& transit = form_.txtTransit;
    transit.setText(std::wstring(textOf(transit)));
    return onlyZeros(transit.text()) && stopSelected(transit);
  }

  bool account() {
    if (!checksBankNumbers()) return false;
    TextBox& account = form_.txtAccount;
    account.setText(std::wstring(textOf(account)));
    if (account.text().size() > 21 || onlyZeros(account.text())) return stopSelected(account);
    if (account.text().find(L' ') == std::wstring::npos) return false;
    tell(L"The account number you have entered is invalid, spaces in the middle are not allowed.");
    return stopSelected(account);
  }

  // Bank details

  /// The bank of a biller in the United States, while the user may enter it.
  bool routingNumberDetails() {
    if (!hasRoutingNumberDetails()) return false;
    TextBox& routing = form_.txtRoutingNumber;
    TextBox& account = form_.txtBankAccountNumber;
    for (TextBox* field : {&form_.txtBankName, &routing, &account}) {
      const wchar_t shown = field->passwordChar();
      field->setText(std::wstring(textOf(*field)));
      field->setPasswordChar(shown);  // blanks that go are no correction
      if (field->text().empty()) return stopWith(L"Bank information is required for the biller.", *field);
    }
    for (TextBox* number : {&routing, &account}) {
      if (onlyZeros(number->text())) return stopSelected(*number);
    }
    if (Random::ValidateABANumber(component(), routing.text()) == flagFalse) return stopSelected(routing);
    TextBox& confirmation = form_.txtConfirmBankAccountNumber;
    if (confirmation.text().empty()) {
      form_.lblBankInfoConfirm.setVisible(true);
      confirmation.setVisible(true);
      account.setPasswordChar(mask);
      makeRoom(confirmation, account);
      return stopAt(confirmation);
    }
    return !sameTrimmed(confirmation, account) && stopSelected(confirmation);
  }

  bool individual() {
    if (store().PayeeIndBusnTag != individualTag) return false;
    if (empty(form_.ran_payee_email)) return stopAt(form_.ran_payee_email);
    if (mail()) return true;
    if (!form_.domestic() || anyBankNumber()) return false;
    return stopWith(L"Bank information is mandatory for setting up Individuals.", form_.txtTransit);
  }

  bool foreignBank() {
    if (hasRoutingNumberDetails()) storeRoutingNumberDetails();
    if (!form_.foreignCurrency_ || !store().PayeeFXBankAccount.empty()) return false;
    if (form_.domestic()) {
      tell(L"Banking information is required for international payments.");
      if (form_.loaded() && form_.cmdFXBankingInfo.available()) form_.cmdFXBankingInfo.press();
    }
    return true;
  }

  bool bankAccount() {
    if (!anyBankNumber() || !form_.fraBankAcctInfo.visible()) return false;
    for (TextBox* number : {&form_.txtTransit, &form_.txtBankID, &form_.txtAccount}) {
      if (onlyZeros(textOf(*number))) return stopSelected(*number);
    }
    std::wstring refusal;
    const std::int16_t result = checkBankAccount(refusal);
    if (result == valid) return false;
    if (result == doubtful) return rekeying();
    tell(refusal, accountCheckCaption);
    return stopAt(form_.txtAccount);
  }

  /// A doubtful account that is new is to be entered a second time.
  bool rekeying() {
    const BankTexts& opening = form_.opening_;
    const bool unchanged = textOf(form_.txtBankID) == trimmed(opening.bankId) &&
                           textOf(form_.txtTransit) == trimmed(opening.transit) &&
                           textOf(form_.txtAccount) == trimmed(opening.account);
    if (unchanged) {
      form_.pendingAccount_.clear();
      form_.showConfirmation(false);
      return false;
    }
    if (form_.pendingAccount_.empty()) {
      form_.pendingAccount_ = textOf(form_.txtAccount);
      form_.clearConfirmation();
      showRekeying();
      return stopAt(form_.txtTransitConf);
    }
    const Pair transit = {form_.txtTransitConf, form_.txtTransit};
    const Pair bankId = {form_.txtBankIDConf, form_.txtBankID};
    const Pair account = {form_.txtAccountConf, form_.txtAccount};
    const auto equal = [](const Pair& pair) { return pair.confirmation.text() == pair.field.text(); };
    if (equal(transit) && equal(bankId) && equal(account)) {
      form_.clearConfirmation();
      form_.showConfirmation(false);
      return false;
    }
    showRekeying();
    for (const Pair& pair : {transit, bankId, account}) {
      if (pair.confirmation.text().empty()) return stopAt(pair.confirmation);
    }
    for (const Pair& pair : {account, transit, bankId}) {
      if (!pair.same()) return stopSelected(pair.confirmation);
    }
    form_.clearConfirmation();
    return stopAt(form_.txtTransitConf);
  }

  bool duplicateCurrency() {
    const std::wstring_view currency = textOf(form_.cmbCurrencyCode);
    if (store().Add == flagFalse || store().IPBillerNameAcctExist == flagFalse || currency.empty()) return false;
    if (!form_.FXCurrencyExists(currency)) return false;
    return stopWith(
        L"A biller with this name, biller account number and currency already exists. A biller can only be added if "
        L"the "
        L"currency selected is not already used for this biller name / account number combination.",
        form_.cmbCurrencyCode);
  }

  // The record

  /// Everything is made ready before the first value of the record changes.
  void accept() {
    std::wstring joined;
    if (form_.hasBankNumbers()) {
      joined = form_.txtBankID.text() + L"-" + form_.txtTransit.text() + L"-" + form_.txtAccount.text();
    }
    form_.lblbankaccount.setCaption(std::move(joined));

    copy(form_.ran_payee_name.caption(), store().PayeeName);
    copy(form_.ran_payee_account.caption(), store().PayeeBillAccount);
    copy(form_.ran_payee_street.text(), store().PayeeStreet);
    copy(form_.ran_payee_city.text(), store().PayeeCity);
    copy(form_.ran_payee_prov.text(), store().PayeeProv);
    copy(form_.ran_payee_country.text(), store().PayeeCountry);
    copy(form_.ran_payee_postal.text(), store().PayeePostal);
    // The individual layout hides the telephone fields, but leaves those in use enabled.
    if (form_.ran_payee_ph_area.enabled()) {
      copy(form_.ran_payee_ph_area.text(), store().PayeePhoneArea);
      copy(form_.ran_payee_phone.text(), store().PayeePhoneNumber);
      copy(form_.ran_payee_fax_area.text(), store().PayeeFaxArea);
      copy(form_.ran_payee_faxnumber.text(), store().PayeeFaxNumber);
    } else {
      copy(form_.ran_Inter_payee_phone.text(), store().PayeeFXPhoneNumber);
      copy(form_.ran_inter_payee_faxnumber.text(), store().PayeeFXFaxNumber);
    }
    copy(form_.ran_payee_email.text(), store().PayeeEmail);
    copy(form_.ran_payee_www.text(), store().PayeeWeb);
    copy(form_.ran_payee_contact.text(), store().PayeeContactName);
    copy(form_.txtBankID.text(), store().PayeeBankId);
    copy(form_.txtTransit.text(), store().PayeeBankTransit);
    copy(form_.txtAccount.text(), store().PayeeBankAccount);
    const bool individual = form_.optCIndividual.selected();
    copy(individual ? individualTag : businessTag, store().PayeeIndBusnTag);
    set(individual ? individualFlag : businessFlag, store().PayeeIndBussFlg);
    if (hasBusinessNumber() && !empty(form_.txtBusinessNum)) {
      copy(form_.txtBusinessNum.text(), store().PayeeBusinessNum);
    } else {
      set(noBusinessNumber, store().PayeeBusinessNum);
    }
    const bool discounts = form_.chkDiscountsApply.checked();
    if (form_.chkDiscountsApply.enabled() && discounts != (store().PayeeDiscountsApply == L"1")) {
      set(discounts ? L"1" : L"0", store().PayeeDiscountsApply);
    }
    copy(form_.cmbCurrencyCode.text(), store().PayeeCurrency);
    copy(form_.txtPhoneCountryCode.text(), store().PayeePhoneCountryCode);
    copy(form_.txtFaxCountryCode.text(), store().PayeeFaxCountryCode);

    for (Value& value : values_) value.stored = std::move(value.entered);
    if (store().Add == flagFalse && !changed_ && !form_.foreignBankChanged_) {
      store().closeResult = Store::cancelledResult;
    }
    form_.pendingAccount_.clear();
    form_.CSBOK.raise();
    form_.unload();
  }

  /// Notes a value for the record, without the blanks around it.
  void copy(std::wstring_view entered, std::wstring& stored) { set(trimmed(entered), stored); }

  /// Notes a value for the record as it is.
  void set(std::wstring_view entered, std::wstring& stored) {
    if (trimmed(entered) != trimmed(stored)) changed_ = true;
    values_.push_back({stored, std::wstring(entered)});
  }

  /// Compared as the user sees them: a record that joins routing number and account is not a different one.
  void storeRoutingNumberDetails() {
    const ForeignAccount stored = foreignAccount(store());
    if (trimmed(store().PayeeFXBankName) != textOf(form_.txtBankName) ||
        trimmed(stored.number) != textOf(form_.txtRoutingNumber) ||
        trimmed(stored.account) != textOf(form_.txtBankAccountNumber)) {
      form_.foreignBankChanged_ = true;
    }
    std::pair<std::wstring&, std::wstring> values[] = {
        {store().PayeeFXBankName, std::wstring(textOf(form_.txtBankName))},
        {store().PayeeFXBankAccount, std::wstring(textOf(form_.txtBankAccountNumber))},
        {store().PayeeFXBankSwift, std::wstring(textOf(form_.txtRoutingNumber))},
        {store().PayeeFXBankCountry, unitedStatesCode},
    };
    for (auto& [kept, value] : values) kept = std::move(value);
  }

  // Outside parties

  static constexpr std::int16_t valid = 1, doubtful = 2;

  std::int16_t checkBankId(const std::wstring& id, std::wstring& refusal) {
    if (store().UseAcctvfy == flagFalse) {
      std::int16_t length = 0;
      return Random::ValidateBankId(component(), id, refusal, length, false);
    }
    // The library brings no text: what it does not know is for the user to decide.
    return component().services.installation.checkBankId(store().DLLPath, id) == 0 ? doubtful : valid;
  }

  std::int16_t checkBankAccount(std::wstring& refusal) {
    const std::wstring id(textOf(form_.txtBankID));
    const std::wstring transit(textOf(form_.txtTransit));
    const std::wstring account(textOf(form_.txtAccount));
    if (store().UseAcctvfy != flagFalse) {
      return component().services.installation.checkBankAccount(store().DLLPath, id, transit, account, refusal);
    }
    std::int16_t length = 0;
    return Random::ValidateBankAccount(component(), id, transit, account, refusal, length, false);
  }

  // Facts

  struct Pair {
    TextBox& confirmation;
    TextBox& field;
    bool same() const { return sameTrimmed(confirmation, field); }
  };
  struct Value {
    std::wstring& stored;
    std::wstring entered;
  };
  using DropDownField = forms::DropDownList;

  Component& component() const { return form_.component(); }
  Store& store() const { return form_.store(); }
  bool anyBankNumber() const { return !empty(form_.txtBankID) || !empty(form_.txtTransit) || !empty(form_.txtAccount); }
  bool dialsAsNorthAmerica() const {
    const std::wstring& country = form_.ran_payee_country.text();
    return country == canadaCode || country == unitedStatesCode;
  }
  bool hasBusinessNumber() const { return form_.optCBusiness.selected() && !form_.chkBNNotAvailable.checked(); }
  /// The numbers of an international biller are not checked, nor are those that the user cannot see and mend.
  bool checksBankNumbers() const { return !form_.foreignCurrency_ && form_.fraBankAcctInfo.visible(); }
  bool hasRoutingNumberDetails() const { return !form_.domestic() && form_.fraBankInfo.visible(); }
  static bool tooLong(const TextField& area, const TextField& number) {
    return area.text().size() + number.text().size() > 14;
  }

  // Stopping

  /// A street or a city: filled, not too long, with a letter in it.
  bool place(TextBox& field, std::size_t limit, const wchar_t* message) {
    const std::wstring_view text = textOf(field);
    if (text.empty()) return stopEmpty(field);
    if (field.text().size() > limit) return stopSelected(field);
    if (Random::IsAlpha(component(), text) != flagFalse && text.size() >= 2) return false;
    return stopWith(message, field);
  }

  static bool stopAt(Control& control) {
    control.setFocus();
    return true;
  }
  static bool stopEmpty(TextField& field) {
    field.setText({});
    return stopAt(field);
  }
  static bool stopSelected(TextField& field) {
    field.selectAll();
    return stopAt(field);
  }
  bool stopWith(std::wstring_view message, Control& control) {
    tell(message);
    return stopAt(control);
  }
  void tell(std::wstring_view message) { form_.message(message); }
  /// What a check has to say; a check that failed has said it itself.
  void tell(const std::wstring& refusal, const wchar_t* caption) {
    if (refusal.empty()) return;
    component().services.messages.show(refusal, caption, MessageBoxes::Icon::information, MessageBoxes::Buttons::ok);
  }
  void showRekeying() {
    form_.showConfirmation(true);
    const std::pair<TextBox&, TextBox&> pairs[] = {{form_.txtTransit, form_.txtTransitConf},
                                                   {form_.txtBankID, form_.txtBankIDConf},
                                                   {form_.txtAccount, form_.txtAccountConf}};
    for (const auto& [number, confirmation] : pairs) {
      number.setPasswordChar(mask);
      makeRoom(confirmation, number);
    }
  }
  /// A number of the record may be longer than one can be typed: its confirmation, too.
  static void makeRoom(TextBox& confirmation, const TextBox& number) {
    confirmation.setMaxLength(std::max(number.maxLength(), static_cast<int>(number.text().size())));
  }

  frmRandomInfo& form_;
  const Busy busy_;  // what was checked is what is stored
  std::vector<Value> values_;
  bool changed_ = false;
};

void frmRandomInfo::cmd_ok_Click() {
  if (readOnly_) {  // there is nothing to accept
    unload();
    return;
  }
  Acceptance(*this).run();
}

}  // namespace nv
