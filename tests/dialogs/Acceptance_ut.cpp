// OK in the biller dialog: what it refuses, in which order, and what it leaves in the record.
#include <algorithm>

#include "forms/Label.h"
#include "forms/Toggle.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;

constexpr const wchar_t* postOfficeBox =
    L"Post Office Box address cannot be used.  Please enter physical street address.";
constexpr const wchar_t* mailOrFax = L"Please enter either an email address or a fax number.";
constexpr const wchar_t* bankRequired = L"Bank information is required for the biller.";
constexpr const wchar_t* doubtfulId =
    L"That Bank ID does not appear to be valid. Please make sure you have not entered a cheque number. Are you sure "
    L"you want to use the Bank ID you have entered?";
constexpr const wchar_t* duplicate =
    L"A biller with this name, biller account number and currency already exists. A biller can only be added if the "
    L"currency selected is not already used for this biller name / account number combination.";
constexpr const wchar_t* completeMail = L"Please enter a complete e-mail address with the form 'name@example.com'.";
constexpr const wchar_t* validMail = L"Please enter a valid e-mail address with the form 'name@example.com'.";
constexpr const wchar_t* mailCaption = L"E-mail Address entry";
constexpr const wchar_t* accountCaption = L"Bank Account Number Validation";

class AcceptanceTest : public BillerTest {
 protected:
  /// An attempt that stops.
  struct Stop {
    const char* what;
    std::function<void(Store&)> record;
    const wchar_t* focus;
    std::wstring selected = {};
    std::wstring message = {};  // none when empty
    std::wstring caption = title;
    std::function<void(User&)> act = nullptr;  // before OK
  };

  void stops(const Stop& stop) {
    SCOPED_TRACE(stop.what);
    const Store before = component.store;
    stop.record(component.store);
    const Texts record = texts(component.store);
    {
      User user = shown();
      if (stop.act) stop.act(user);
      if (!stop.message.empty()) messages.expect({.text = stop.message, .caption = stop.caption});
      user.click(L"cmd_ok");
      EXPECT_TRUE(user.open());
      EXPECT_EQ(user.focus(), stop.focus);
      if (dynamic_cast<forms::TextField*>(&user.control(stop.focus)) != nullptr) {
        EXPECT_EQ(user.selected(stop.focus), stop.selected);
      }
      EXPECT_EQ(texts(component.store), record);
      EXPECT_EQ(host.events, Texts{});
    }
    random.Unload_From_Remote();
    component.store = before;
  }

  /// Presses OK and expects the dialog to go.
  void accepts(User& user) {
    host.events.clear();
    user.click(L"cmd_ok");
    EXPECT_FALSE(user.open()) << (user.open() ? user.focus() : L"");
    EXPECT_EQ(host.events, Texts{L"CSBOK"});
    random.Unload_From_Remote();
  }

  std::function<void(Store&)> with(std::wstring Store::*member, std::wstring value) {
    return [member, value](Store& store) { store.*member = value; };
  }
};

TEST_F(AcceptanceTest, AddressesAreRefused) {
  using S = Store;
  const std::wstring street = L"The street you have entered is invalid.";
  const std::wstring city = L"The city you have entered is invalid.";
  const auto abroad = [this](std::function<void(Store&)> change) {
    return [this, change](Store& store) { international(), change(store); };
  };
  const auto us = [this](const wchar_t* province, const wchar_t* zip) {
    return [=, this](Store& store) { store.PayeeCountry = L"US", store.PayeeProv = province, store.PayeePostal = zip; };
  };
  const Stop cases[] = {
      {"no street", with(&S::PayeeStreet, L"  "), L"ran_payee_street"},
      {"long street", with(&S::PayeeStreet, std::wstring(61, L'A')), L"ran_payee_street", std::wstring(61, L'A')},
      {"street of a letter", with(&S::PayeeStreet, L" A "), L"ran_payee_street", L"", street},
      {"street without a letter", with(&S::PayeeStreet, L"123"), L"ran_payee_street", L"", street},
      {"post-office box abroad", abroad(with(&S::PayeeStreet, L"po  box 5")), L"ran_payee_street", L"", postOfficeBox},
      {"post-office box in the United States",
       [this](Store& store) { unitedStates(), store.PayeeStreet = L"P.O. BOX 5"; }, L"ran_payee_street", L"",
       postOfficeBox},
      {"no city", with(&S::PayeeCity, L""), L"ran_payee_city"},
      {"long city", with(&S::PayeeCity, std::wstring(21, L'A')), L"ran_payee_city", std::wstring(21, L'A')},
      {"city of a letter", with(&S::PayeeCity, L"X"), L"ran_payee_city", L"", city},
      {"country without code", with(&S::PayeeCountry, L"FRAN"), L"ran_payee_country", L"FRAN"},
      {"no province", with(&S::PayeeProv, L""), L"ran_payee_prov"},
      {"long province", with(&S::PayeeProv, L"ONT"), L"ran_payee_prov"},
      {"state in Canada", with(&S::PayeeProv, L"NY"), L"ran_payee_prov"},
      {"province in the United States", us(L"ON", L"10001"), L"ran_payee_prov"},
      {"no postal code", with(&S::PayeePostal, L" "), L"ran_payee_postal"},
      {"long postal code", abroad(with(&S::PayeePostal, L"1234567890")), L"ran_payee_postal", L"1234567890"},
      {"postal code with a blank", with(&S::PayeePostal, L"K1A 0B1"), L"ran_payee_postal", L"K1A 0B1"},
      {"postal code of another form", with(&S::PayeePostal, L"K1A011"), L"ran_payee_postal", L"K1A011"},
      {"short postal code", with(&S::PayeePostal, L"K1A0B"), L"ran_payee_postal", L"K1A0B"},
      {"postal code of another province", with(&S::PayeePostal, L"H1A0B1"), L"ran_payee_postal", L"H1A0B1"},
      {"zip code of six", us(L"NY", L"123456"), L"ran_payee_postal", L"123456"},
      {"Canadian zip code", us(L"NY", L"K1A0B1"), L"ran_payee_postal", L"K1A0B1"},
      {"no currency abroad", [this](Store&) { international(); }, L"cmbCurrencyCode", L"", L"", title,
       [](User& user) { put(user, L"cmbCurrencyCode", L" "); }},
  };
  for (const Stop& c : cases) stops(c);
  stops({"no country", [](Store&) {}, L"ran_payee_country", L"", L"", title,
         [](User& user) { put(user, L"ran_payee_country", L""); }});
}

