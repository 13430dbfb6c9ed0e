// What makes a biller an international one, what the dialog changes then, and the bank abroad.
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;

constexpr const wchar_t* settings =
    L"International payment settings have not been setup. To set these, you can go to the System Administration screen "
    L"and click 'International Payment Settings'.";

class InternationalTest : public BillerTest {
 protected:
  void expectQuestion(MessageBoxes::Answer answer) {
    messages.expect({.text = L"Is this biller for an international payment?",
                     .caption = title,
                     .buttons = MessageBoxes::Buttons::yesNo,
                     .answer = answer});
  }
  void expectNote(const wchar_t* text) { messages.expect({.text = text, .caption = title}); }
  void yes() { expectQuestion(MessageBoxes::Answer::yes); }
  void no() { expectQuestion(MessageBoxes::Answer::no); }
  void yesInVain() { yes(), expectNote(settings); }

  static bool isInternational(User& user) {
    const bool international = user.visible(L"cmdFXBankingInfo");
    EXPECT_EQ(user.visible(L"fraBankAcctInfo"), !international);
    for (const wchar_t* name : {L"optCBusiness", L"optCIndividual", L"chkBNNotAvailable", L"lblBN"}) {
      EXPECT_EQ(user.enabled(name), !international) << name;
    }
    if (international) {
      EXPECT_TRUE(user.checked(L"optCBusiness"));
      for (const wchar_t* name : {L"txtTransit", L"txtBankID", L"txtAccount"}) EXPECT_EQ(user.text(name), L"") << name;
    }
    return international;
  }
};

TEST_F(InternationalTest, LeavingTheCurrencyDecides) {
  struct Case {
    const char* what;
    std::function<void()> record;
    const wchar_t* chosen;
    std::function<void()> boxes;
    const wchar_t* currency;
    bool international;
  };
  const auto accepted = [this] { component.store.InternationalPayment = flagTrue; };
  const Case cases[] = {
      {"Canadian", accepted, L"CAD", nullptr, L"CAD", false},
      {"separator", accepted, L"---", nullptr, L"CAD", false},
      {"yes", accepted, L"EUR", [this] { yes(); }, L"EUR", true},
      {"no", accepted, L"EUR", [this] { no(); }, L"CAD", false},
      {"yes, without settings", nullptr, L"USD", [this] { yesInVain(); }, L"CAD", false},
      {"no, without settings", nullptr, L"USD", [this] { no(); }, L"CAD", false},
      {"foreign currency in Canada",
       [this] { component.store.PayeeCurrency = L"EUR", component.store.InternationalPayment = flagTrue; }, L"EUR",
       [this] { yes(); }, L"EUR", true},
      {"Canadian dollars abroad", [this] { international(), component.store.PayeeCurrency = L"CAD"; }, L"EUR",
       [this] { no(); }, L"CAD", false},
      {"international before", [this] { international(); }, L"USD", nullptr, L"USD", true},
      {"international before, now Canadian", [this] { international(); }, L"CAD", nullptr, L"CAD", false},
      {"international before, now separator", [this] { international(); }, L"---", nullptr, L"CAD", false},
  };
  component.store.IPCurrencyList = StringArray({{0, 0}});
  component.store.IPCurrencyList.at({0}) = L"CHF";
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const Store before = component.store;
    bankAccount();
    if (c.record) c.record();
    {
      User user = shown();
      user.choose(L"cmbCurrencyCode", c.chosen);
      if (c.boxes) c.boxes();
      user.click(L"ran_payee_email");
      EXPECT_EQ(user.text(L"cmbCurrencyCode"), c.currency);
      EXPECT_EQ(isInternational(user), c.international);
      EXPECT_EQ(user.visible(L"lblFXBankingInfo"), c.international);
      if (!c.international) {
        EXPECT_EQ(user.text(L"txtPhoneCountryCode"), L"1");
        EXPECT_EQ(user.text(L"txtFaxCountryCode"), L"1");
      }
    }
    random.Unload_From_Remote();
    component.store = before;
  }
}

TEST_F(InternationalTest, TheQuestionIsAskedUntilItIsAccepted) {
  component.store.InternationalPayment = flagTrue;
  User user = shown();
  const auto choose = [&](const wchar_t* list, const wchar_t* code) {
    user.choose(list, code);
    user.click(L"ran_payee_email");
  };
  no();
  choose(L"cmbCurrencyCode", L"EUR");
  yes();
  choose(L"cmbCurrencyCode", L"EUR");
  choose(L"cmbCurrencyCode", L"USD");
  choose(L"ran_payee_country", L"FR");
  EXPECT_TRUE(isInternational(user));
  choose(L"ran_payee_country", L"CA");
  choose(L"cmbCurrencyCode", L"CAD");
  EXPECT_FALSE(isInternational(user));
  no();
  choose(L"ran_payee_country", L"FR");
  EXPECT_EQ(user.text(L"ran_payee_country"), L"CA");
}

