// How the biller dialog opens, as far as no user can tell. What each kind of biller gets to see is in scenarios.
#include "forms/DropDownList.h"
#include "forms/Toggle.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using SetupFormTest = BillerTest;

/// The room that a mode takes is the room that it shows: the buttons stand below the frame, the bank inside it.
TEST_F(SetupFormTest, EachModeIsAsHighAsWhatItShows) {
  const std::function<void()> kinds[] = {
      [] {}, [this] { individual(); }, [this] { international(); }, [this] { unitedStates(); },
      [this] {
        unitedStates(), component.store.UserBankAcctPermission = flagFalse, component.store.PayeeCurrency = L"CAD";
      }};
  for (const auto& kind : kinds) {
    const Store before = component.store;
    kind();
    {
      User user = shown();
      const forms::Place ok = user.seen(L"cmd_ok").place, frame = user.seen(L"Frame1").place;
      EXPECT_GE(ok.top, frame.bottom());
      EXPECT_EQ(user.form().place().height, ok.bottom() + 500);
      EXPECT_LE(user.form().place().height / 15, 768) << "pixels at 96 dpi";
      if (component.store.WhatKindOfBiller != L" ") {
        EXPECT_EQ(user.seen(L"Label15").place.top, frame.bottom() + 40);
        for (const wchar_t* bank : {L"fraBankInfo", L"fraBankAcctInfo"}) {
          EXPECT_TRUE(!user.visible(bank) || frame.height == user.seen(bank).place.bottom() + 100) << bank;
        }
      }
      // Whatever is shown later, the buttons stay in the room that an embedding host has made.
      if (user.visible(L"cmbCurrencyCode") && user.enabled(L"cmbCurrencyCode")) {
        user.click(L"cmbCurrencyCode");
        dynamic_cast<forms::DropDownList&>(user.control(L"cmbCurrencyCode")).picked(0);
        user.click(L"ran_payee_email");
      }
      installation.answers[L"ValidateBankAccount"].result = 2;
      for (const wchar_t* number : {L"txtTransit", L"txtBankID", L"txtAccount"}) put(user, number, L"123");
      user.click(L"cmd_ok");
      EXPECT_TRUE(user.visible(L"txtAccountConf") || user.visible(L"txtConfirmBankAccountNumber"));
      EXPECT_LE(user.seen(L"cmd_ok").place.bottom(), ok.bottom() + 500);
    }
    random.Unload_From_Remote();
    component.store = before;
  }
}

TEST_F(SetupFormTest, ThePaymentKindOpensAndClosesTheBankBlock) {
  individual();
  component.store.UserBankAcctPermission = flagFalse;
  User user = shown();
  auto& business = dynamic_cast<forms::OptionButton&>(user.control(L"optBusiness"));
  auto& employee = dynamic_cast<forms::OptionButton&>(user.control(L"optEmployee"));
  business.setSelected(true);
  EXPECT_FALSE(user.enabled(L"txtAccount"));
  for (const wchar_t* number : {L"txtTransit", L"txtBankID", L"txtAccount"}) EXPECT_EQ(user.text(number), L"");
  employee.setSelected(true);
  EXPECT_TRUE(user.enabled(L"txtAccount"));
  EXPECT_EQ(user.focus(), L"txtTransit");
  component.store.UserBankAcctPermission = flagTrue;
  user.control(L"fraBankAcctInfo").setEnabled(false);
  business.setSelected(true);
  EXPECT_TRUE(user.enabled(L"txtAccount"));
}

TEST_F(SetupFormTest, InTheUnitedStatesItIsAnIndividualOutOfSight) {
  unitedStates();
  EXPECT_TRUE(shown().checked(L"optCIndividual"));
}

TEST_F(SetupFormTest, ABusinessNumberMakesABusiness) {
  component.store.PayeeIndBussFlg = L"I";
  User user = shown();
  user.click(L"optCIndividual");
  put(user, L"txtBusinessNum", L"1");
  EXPECT_TRUE(user.checked(L"optCBusiness"));
}

}  // namespace
}  // namespace nv::test