TEST_F(AcceptanceTest, TelephoneAndFaxAreRefused) {
  using S = Store;
  const auto noFax = [](Store& store) { store.PayeeFaxArea.clear(), store.PayeeFaxNumber.clear(); };
  const Stop cases[] = {
      {"no country code", with(&S::PayeePhoneCountryCode, L" "), L"txtPhoneCountryCode"},
      {"no international number", [this](Store& store) { international(), store.PayeeFXPhoneNumber = L"  "; },
       L"ran_Inter_payee_phone"},
      {"no area code", with(&S::PayeePhoneArea, L" "), L"ran_payee_ph_area"},
      {"short area code", with(&S::PayeePhoneArea, L"61"), L"ran_payee_ph_area", L"61"},
      {"no number", with(&S::PayeePhoneNumber, L" "), L"ran_payee_phone"},
      {"long number", with(&S::PayeePhoneNumber, L"55512345"), L"ran_payee_phone", L"55512345"},
      {"area code of zeros", with(&S::PayeePhoneArea, L"000"), L"ran_payee_ph_area", L"000"},
      {"area code with 1", with(&S::PayeePhoneArea, L"123"), L"ran_payee_ph_area", L"123"},
      {"number with 0", with(&S::PayeePhoneNumber, L"0551234"), L"ran_payee_phone", L"0551234"},
      {"too long together", [this](Store&) { international(); },
       L"cmd_ok",  // the area code is out of sight
       L"", L"The combined phone area code and phone number cannot exceed 14 digits.", title,
       [](User& user) {
         put(user, L"ran_payee_ph_area", L"613");
         put(user, L"ran_payee_phone", L"555123456789");
       }},
      {"neither mail nor fax", [&](Store& store) { noFax(store), store.PayeeEmail = L" "; }, L"ran_payee_email", L"",
       mailOrFax},
      {"international fax without country code",
       [this](Store& store) { international(), store.PayeeFaxCountryCode = L" "; }, L"txtFaxCountryCode"},
      {"fax without country code", with(&S::PayeeFaxCountryCode, L" "), L"txtFaxCountryCode"},
      {"short fax area", with(&S::PayeeFaxArea, L"61"), L"ran_payee_fax_area", L"61"},
      {"fax area alone", with(&S::PayeeFaxNumber, L""), L"ran_payee_faxnumber"},
      {"fax area with 1", with(&S::PayeeFaxArea, L"113"), L"ran_payee_fax_area", L"113"},
      {"fax number with 1", with(&S::PayeeFaxNumber, L"1551234"), L"ran_payee_faxnumber", L"1551234"},
      {"short fax number", with(&S::PayeeFaxNumber, L"555123"), L"ran_payee_faxnumber", L"555123"},
      {"fax number alone", with(&S::PayeeFaxArea, L""), L"ran_payee_fax_area"},
      {"fax too long together", [this](Store&) { international(); }, L"ran_payee_fax_area", L"",
       L"The combined fax area code and fax number cannot exceed 14 digits.", title,
       [](User& user) {
         for (const wchar_t* name : {L"ran_payee_fax_area", L"ran_payee_faxnumber"}) {
           user.control(name).setVisible(true);
           user.control(name).setEnabled(true);
         }
         put(user, L"ran_payee_fax_area", L"613");
         put(user, L"ran_payee_faxnumber", L"555123456789");
       }},
  };
  for (const Stop& c : cases) stops(c);
}