TEST_F(InternationalTest, BackInCanadaTheBillerIsDomestic) {
  component.store.InternationalPayment = flagTrue;
  User user = shown();
  for (int time = 0; time < 2; ++time) {
    yes();
    user.choose(L"ran_payee_country", L"FR");
    user.click(L"ran_payee_email");
    EXPECT_EQ(user.text(L"txtPhoneCountryCode"), L"33");
    user.choose(L"ran_payee_country", L"CA");
    user.click(L"ran_payee_email");
    EXPECT_EQ(user.text(L"txtPhoneCountryCode"), L"1");
    EXPECT_TRUE(user.visible(L"ran_payee_ph_area"));
  }
}

TEST_F(InternationalTest, AnIndividualStaysInCanadianDollars) {
  component.store.PayeeIndBusnTag = L"1";
  User user = shown();
  user.control(L"cmbCurrencyCode").setVisible(true);  // out of the private person's sight, but for hosts' scripts
  expectNote(L"You cannot setup an individual as an international payment.");
  user.choose(L"cmbCurrencyCode", L"EUR");
  user.click(L"ran_payee_email");
  EXPECT_EQ(user.text(L"cmbCurrencyCode"), L"CAD");
  EXPECT_EQ(user.row(L"cmbCurrencyCode"), L"Canadian Dollar;CAD");
}

