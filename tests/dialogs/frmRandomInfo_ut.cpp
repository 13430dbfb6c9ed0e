// The biller dialog: how it closes, what its result tells the host, and what happens in it all at once.
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;
using BillerDialogTest = BillerTest;

TEST_F(BillerDialogTest, ClosingIsNotUndoneByAnOKThatWasStillQueued) {
  const Texts before = texts(component.store);
  for (const bool byKey : {false, true}) {
    User user = shown();
    put(user, L"ran_payee_city", L"KENORA");
    widgetset.pending.push_back([&] { byKey ? static_cast<void>(user.altKey(L'O')) : user.click(L"cmd_ok"); });
    user.closeBox();
    EXPECT_EQ(texts(component.store), before);
    EXPECT_EQ(std::exchange(host.events, {}), Texts{L"Cancel"});
  }
}

TEST_F(BillerDialogTest, TheResultTellsAnExistingBillerThatDidNotChange) {
  struct Case {
    std::int16_t add;
    const wchar_t* control;
    const wchar_t* typed;
    std::int32_t result;
  };
  const Case cases[] = {
      {0, L"ran_payee_city", L"", 50000}, {0, L"ran_payee_city", L" ", 50000},  // blanks at the ends do not count
      {0, L"ran_payee_city", L"X", 0},    {0, L"ran_payee_contact", L"X", 0},  {0, L"ran_payee_city", L"\b", 0},
      {1, L"ran_payee_city", L"", 0},     {-1, L"ran_payee_city", L"", 0},     {-1, L"ran_payee_city", L"X", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.add << ": " << c.typed);
    component.store.PayeeCity = L"  OTTAWA";
    random.letAdd(c.add);
    widgetset.whenModal([&](User& user) {
      user.type(c.control, c.typed);
      user.click(L"cmd_ok");
    });
    EXPECT_EQ(random.ShowForm(), c.result);
  }
}

TEST_F(BillerDialogTest, MayBeUnloadedWhileAnErrorIsTold) {
  host.whenTold = [] { throw RuntimeError(ErrorNumber::typeMismatch); };
  User user = shown();
  messages.expect(
      {.text = L"The following error: 'Type mismatch (Error 13)' occurred in procedure 'RandomInfo - cmd_ok_Click'.",
       .icon = MessageBoxes::Icon::critical,
       .whileOpen = [&] { random.Unload_From_Remote(); }});
  user.click(L"cmd_ok");
  EXPECT_FALSE(user.open());
}

TEST_F(BillerDialogTest, ANameIsShownAsItIsAndClaimsNoKey) {
  component.store.PayeeName = L"AT&T";
  User user = shown();
  EXPECT_FALSE(user.altKey(L't'));
}

TEST_F(BillerDialogTest, ATelephoneCodeThatFillsItsFieldLeadsNobodyAway) {
  countries += L"Trinidad and Tobago,TT,1868\r\n";
  component.store.InternationalPayment = flagTrue;
  User user = shown();
  user.choose(L"ran_payee_country", L"TT");
  messages.expect({.text = L"Is this biller for an international payment?",
                   .caption = title,
                   .buttons = MessageBoxes::Buttons::yesNo,
                   .answer = MessageBoxes::Answer::yes});
  user.tab();
  EXPECT_EQ(user.text(L"txtFaxCountryCode"), L"1868");
  EXPECT_EQ(user.focus(), L"ran_payee_postal");
}

TEST_F(BillerDialogTest, ABankDialogOfWhichTheOwnerGoesIsLeft) {
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