TEST_F(AcceptanceTest, DetailsAreRefused) {
  using S = Store;
  const std::wstring longMail = L"a@" + std::wstring(48, L'b') + L".c", longSite = L"www." + std::wstring(47, L'x');
  const auto zeros = [this](std::wstring Store::*member, const wchar_t* value) {
    return [=, this](Store& store) { bankAccount(), store.*member = value; };
  };
  const Stop cases[] = {
      {"short mail", with(&S::PayeeEmail, L" x@y "), L"ran_payee_email", L"x@y", completeMail, mailCaption},
      {"mail without a dot", with(&S::PayeeEmail, L"name@x"), L"ran_payee_email", L"name@x", validMail, mailCaption},
      {"long mail", with(&S::PayeeEmail, longMail), L"ran_payee_email", longMail},
      {"neither mail nor fax nor account",
       [this](Store& store) { unitedStates(), store.PayeeEmail = store.PayeeFaxArea = store.PayeeFaxNumber = L""; },
       L"ran_payee_email", L"", mailOrFax},
      {"site without a dot", with(&S::PayeeWeb, L"acme"), L"ran_payee_www", L"acme",
       L"Please enter a valid website with the form\r\n'www.example.com'.", L"Website entry"},
      {"long site", with(&S::PayeeWeb, longSite), L"ran_payee_www", longSite},
      {"long contact", with(&S::PayeeContactName, std::wstring(41, L'A')), L"ran_payee_contact",
       std::wstring(41, L'A')},
      {"no mail for a foreign currency",
       [](Store& store) {
         store.InternationalPayment = flagTrue, store.PayeeCurrency = L"EUR", store.PayeeEmail = L"";
       },
       L"ran_payee_email", L"", L"An email address is required for international payments."},
      {"no mail for the United States", [this](Store& store) { unitedStates(), store.PayeeEmail = L""; },
       L"ran_payee_email", L"", L"An email address is required for USD payments."},
      {"no kind", [](Store&) {}, L"optCBusiness", L"", L"", title,
       [](User& user) { dynamic_cast<forms::OptionButton&>(user.control(L"optCBusiness")).setSelected(false); }},
      {"no business number", [](Store&) {}, L"txtBusinessNum", L"", L"", title,
       [](User& user) { user.check(L"chkBNNotAvailable", false); }},
      {"business number of zeros", with(&S::PayeeBusinessNum, L"000000000"), L"txtBusinessNum"},
      {"business number made up", with(&S::PayeeBusinessNum, L"111111111"), L"txtBusinessNum"},
      {"bank id of zeros", zeros(&S::PayeeBankId, L"000"), L"txtBankID", L"000"},
      {"transit of zeros", zeros(&S::PayeeBankTransit, L"00000"), L"txtTransit", L"00000"},
      {"account of zeros", zeros(&S::PayeeBankAccount, L"00"), L"txtAccount", L"00"},
      {"long account", zeros(&S::PayeeBankAccount, L"1234567890123456789012"), L"txtAccount",
       L"1234567890123456789012"},
      {"account with a blank", zeros(&S::PayeeBankAccount, L" 12 34 "), L"txtAccount", L"12 34",
       L"The account number you have entered is invalid, spaces in the middle are not allowed."},
  };
  for (const Stop& c : cases) stops(c);
}

TEST_F(AcceptanceTest, WhatIsAtTheLimitPasses) {
  using S = Store;
  const std::function<void(Store&)> cases[] = {
      with(&S::PayeeStreet, std::wstring(60, L'A')),
      with(&S::PayeeStreet, L"PO BOX 5"),  // at home, in Canadian dollars
      with(&S::PayeeCity, L"AB"),
      with(&S::PayeeEmail, L"a@" + std::wstring(46, L'b') + L".c"),
      with(&S::PayeeWeb, L""),
      [](Store& store) { store.PayeeFaxArea = store.PayeeFaxNumber = store.PayeeFaxCountryCode = L" "; },
      [](Store& store) { store.PayeeCountry = L"US", store.PayeeProv = L"PR", store.PayeePostal = L"123456789"; },
      [this](Store&) { international(); },
      [this](Store& store) { international(), store.PayeeProv = L"", store.PayeePostal = L"X"; },
      [this](Store& store) { bankAccount(), store.PayeeBankAccount = L" 123 "; },
      [this](Store&) { individual(); },
      // the gate: nothing of the address of a private person counts
      [this](Store& store) { individual(), store.PayeeStreet = store.PayeeCity = store.PayeeWeb = L""; },
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    SCOPED_TRACE(i);
    const Store before = component.store;
    cases[i](component.store);
    User user = shown();
    accepts(user);
    component.store = before;
  }
}

TEST_F(AcceptanceTest, IndividualsAreRefused) {
  const auto person = [this](auto change) { return [this, change](Store& store) { individual(), change(store); }; };
  const Stop cases[] = {
      {"no mail", person([](Store& store) { store.PayeeEmail = L""; }), L"ran_payee_email"},
      {"short mail", person([](Store& store) { store.PayeeEmail = L"abc"; }), L"ran_payee_email", L"abc", completeMail,
       mailCaption},
      {"no bank", person([](Store& store) { store.PayeeBankId = L""; }), L"txtTransit", L"",
       L"Bank information is mandatory for setting up Individuals."},
      {"transit of zeros", person([](Store& store) { store.PayeeBankTransit = L"00000"; }), L"txtTransit", L"00000"},
      {"bank id of zeros", person([](Store& store) { store.PayeeBankId = L"000"; }), L"txtBankID", L"000"},
      {"account of zeros", person([](Store& store) { store.PayeeBankAccount = L"0"; }), L"txtAccount", L"0"},
  };
  for (const Stop& c : cases) stops(c);
}