TEST_F(InternationalTest, LeavingTheCountryDecides) {
  struct Case {
    const char* what;
    std::int16_t settings;
    const wchar_t* chosen;
    std::function<void()> boxes;
    const wchar_t* country;
    const wchar_t* telephoneCode;
    bool abroad;
  };
  const Case cases[] = {
      {"Canada", flagTrue, L"CA", nullptr, L"CA", L"1", false},
      {"United States", flagTrue, L"US", nullptr, L"US", L"1", false},
      {"yes", flagTrue, L"CH", [this] { yes(); }, L"CH", L"41", true},
      {"no", flagTrue, L"CH", [this] { no(); }, L"CA", L"1", false},
      {"yes, without settings", flagFalse, L"CH", [this] { yesInVain(); }, L"CA", L"1", false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    component.store.InternationalPayment = c.settings;
    User user = shown();
    user.choose(L"ran_payee_country", c.chosen);
    if (c.boxes) c.boxes();
    user.click(L"ran_payee_email");
    EXPECT_EQ(user.text(L"ran_payee_country"), c.country);
    EXPECT_EQ(user.text(L"txtPhoneCountryCode"), c.telephoneCode);
    EXPECT_EQ(user.text(L"txtFaxCountryCode"), c.telephoneCode);
    for (const wchar_t* name :
         {L"ran_payee_ph_area", L"ran_payee_phone", L"ran_payee_fax_area", L"ran_payee_faxnumber"}) {
      EXPECT_EQ(user.visible(name), !c.abroad) << name;
    }
    for (const wchar_t* name : {L"ran_Inter_payee_phone", L"ran_inter_payee_faxnumber"}) {
      EXPECT_EQ(user.visible(name), c.abroad) << name;
    }
    EXPECT_FALSE(isInternational(user)) << "which the currency decides";
    random.Unload_From_Remote();
  }
}

TEST_F(InternationalTest, AnotherCountryWantsItsOwnNumber) {
  international();
  User user = shown();
  user.choose(L"ran_payee_country", L"CH");
  user.click(L"ran_payee_email");
  EXPECT_EQ(user.focus(), L"ran_Inter_payee_phone");
  EXPECT_EQ(user.text(L"ran_Inter_payee_phone"), L"");
  EXPECT_EQ(user.text(L"txtPhoneCountryCode"), L"41");
  user.type(L"ran_payee_country", L"\b\bZZ");
  user.click(L"ran_payee_email");
  EXPECT_EQ(user.text(L"ran_payee_country"), L"ZZ");
  EXPECT_EQ(user.text(L"txtPhoneCountryCode"), L"41") << "nobody knows the code of the unknown";
}

TEST_F(InternationalTest, ATelephoneCodeThatFillsItsFieldLeadsNobodyAway) {
  countries += L"Trinidad and Tobago,TT,1868\r\n";
  component.store.InternationalPayment = flagTrue;
  User user = shown();
  user.choose(L"ran_payee_country", L"TT");
  yes();
  user.tab();
  EXPECT_EQ(user.text(L"txtFaxCountryCode"), L"1868");
  EXPECT_EQ(user.focus(), L"ran_payee_postal");
}

TEST_F(InternationalTest, LeavingTheDialogDecidesNothing) {
  for (const wchar_t* list : {L"cmbCurrencyCode", L"ran_payee_country"}) {
    host.events.clear();
    User user = shown();
    user.choose(list, list[0] == L'c' ? L"EUR" : L"FR");
    user.click(L"cmd_cancel");
    EXPECT_EQ(host.events, Texts{L"Cancel"});
  }
}

// The bank abroad

TEST_F(InternationalTest, TheBankIsShownAndStored) {
  struct Case {
    const char* what;
    std::function<void(Store&)> record;
    std::function<void(User&)> inside;
    std::function<void(Store&)> stored;
  };
  const Case cases[] = {
      {"cancelled", nullptr,
       [](User& bank) {
         bank.type(L"txtBankName", L"X");
         bank.click(L"cmd_cancel");
       },
       nullptr},
      {"unchanged", nullptr, [](User& bank) { bank.click(L"cmd_ok"); }, nullptr},
      {"another street", [](Store& store) { store.PayeeFXBankAddress += L" "; },
       [](User& bank) {
         bank.type(L"txtBankStreet", L"3 ");
         bank.click(L"cmd_ok");
       },
       [](Store& store) { store.PayeeFXBankAddress = L"1 RUE DE LA PAIX 3"; }},
      {"now a bank of the United States", nullptr,
       [](User& bank) {
         bank.choose(L"cmbBankCountry", L"US");
         bank.click(L"txtBankName");
         bank.type(L"txtUSABA", L"021000021");
         bank.type(L"txtUSBankAccount", L"99x");
         bank.click(L"cmd_ok");
         bank.type(L"txtUSABAConf", L"021000021");
         bank.type(L"txtUSBankAccountConf", L"99X");
         bank.click(L"cmd_ok");
       },
       [](Store& store) {
         store.PayeeFXBankCountry = L"US";
         store.PayeeFXBankAccount = L"02100002199X";
         store.PayeeFXBankSwift = L"";
       }},
      {"a bank of the United States, unchanged",
       [](Store& store) {
         store.PayeeFXBankCountry = L"US";
         store.PayeeFXBankAccount = L"021000021123456";
         store.PayeeFXBankSwift = L"";
       },
       [](User& bank) {
         EXPECT_EQ(bank.text(L"txtUSABA"), L"021000021");
         EXPECT_EQ(bank.text(L"txtUSBankAccount"), L"123456");
         EXPECT_EQ(bank.text(L"txtBankAccount"), L"");
         bank.click(L"cmd_ok");
       },
       nullptr},
  };
  const auto bankOf = [](const Store& store) {
    return Texts{store.PayeeFXBankName,    store.PayeeFXBankAddress, store.PayeeFXBankCity, store.PayeeFXBankProv,
                 store.PayeeFXBankCountry, store.PayeeFXBankAccount, store.PayeeFXBankSwift};
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    international();
    if (c.record) c.record(component.store);
    Store expected = component.store;
    if (c.stored) c.stored(expected);
    User user = shown();
    widgetset.whenModal([&](User& bank) {
      EXPECT_EQ(bank.title(), L"International Payment Banking Information");
      EXPECT_EQ(bank.text(L"txtBankName"), component.store.PayeeFXBankName);
      EXPECT_EQ(bank.text(L"cmbBankCountry"), component.store.PayeeFXBankCountry);
      EXPECT_EQ(bank.rows(L"cmbBankProv"), user.rows(L"ran_payee_prov"));
      EXPECT_EQ(bank.rows(L"cmbBankCountry"), user.rows(L"ran_payee_country"));
      c.inside(bank);
    });
    user.click(L"cmdFXBankingInfo");
    EXPECT_EQ(bankOf(component.store), bankOf(expected));
    component.store.closeResult = 0;
    user.click(L"cmd_ok");
    EXPECT_FALSE(user.open());
    EXPECT_EQ(component.store.closeResult == Store::cancelledResult, !c.stored) << "a new bank is a change";
  }
}

TEST_F(InternationalTest, TheBankOfAnImportIsForReading) {
  international();
  widgetset.whenModal([this](User& user) {
    widgetset.whenModal([](User& bank) {
      EXPECT_FALSE(bank.visible(L"cmd_ok"));
      EXPECT_EQ(bank.caption(L"cmd_cancel"), L"Close");
      for (const wchar_t* name : {L"txtBankName", L"cmbBankCountry", L"txtSwiftNumber", L"txtUSABA"}) {
        EXPECT_FALSE(bank.enabled(name)) << name;
      }
      bank.key(forms::keys::escape);
    });
    user.click(L"cmdFXBankingInfo");
    user.click(L"cmd_ok");
  });
  random.ShowForm_Import();
}

TEST_F(InternationalTest, ADialogOfWhichTheOwnerGoesIsLeft) {
  international();
  User user = shown();
  widgetset.whenModal([&](User& bank) {
    random.Unload_From_Remote();
    bank.click(L"cmd_cancel");
  });
  user.click(L"cmdFXBankingInfo");
  EXPECT_FALSE(user.open());
}

}  // namespace
}  // namespace nv::test
