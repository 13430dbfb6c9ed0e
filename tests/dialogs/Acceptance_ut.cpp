// OK in the biller dialog: what it refuses, in which order, and what it leaves in the record.
#include <algorithm>

#include "dialogs/biller/frmRandomInfo.h"
#include "forms/Label.h"
#include "forms/Toggle.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;

constexpr const wchar_t* postOfficeBox =
    L"Post Office Box address cannot be used.  Please enter physical street address.";
constexpr const wchar_t* mailOrFax = L"Please enter either an email address or a fax number.";
constexpr const wchar_t* duplicate =
    L"A biller with this name, biller account number and currency already exists. A biller can only be added if the "
    L"currency selected is not already used for this biller name / account number combination.";

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
  /// Returns what ShowForm would.
  std::int32_t accepts(User& user) {
    host.events.clear();
    user.click(L"cmd_ok");
    EXPECT_FALSE(user.open()) << (user.open() ? user.focus() : L"");
    EXPECT_EQ(host.events, Texts{L"CSBOK"});
    random.Unload_From_Remote();
    return dynamic_cast<frmRandomInfo&>(user.form()).closeResult();
  }

  std::function<void(Store&)> with(std::wstring Store::*member, std::wstring value) {
    return [member, value](Store& store) { store.*member = value; };
  }
};

/// What a mended record that broke every rule does not come by.
TEST_F(AcceptanceTest, OneWrongValueStopsTheAttempt) {
  using S = Store;
  const std::wstring longMail = L"a@" + std::wstring(48, L'b') + L".c", longSite = L"www." + std::wstring(47, L'x');
  const auto abroad = [this](std::function<void(Store&)> change) {
    return [this, change](Store& store) { international(), change(store); };
  };
  const auto us = [](const wchar_t* province, const wchar_t* zip) {
    return [=](Store& store) { store.PayeeCountry = L"US", store.PayeeProv = province, store.PayeePostal = zip; };
  };
  const Stop cases[] = {
      {"street without a letter", with(&S::PayeeStreet, L"123"), L"ran_payee_street", L"",
       L"The street you have entered is invalid."},
      {"post-office box abroad", abroad(with(&S::PayeeStreet, L"po  box 5")), L"ran_payee_street", L"", postOfficeBox},
      {"post-office box in the United States",
       [this](Store& store) { unitedStates(), store.PayeeStreet = L"P.O. BOX 5"; }, L"ran_payee_street", L"",
       postOfficeBox},
      {"state in Canada", with(&S::PayeeProv, L"NY"), L"ran_payee_prov"},
      {"province in the United States", us(L"ON", L"10001"), L"ran_payee_prov"},
      {"long postal code", abroad(with(&S::PayeePostal, L"1234567890")), L"ran_payee_postal", L"1234567890"},
      {"postal code with a blank", with(&S::PayeePostal, L"K1A 0B1"), L"ran_payee_postal", L"K1A 0B1"},
      {"postal code of another form", with(&S::PayeePostal, L"K1A011"), L"ran_payee_postal", L"K1A011"},
      {"zip code of six", us(L"NY", L"123456"), L"ran_payee_postal", L"123456"},
      {"Canadian zip code", us(L"NY", L"K1A0B1"), L"ran_payee_postal", L"K1A0B1"},
      {"no currency abroad", [this](Store&) { international(); }, L"cmbCurrencyCode", L"", L"", title,
       [](User& user) { put(user, L"cmbCurrencyCode", L" "); }},
      {"no country", [](Store&) {}, L"ran_payee_country", L"", L"", title,
       [](User& user) { put(user, L"ran_payee_country", L""); }},
      {"no international number", abroad(with(&S::PayeeFXPhoneNumber, L"  ")), L"ran_Inter_payee_phone"},
      {"area code with 1", with(&S::PayeePhoneArea, L"123"), L"ran_payee_ph_area", L"123"},
      {"too long together", [this](Store&) { international(); },
       L"cmd_ok",  // the area code is out of sight
       L"", L"The combined phone area code and phone number cannot exceed 14 digits.", title,
       [](User& user) {
         put(user, L"ran_payee_ph_area", L"613");
         put(user, L"ran_payee_phone", L"555123456789");
       }},
      {"international fax without country code", abroad(with(&S::PayeeFaxCountryCode, L" ")), L"txtFaxCountryCode"},
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
      {"no mail of a private person", [this](Store& store) { individual(), store.PayeeEmail = L""; },
       L"ran_payee_email"},
      {"long mail", with(&S::PayeeEmail, longMail), L"ran_payee_email", longMail, invalidMail, L"E-mail Address entry"},
      {"neither mail nor fax nor account",
       [this](Store& store) { unitedStates(), store.PayeeEmail = store.PayeeFaxArea = store.PayeeFaxNumber = L""; },
       L"ran_payee_email", L"", mailOrFax},
      {"long site", with(&S::PayeeWeb, longSite), L"ran_payee_www", longSite, invalidWebsite, L"Website entry"},
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
      {"account with a blank", [this](Store& store) { bankAccount(), store.PayeeBankAccount = L" 12 34 "; },
       L"txtAccount", L"12 34",
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
    EXPECT_EQ(accepts(user), 0) << field.control;
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
    EXPECT_EQ(accepts(user), c.result);
    EXPECT_EQ(store.PayeeIndBusnTag + store.PayeeIndBussFlg, c.kind);
    EXPECT_EQ(store.PayeeBusinessNum, c.number);
    EXPECT_EQ(store.PayeeDiscountsApply, c.discounts);
  }
}

TEST_F(AcceptanceTest, AnUnchangedBillerOfEachKindIsToldSo) {
  for (const auto& record : {std::function<void()>([] {}), std::function<void()>([this] { individual(); }),
                             std::function<void()>([this] { international(); }),
                             std::function<void()>([this] { component.store.PayeeStreet = L"  1 MAIN STREET "; })}) {
    const Store before = component.store;
    record();
    User user = shown();
    EXPECT_EQ(accepts(user), frmRandomInfo::cancelledResult);
    component.store = before;
  }
}

}  // namespace
}  // namespace nv::test