TEST_F(AcceptanceTest, TheBankIdIsChecked) {
  struct Case {
    const char* what;
    bool library;
    std::int16_t result;
    std::wstring message;
    bool question;
    bool yes;
    bool accepted;
  };
  const Case cases[] = {
      {"valid", false, 1, L"", false, false, true},
      {"refused", false, 0, L"No such bank.", false, false, false},
      {"refused without a word", false, 0, L"", false, false, false},
      {"refused otherwise", false, 7, L"Out of order.", false, false, false},
      {"doubtful, no", false, 2, L"", true, false, false},
      {"doubtful, yes", false, 2, L"", true, true, true},
      {"library, known", true, 1, L"", false, false, true},
      {"library, unknown, no", true, 0, L"", true, false, false},
      {"library, unknown, yes", true, 0, L"", true, true, true},
  };
  bankAccount();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    component.store.UseAcctvfy = flag(c.library);
    installation.asked.clear();
    installation.answers[c.library ? L"Check_bank_id" : L"ValidateBankId"] = {.result = c.result, .message = c.message};
    User user = shown();
    if (c.question) {
      messages.expect({.text = doubtfulId,
                       .caption = L"Bank ID Validation",
                       .buttons = MessageBoxes::Buttons::yesNo,
                       .answer = c.yes ? MessageBoxes::Answer::yes : MessageBoxes::Answer::no});
    } else if (!c.message.empty()) {
      messages.expect({.text = c.message, .caption = L"Bank Id Validation"});
    }
    user.click(L"cmd_ok");
    EXPECT_EQ(user.open(), !c.accepted);
    if (!c.accepted) {
      EXPECT_EQ(user.focus(), L"txtBankID");
      EXPECT_EQ(user.selected(L"txtBankID"), L"001");
    }
    random.Unload_From_Remote();
    const std::wstring call =
        c.library ? std::wstring(L"Check_bank_id(") + dllPath + L", 001)" : L"ValidateBankId(001, False)";
    EXPECT_EQ(std::ranges::count(installation.asked, call), 1);
  }
}

TEST_F(AcceptanceTest, TheBankAccountIsChecked) {
  struct Case {
    bool library;
    std::int16_t result;
    std::wstring message;
  };
  bankAccount();
  for (const Case& c : {Case{false, 1, L""}, Case{false, 0, L"No such account."}, Case{false, -1, L"Out of order."},
                        Case{false, 0, L""}, Case{true, 1, L"All is well."}, Case{true, 0, L"No such account."},
                        Case{true, 3, L"Out of order."}}) {
    SCOPED_TRACE(testing::Message() << c.library << c.result);
    component.store.UseAcctvfy = flag(c.library);
    const wchar_t* const name = c.library ? L"Check_bank_account2" : L"ValidateBankAccount";
    installation.answers[name] = {.result = c.result, .message = c.message};
    installation.asked.clear();
    User user = shown();
    if (c.result != 1 && !c.message.empty()) messages.expect({.text = c.message, .caption = accountCaption});
    user.click(L"cmd_ok");
    EXPECT_EQ(user.open(), c.result != 1);
    if (user.open()) {
      EXPECT_EQ(user.focus(), L"txtAccount");
      EXPECT_FALSE(user.visible(L"txtAccountConf"));
    }
    random.Unload_From_Remote();
    const std::wstring arguments = L"001, 12345, 1234567";
    const std::wstring call =
        c.library ? std::wstring(L"(") + dllPath + L", " + arguments + L")" : L"(" + arguments + L", False)";
    EXPECT_EQ(std::ranges::count(installation.asked, name + call), 1);
  }
}

TEST_F(AcceptanceTest, ADoubtfulAccountIsTypedTwice) {
  installation.answers[L"ValidateBankAccount"].result = 2;
  bankAccount();
  {
    User user = shown();
    accepts(user);  // as it was
  }
  User user = shown();
  const auto ok = [&](const wchar_t* focus, const wchar_t* selected = L"") {
    user.click(L"cmd_ok");
    EXPECT_EQ(user.focus(), focus);
    EXPECT_EQ(user.selected(focus), selected);
    for (const wchar_t* name : {L"txtTransit", L"txtBankID", L"txtAccount"}) EXPECT_TRUE(user.masked(name)) << name;
    for (const wchar_t* name : {L"lblConfirm", L"txtTransitConf", L"txtBankIDConf", L"txtAccountConf"}) {
      EXPECT_TRUE(user.visible(name)) << name;
    }
  };
  user.type(L"txtAccount", L"8");
  ok(L"txtTransitConf");
  ok(L"txtTransitConf");
  user.type(L"txtTransitConf", L"99999");
  EXPECT_EQ(user.focus(), L"txtBankIDConf");
  ok(L"txtBankIDConf");
  user.type(L"txtBankIDConf", L"999");
  ok(L"txtAccountConf");
  user.type(L"txtAccountConf", L"999");
  ok(L"txtAccountConf", L"999");
  user.type(L"\b12345678");
  ok(L"txtTransitConf", L"99999");
  put(user, L"txtTransitConf", L"12345");
  ok(L"txtBankIDConf", L"999");
  put(user, L"txtBankIDConf", L"001");
  user.type(L"txtAccount", L"\b9");  // seen in clear again, and no longer what was confirmed
  EXPECT_FALSE(user.masked(L"txtAccount"));
  ok(L"txtAccountConf", L"12345678");
  put(user, L"txtAccountConf", L"12345679 ");
  ok(L"txtTransitConf");
  for (const wchar_t* name : {L"txtTransitConf", L"txtBankIDConf", L"txtAccountConf"}) {
    EXPECT_EQ(user.text(name), L"") << "a difference in blanks alone begins anew";
  }
  put(user, L"txtTransitConf", L"12345");
  put(user, L"txtBankIDConf", L"001");
  put(user, L"txtAccountConf", L"12345679");
  accepts(user);
  EXPECT_EQ(component.store.PayeeBankAccount, L"12345679");
}

