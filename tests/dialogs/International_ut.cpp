// What makes a biller an international one, what the dialog changes then, and the bank abroad.
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;

class InternationalTest : public BillerTest {
 protected:
  void yes() {
    messages.expect({.text = L"Is this biller for an international payment?",
                     .caption = title,
                     .buttons = MessageBoxes::Buttons::yesNo,
                     .answer = MessageBoxes::Answer::yes});
  }
};

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