TEST_F(AcceptanceTest, ReKeyingEndsWithTheNumbersOrWithWhatTheyWere) {
  installation.answers[L"ValidateBankAccount"].result = 2;
  bankAccount();
  User user = shown();
  user.type(L"txtAccount", L"8");
  user.click(L"cmd_ok");
  for (const wchar_t* name : {L"txtTransit", L"txtBankID", L"txtAccount"}) put(user, name, L"");
  EXPECT_FALSE(user.visible(L"txtTransitConf"));
  user.type(L"txtTransit", L"12345");
  user.type(L"txtBankID", L"001");
  user.type(L"txtAccount", L"99");
  put(user, L"txtTransitConf", L"?");
  user.click(L"cmd_ok");
  EXPECT_EQ(user.focus(), L"txtTransitConf");
  EXPECT_EQ(user.text(L"txtTransitConf"), L"") << "a new beginning";

  // What the account was before is not confirmed, and ends it, too.
  Store& store = component.store;
  store.Add = store.IPBillerNameAcctExist = flagTrue;
  store.IPBillerCurrencies = StringArray({{0, 0}});
  store.IPBillerCurrencies.at({0}) = L"CAD";
  put(user, L"txtAccount", L"1234567");
  messages.expect({.text = duplicate, .caption = title});
  user.click(L"cmd_ok");
  EXPECT_FALSE(user.visible(L"txtTransitConf"));
  put(user, L"txtAccount", L"99");
  put(user, L"txtTransitConf", L"?");
  user.click(L"cmd_ok");
  EXPECT_EQ(user.text(L"txtTransitConf"), L"");
  put(user, L"txtAccount", L"1234567");
  store.IPBillerNameAcctExist = flagFalse;
  accepts(user);
}

TEST_F(AcceptanceTest, ARecordThatBreaksEveryRuleIsMendedRuleByRule) {
  struct Mend {
    const wchar_t* focus;
    std::wstring message;
    std::vector<std::pair<const wchar_t*, std::wstring>> put;
    std::wstring caption = title;
  };
  const std::wstring blank = L" ";
  Store& store = component.store;
  bankAccount();
  for (auto member :
       {&Store::PayeeStreet, &Store::PayeeCity, &Store::PayeeProv, &Store::PayeePostal, &Store::PayeePhoneArea,
        &Store::PayeePhoneNumber, &Store::PayeeFaxArea, &Store::PayeeFaxNumber, &Store::PayeeEmail}) {
    store.*member = blank;
  }
  store.PayeeWeb = L"acme";
  store.PayeeContactName = std::wstring(41, L'A');
  store.PayeeBusinessNum = L"000000000";
  store.PayeeBankId = L"000";
  store.PayeeBankTransit = L"00000";
  store.PayeeBankAccount = L"0000";
  store.Add = store.IPBillerNameAcctExist = flagTrue;
  store.IPBillerCurrencies = StringArray({{1, 2}});
  store.IPBillerCurrencies.at({2}) = L"CAD";
  installation.answers[L"ValidateBankAccount"] = {.result = 0, .message = L"No such account."};
  installation.answers[L"ValidateBankId"] = {.result = 0, .message = L"No such bank."};
  const Texts before = texts(store);
  const Mend mends[] = {
      {L"ran_payee_street", L"", {{L"ran_payee_street", L"A"}}},
      {L"ran_payee_street", L"The street you have entered is invalid.", {{L"ran_payee_street", L"1 MAIN STREET"}}},
      {L"ran_payee_city", L"", {{L"ran_payee_city", L"1"}}},
      {L"ran_payee_city", L"The city you have entered is invalid.", {{L"ran_payee_city", L"OTTAWA"}}},
      {L"ran_payee_country", L"", {{L"ran_payee_country", L"CA"}}},
      {L"ran_payee_prov", L"", {{L"ran_payee_prov", L"ZZ"}}},
      {L"ran_payee_prov", L"", {{L"ran_payee_prov", L"ON"}}},
      {L"ran_payee_postal", L"", {{L"ran_payee_postal", L"H1A0B1"}}},
      {L"ran_payee_postal", L"", {{L"ran_payee_postal", L"K1A0B1"}}},
      {L"ran_payee_ph_area", L"", {{L"ran_payee_ph_area", L"03"}}},
      {L"ran_payee_ph_area", L"", {{L"ran_payee_ph_area", L"013"}}},
      {L"ran_payee_phone", L"", {{L"ran_payee_phone", L"0"}}},
      {L"ran_payee_phone", L"", {{L"ran_payee_phone", L"0551234"}}},
      {L"ran_payee_ph_area", L"", {{L"ran_payee_ph_area", L"613"}}},
      {L"ran_payee_phone", L"", {{L"ran_payee_phone", L"5551234"}}},
      {L"ran_payee_email", mailOrFax, {{L"ran_payee_fax_area", L"03"}}},
      {L"ran_payee_fax_area", L"", {{L"ran_payee_fax_area", L"013"}}},
      {L"ran_payee_faxnumber", L"", {{L"ran_payee_faxnumber", L"0"}}},
      {L"ran_payee_fax_area", L"", {{L"ran_payee_fax_area", L"613"}}},
      {L"ran_payee_faxnumber", L"", {{L"ran_payee_faxnumber", L"5"}}},
      {L"ran_payee_faxnumber", L"", {{L"ran_payee_faxnumber", L"5551234"}, {L"ran_payee_email", L"x"}}},
      {L"ran_payee_email", completeMail, {{L"ran_payee_email", L"x@y.zz"}}, mailCaption},
      {L"ran_payee_www",
       L"Please enter a valid website with the form\r\n'www.example.com'.",
       {{L"ran_payee_www", L""}},
       L"Website entry"},
      {L"ran_payee_contact", L"", {{L"ran_payee_contact", L"JANE"}}},
      {L"txtBusinessNum", L"", {{L"txtBusinessNum", L"100000009"}}},
      {L"txtBankID", L"", {{L"txtBankID", L"999"}}},
      {L"txtBankID", L"No such bank.", {{L"txtBankID", L""}}, L"Bank Id Validation"},
      {L"txtTransit", L"", {{L"txtTransit", L"12345"}}},
      {L"txtAccount", L"", {{L"txtAccount", L"12 34"}}},
      {L"txtAccount",
       L"The account number you have entered is invalid, spaces in the middle are not allowed.",
       {{L"txtAccount", L""}, {L"txtTransit", L""}}},
      {L"cmbCurrencyCode", duplicate, {}},
  };
  User user = shown();
  put(user, L"ran_payee_country", L"");
  int number = 0;
  for (const Mend& mend : mends) {
    SCOPED_TRACE(++number);
    if (!mend.message.empty()) messages.expect({.text = mend.message, .caption = mend.caption});
    user.click(L"cmd_ok");
    EXPECT_EQ(user.focus(), mend.focus);
    EXPECT_EQ(texts(store), before);
    for (const auto& [field, text] : mend.put) put(user, field, text);
    if (user.focus() == L"txtBusinessNum") user.control(L"cmd_ok").setFocus();
  }
  store.IPBillerNameAcctExist = flagFalse;
  accepts(user);
  EXPECT_EQ(store.PayeeStreet, L"1 MAIN STREET");
  EXPECT_EQ(store.PayeeFaxNumber, L"5551234");
  EXPECT_EQ(store.PayeeBankId, L"");
}

TEST_F(AcceptanceTest, TheBankOfTheUnitedStatesIsRequiredAndTypedTwice) {
  struct Mend {
    const wchar_t* focus;
    const wchar_t* selected;
    const wchar_t* message;
    const wchar_t* put;
    const wchar_t* text;
  };
  unitedStates();
  Store& store = component.store;
  store.PayeeFXBankName = L"  ";
  store.PayeeFXBankCountry = L"";
  store.PayeeFXBankAccount = store.PayeeFXBankSwift = L"";
  User user = shown();
  for (const Mend& mend : {
           Mend{L"txtBankName", L"", bankRequired, L"txtBankName", L" First Bank "},
           Mend{L"txtRoutingNumber", L"", bankRequired, L"txtRoutingNumber", L"000000000"},
           Mend{L"txtBankAccountNumber", L"", bankRequired, L"txtBankAccountNumber", L"000"},
           Mend{L"txtRoutingNumber", L"000000000", nullptr, L"txtRoutingNumber", L"021000022"},
           Mend{L"txtBankAccountNumber", L"000", nullptr, L"txtBankAccountNumber", L" 12a "},
           Mend{L"txtRoutingNumber", L"021000022", nullptr, L"txtRoutingNumber", L"021000021"},
           Mend{L"txtConfirmBankAccountNumber", L"", nullptr, L"txtConfirmBankAccountNumber", L"12"},
           Mend{L"txtConfirmBankAccountNumber", L"12", nullptr, L"txtConfirmBankAccountNumber", L" 12a"},
       }) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(mend.put)) + " " +
                 testing::PrintToString(std::wstring(mend.text)));
    if (mend.message) messages.expect({.text = mend.message, .caption = title});
    user.click(L"cmd_ok");
    EXPECT_EQ(user.focus(), mend.focus);
    EXPECT_EQ(user.selected(mend.focus), mend.selected);
    put(user, mend.put, mend.text);
    EXPECT_EQ(store.PayeeFXBankName, L"  ");
    const bool confirming = user.focus() == L"txtConfirmBankAccountNumber";
    EXPECT_EQ(user.visible(L"lblBankInfoConfirm"), confirming);
    EXPECT_EQ(user.masked(L"txtBankAccountNumber"), confirming);
  }
  accepts(user);
  EXPECT_EQ(store.PayeeFXBankName, L"First Bank");
  EXPECT_EQ(store.PayeeFXBankAccount, L"12a");
  EXPECT_EQ(store.PayeeFXBankSwift, L"021000021");
  EXPECT_EQ(store.PayeeFXBankCountry, L"US");
}

TEST_F(AcceptanceTest, TheBankOfTheUnitedStatesIsKeptThoughALaterCheckStops) {
  unitedStates();
  Store& store = component.store;
  store.Add = store.IPBillerNameAcctExist = flagTrue;
  store.IPBillerCurrencies = StringArray({{0, 0}});
  store.IPBillerCurrencies.at({0}) = L"USD";
  User user = shown();
  put(user, L"txtConfirmBankAccountNumber", L"123456");
  put(user, L"ran_payee_city", L"ALBANY");
  messages.expect({.text = duplicate, .caption = title});
  user.click(L"cmd_ok");
  EXPECT_TRUE(user.open());
  EXPECT_EQ(store.PayeeFXBankSwift, L"021000021");
  EXPECT_EQ(store.PayeeFXBankAccount, L"123456");
  EXPECT_EQ(store.PayeeCity, L"OTTAWA");
}

TEST_F(AcceptanceTest, WithoutPermissionTheBankOfTheUnitedStatesStaysAsItIs) {
  unitedStates();
  component.store.UserBankAcctPermission = flagFalse;
  User user = shown();
  accepts(user);
  EXPECT_EQ(component.store.PayeeFXBankAccount, L"021000021123456");
  EXPECT_EQ(component.store.PayeeFXBankSwift, L"");
}

TEST_F(AcceptanceTest, AnInternationalBillerNeedsItsBank) {
  international();
  component.store.PayeeFXBankAccount.clear();
  component.store.UseAcctvfy = flagTrue;
  bankAccount();  // of an earlier, domestic life
  User user = shown();
  messages.expect({.text = L"Banking information is required for international payments.", .caption = title});
  widgetset.whenModal([](User& bank) {
    bank.type(L"txtBankAccount", L"FR1");
    bank.click(L"cmd_ok");
    bank.type(L"txtSwiftNumberConf", L"BNPAFRPP");
    bank.type(L"txtBankAccountConf", L"FR1");
    bank.click(L"cmd_ok");
  });
  for (const wchar_t* name : {L"txtTransit", L"txtBankID", L"txtAccount"}) put(user, name, L"");
  user.click(L"cmd_ok");
  EXPECT_TRUE(user.open());
  EXPECT_EQ(user.focus(), L"ran_payee_street");
  EXPECT_EQ(component.store.PayeeFXBankAccount, L"FR1");
  accepts(user);
}

TEST_F(AcceptanceTest, ACurrencyIsUsedOnceForANewBiller) {
  struct Case {
    std::int16_t add;
    std::int16_t exists;
    const wchar_t* used;
    bool accepted;
  };
  for (const Case& c :
       {Case{-1, -1, L"EUR", true}, Case{0, -1, L"CAD", true}, Case{-1, 0, L"CAD", true}, Case{1, 1, L"CAD", false}}) {
    component.store.Add = c.add;
    component.store.IPBillerNameAcctExist = c.exists;
    component.store.IPBillerCurrencies = StringArray({{5, 5}});
    component.store.IPBillerCurrencies.at({5}) = c.used;
    User user = shown();
    if (!c.accepted) {
      messages.expect({.text = duplicate, .caption = title});
      user.click(L"cmd_ok");
      EXPECT_EQ(user.focus(), L"cmbCurrencyCode");
      random.Unload_From_Remote();
    } else {
      accepts(user);
    }
  }
}

TEST_F(AcceptanceTest, EverythingGoesIntoTheRecordTrimmed) {
  struct Field {
    const wchar_t* control;
    std::wstring Store::*stored;
    const wchar_t* entered;
    const wchar_t* kept;
  };
  const Field fields[] = {
      {L"ran_payee_street", &Store::PayeeStreet, L" 2 Oak ", L"2 OAK"},
      {L"ran_payee_city", &Store::PayeeCity, L"HULL ", L"HULL"},
      {L"ran_payee_prov", &Store::PayeeProv, L"QC", L"QC"},
      {L"ran_payee_postal", &Store::PayeePostal, L" J8X1A1", L"J8X1A1"},
      {L"txtPhoneCountryCode", &Store::PayeePhoneCountryCode, L" 2 ", L"2"},
      {L"ran_payee_ph_area", &Store::PayeePhoneArea, L"819", L"819"},
      {L"ran_payee_phone", &Store::PayeePhoneNumber, L"7771234", L"7771234"},
      {L"txtFaxCountryCode", &Store::PayeeFaxCountryCode, L"3", L"3"},
      {L"ran_payee_fax_area", &Store::PayeeFaxArea, L"819", L"819"},
      {L"ran_payee_faxnumber", &Store::PayeeFaxNumber, L"7779876", L"7779876"},
      {L"ran_payee_email", &Store::PayeeEmail, L" A@b.cd ", L"A@b.cd"},
      {L"ran_payee_www", &Store::PayeeWeb, L" b.cd ", L"b.cd"},
      {L"ran_payee_contact", &Store::PayeeContactName, L" Bob ", L"BOB"},
      {L"txtTransit", &Store::PayeeBankTransit, L"54321", L"54321"},
      {L"txtBankID", &Store::PayeeBankId, L"002", L"002"},
      {L"txtAccount", &Store::PayeeBankAccount, L" 99 ", L"99"},
  };
  // One at a time, where a field can change without another; then all of them.
  Store& store = component.store;
  const Store before = store;
  for (const Field& field : fields) {
    if (field.control[0] == L't' && std::wstring(field.control).find(L"Country") == std::wstring::npos) continue;
    store = before;
    if (store.PayeeProv == L"ON" && (field.stored == &Store::PayeeProv || field.stored == &Store::PayeePostal))
      continue;
    User user = shown();
    put(user, field.control, field.entered);
    accepts(user);
    EXPECT_EQ(store.closeResult, 0) << field.control;
    EXPECT_EQ(store.*field.stored, field.kept);
  }
  store = before;
  store.NVMemberType = L"B";
  store.PayeeName = L" ACME ";
  User user = shown();
  for (const Field& field : fields) put(user, field.control, field.entered);
  user.check(L"chkBNNotAvailable", false);
  put(user, L"txtBusinessNum", L"100000009");
  user.check(L"chkDiscountsApply");
  accepts(user);
  for (const Field& field : fields) EXPECT_EQ(store.*field.stored, field.kept) << field.control;
  EXPECT_EQ(store.PayeeName, L"ACME");
  EXPECT_EQ(store.PayeeBusinessNum, L"100000009");
  EXPECT_EQ(store.PayeeDiscountsApply, L"1");
  EXPECT_EQ(store.PayeeIndBusnTag + store.PayeeIndBussFlg, L"2 ");
  EXPECT_EQ(dynamic_cast<forms::Label&>(user.control(L"lblbankaccount")).caption(), L"002-54321-99");
}

TEST_F(AcceptanceTest, TheKindAndTheDiscountGoIntoTheRecord) {
  struct Case {
    const char* what;
    std::function<void(User&)> act;
    std::wstring kind;
    std::wstring number;
    std::wstring discounts;
    std::int32_t result;
  };
  const std::wstring none(9, L' ');
  const Case cases[] = {
      {"nothing", nullptr, L"2 ", none, L"Y", 50000},
      {"individual", [](User& user) { user.click(L"optCIndividual"); }, L"1I", none, L"Y", 0},
      {"discounts", [](User& user) { user.check(L"chkDiscountsApply"); }, L"2 ", none, L"1", 0},
      {"there and back", [](User& user) { user.check(L"chkDiscountsApply"), user.check(L"chkDiscountsApply", false); },
       L"2 ", none, L"Y", 50000},
  };
  Store& store = component.store;
  const Store before = store;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    store = before;
    store.NVMemberType = L"B";
    store.PayeeDiscountsApply = L"Y";
    User user = shown();
    if (c.act) c.act(user);
    accepts(user);
    EXPECT_EQ(store.PayeeIndBusnTag + store.PayeeIndBussFlg, c.kind);
    EXPECT_EQ(store.PayeeBusinessNum, c.number);
    EXPECT_EQ(store.PayeeDiscountsApply, c.discounts);
    EXPECT_EQ(store.closeResult, c.result);
  }
}

TEST_F(AcceptanceTest, AnUnchangedBillerOfEachKindIsToldSo) {
  for (const auto& record : {std::function<void()>([] {}), std::function<void()>([this] { individual(); }),
                             std::function<void()>([this] { international(); }),
                             std::function<void()>([this] { component.store.PayeeStreet = L"  1 MAIN STREET "; })}) {
    const Store before = component.store;
    record();
    User user = shown();
    accepts(user);
    EXPECT_EQ(component.store.closeResult, Store::cancelledResult);
    component.store = before;
  }
}

TEST_F(AcceptanceTest, ARunTimeErrorLeavesTheRecord) {
  bankAccount();
  component.store.UseAcctvfy = flagTrue;
  installation.whenAsked = [](const std::wstring& name) {
    if (name == L"Check_bank_account2") throw RuntimeError(ErrorNumber::libraryNotLoadable);
  };
  User user = shown();
  put(user, L"ran_payee_city", L"HULL");
  const Texts before = texts(component.store);
  messages.expect(
      {.text =
           L"The following error: 'Error in loading DLL (Error 48)' occurred in procedure 'RandomInfo - cmd_ok_Click'.",
       .icon = MessageBoxes::Icon::critical});
  user.click(L"cmd_ok");
  EXPECT_TRUE(user.open());
  EXPECT_EQ(texts(component.store), before);
  EXPECT_EQ(host.events, Texts{});
}

}  // namespace
}  // namespace nv::test
