// How the biller dialog opens: what each kind of biller gets to see, in which state, and what the buttons that tell the
// kind change.
#include <algorithm>

#include "forms/Frame.h"
#include "forms/Toggle.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

class SetupFormTest : public BillerTest {
 protected:
  using Change = std::function<void(Store&)>;

  /// Opens the dialog on the record after this change, looks at it, and takes both back.
  void look(const Change& change, const std::function<void(User&)>& look) {
    const Store before = component.store;
    if (change) change(component.store);
    {
      User user = shown();
      look(user);
    }
    random.Unload_From_Remote();
    component.store = before;
  }

  struct Mode {
    const char* what;
    Change change;
    std::wstring title;
    std::wstring mail;
    Texts shown;
    Texts hidden;
    Texts tabs;  // the fields in the order of the Tab key
  };
  std::vector<Mode> modes();
};

Texts operator+(Texts a, const Texts& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const Texts address = {L"ran_payee_street", L"ran_payee_city", L"ran_payee_prov", L"ran_payee_country",
                       L"ran_payee_postal"};
const Texts northAmerica = {L"txtPhoneCountryCode", L"ran_payee_ph_area",  L"ran_payee_phone",
                            L"txtFaxCountryCode",   L"ran_payee_fax_area", L"ran_payee_faxnumber"};
const Texts dialledAbroad = {L"txtPhoneCountryCode", L"ran_Inter_payee_phone", L"txtFaxCountryCode",
                             L"ran_inter_payee_faxnumber"};
const Texts web = {L"ran_payee_email", L"ran_payee_www", L"ran_payee_contact"};
const Texts domesticBank = {L"txtTransit", L"txtBankID", L"txtAccount"};
const Texts routing = {L"txtBankName", L"txtRoutingNumber", L"txtBankAccountNumber"};
const Texts marks = {L"lblAsterisk(0)", L"lblAsterisk(1)", L"lblAsterisk(2)", L"lblAsterisk(3)",
                     L"lblAsterisk(4)", L"lblAsterisk(5)", L"lblAsterisk(6)"};
const Texts bankMarks = {L"lblAsterisk(50)", L"lblAsterisk(51)", L"lblAsterisk(52)"};
const Texts confirmation = {L"lblConfirm", L"txtTransitConf", L"txtBankIDConf", L"txtAccountConf"};
const Texts never = {L"optBusiness", L"optEmployee", L"lblbkclk", L"lblNotification", L"txtConfirmBankAccountNumber"};
const Texts buttons = {L"cmd_help", L"cmd_ok", L"cmd_cancel"};

std::vector<SetupFormTest::Mode> SetupFormTest::modes() {
  const Texts currency = {L"cmbCurrencyCode"}, discounts = {L"chkDiscountsApply"}, kind = {L"fraBusinessNum"},
              bank = {L"fraBankAcctInfo"}, unitedStatesBank = {L"fraBankInfo"},
              foreign = {L"lblFXBankingInfo", L"cmdFXBankingInfo"}, cheque = {L"cmdCheque"}, note = {L"lbl_note"},
              mark7 = {L"lblAsterisk(7)"}, link = {L"ctHyperLink1"};
  const Texts hidden = never + confirmation;
  const auto member = [](Store& store) { store.NVMemberType = L"B"; };
  return {
      {"domestic business", member, title, L"Email:",
       address + currency + northAmerica + web + discounts + kind + mark7 + bank + note + marks,
       hidden + unitedStatesBank + cheque + bankMarks + Texts{L"cmdFXBankingInfo", L"ran_Inter_payee_phone"},
       // Leaving the Canadian currency opens the business number to entry, ticked off or not.
       address + currency + northAmerica + web + discounts +
           Texts{L"optCBusiness", L"txtBusinessNum", L"chkBNNotAvailable"} + domesticBank + buttons},
      {"domestic individual", [this](Store&) { individual(); }, title, L"Recipient Email Address",
       bank + domesticBank + cheque + bankMarks + Texts{L"lblAsterisk(2)", L"ran_payee_email", L"ran_payee_name"},
       hidden + unitedStatesBank + foreign + address + currency + northAmerica + dialledAbroad + discounts + kind +
           note +
           Texts{L"ran_payee_www", L"ran_payee_contact", L"lblAsterisk(0)", L"lblAsterisk(6)", L"lblCurrency",
                 L"Label3", L"Label19", L"Label20"},
       Texts{L"ran_payee_email"} + domesticBank + cheque + buttons},
      {"international", [this](Store& store) { international(), store.NVMemberType = L"B"; }, title, L"Email:",
       address + currency + dialledAbroad + web + discounts + foreign + kind + marks,
       hidden + unitedStatesBank + cheque + bankMarks + bank + Texts{L"ran_payee_ph_area"},
       // From the country the focus goes straight to the telephone number, which is to be entered anew.
       Texts{L"ran_payee_street", L"ran_payee_city", L"ran_payee_prov", L"ran_payee_country", L"ran_Inter_payee_phone",
             L"txtFaxCountryCode", L"ran_inter_payee_faxnumber"} +
           web + discounts + Texts{L"cmdFXBankingInfo"} + buttons},
      {"United States, permitted", [this](Store& store) { unitedStates(), store.FormTitleFromMain = L"  US Billers "; },
       L"US Billers", L"Email:", address + currency + northAmerica + web + unitedStatesBank + routing + link + marks,
       hidden + foreign + cheque + bankMarks + bank + kind + mark7 + discounts + note +
           Texts{L"imgHelpCSFTInfo(0)", L"imgHelpCSFTInfo(3)"},
       Texts{L"ran_payee_street", L"ran_payee_city", L"ran_payee_prov", L"ran_payee_postal"} + northAmerica + web +
           routing + link + buttons},
      {"United States, not permitted",
       [this](Store& store) { unitedStates(), store.UserBankAcctPermission = flagFalse; },
       title,
       L"Email:",
       address + currency + northAmerica + web + marks + Texts{L"imgHelpCSFTInfo(0)", L"imgHelpCSFTInfo(3)"},
       hidden + unitedStatesBank + cheque + bankMarks + bank + kind + discounts + note,
       {}},
  };
}

TEST_F(SetupFormTest, EachKindOfBillerSeesItsOwn) {
  for (const Mode& mode : modes()) {
    SCOPED_TRACE(mode.what);
    look(mode.change, [&](User& user) {
      EXPECT_EQ(user.title(), mode.title);
      EXPECT_EQ(user.caption(L"lblEmail"), mode.mail);
      for (const std::wstring& name : mode.shown) EXPECT_TRUE(user.visible(name)) << name;
      for (const std::wstring& name : mode.hidden) EXPECT_FALSE(user.visible(name)) << name;
      EXPECT_EQ(user.caption(L"fraBankAcctInfo"), std::wstring(L"Bank Account Number to be Credited") +
                                                      (component.store.PayeeIndBusnTag == L"1" ? L"" : L" (Optional)"));
    });
  }
}

TEST_F(SetupFormTest, TabFollowsTheOrderOfFillingIn) {
  for (const Mode& mode : modes()) {
    if (mode.tabs.empty()) continue;
    SCOPED_TRACE(mode.what);
    look(mode.change, [&](User& user) {
      Texts visited = {user.focus()};
      for (std::size_t i = 1; i < mode.tabs.size(); ++i) {
        user.tab();
        visited.push_back(user.focus());
      }
      EXPECT_EQ(visited, mode.tabs);
      user.tab();
      EXPECT_EQ(user.focus(), mode.tabs.front());
    });
  }
}

TEST_F(SetupFormTest, NothingOverlapsOrReachesOutOfItsFrame) {
  for (const Mode& mode : modes()) {
    SCOPED_TRACE(mode.what);
    look(mode.change, [&](User& user) {
      const auto& controls = user.form().controls();
      for (std::size_t i = 0; i < controls.size(); ++i) {
        const forms::Control& one = *controls[i];
        if (!user.visible(one.fullName())) continue;
        const forms::Place a = one.place();
        const forms::Place around = one.frame() ? one.frame()->place() : user.form().place();
        EXPECT_TRUE(a.left >= 0 && a.top >= 0 && a.left + a.width <= around.width && a.bottom() <= around.height)
            << one.fullName();
        for (std::size_t j = i + 1; j < controls.size(); ++j) {
          const forms::Control& other = *controls[j];
          if (other.frame() != one.frame() || !user.visible(other.fullName())) continue;
          const forms::Place b = other.place();
          EXPECT_FALSE(a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.bottom() &&
                       b.top < a.bottom())
              << one.fullName() << L" and " << other.fullName();
        }
      }
      const forms::Place ok = user.seen(L"cmd_ok").place, frame = user.seen(L"Frame1").place;
      EXPECT_GE(ok.top, frame.bottom());
      EXPECT_EQ(user.form().place().height, ok.bottom() + 500);
      EXPECT_LE(user.form().place().height / 15, 768) << "pixels at 96 dpi";
      if (component.store.WhatKindOfBiller == L" ") return;
      EXPECT_EQ(user.seen(L"Label15").place.top, frame.bottom() + 40);
      if (!user.visible(L"fraBankInfo")) return;
      EXPECT_EQ(frame.height, user.seen(L"fraBankInfo").place.bottom() + 100);
    });
  }
}

TEST_F(SetupFormTest, TheBankOfTheUnitedStatesIsTakenApart) {
  struct Case {
    const wchar_t* country;
    const wchar_t* account;
    const wchar_t* swift;
    const wchar_t* seenRouting;
    const wchar_t* seenAccount;
  };
  for (const Case& c : {Case{L"US", L"021000021123456", L" ", L"021000021", L"123456"},
                        Case{L"US", L"123456", L"021ooo021", L"021ooo021", L"123456"},
                        Case{L"US", L"123456", L"021000021", L"021000021", L"123456"},
                        Case{L"US", L"021000021", L"", L"021000021", L""}, Case{L"US", L"0210", L"", L"0210", L""},
                        Case{L"", L"123456", L"021000021", L"021000021", L"123456"}}) {
    SCOPED_TRACE(c.account);
    look(
        [&](Store& store) {
          unitedStates();
          store.PayeeFXBankCountry = c.country;
          store.PayeeFXBankAccount = c.account;
          store.PayeeFXBankSwift = c.swift;
        },
        [&](User& user) {
          EXPECT_EQ(user.text(L"txtBankName"), L"FIRST BANK");
          EXPECT_EQ(user.text(L"txtRoutingNumber"), c.seenRouting);
          EXPECT_EQ(user.text(L"txtBankAccountNumber"), c.seenAccount);
          EXPECT_EQ(user.caption(L"ctHyperLink1"), L"Click here for more information about US Payments");
          EXPECT_FALSE(user.enabled(L"ran_payee_country"));
          EXPECT_FALSE(user.enabled(L"cmbCurrencyCode"));
          EXPECT_TRUE(user.checked(L"optCIndividual")) << "out of sight, and known to hosts so";
        });
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
  for (const std::wstring& number : domesticBank) EXPECT_EQ(user.text(number), L"");
  employee.setSelected(true);
  EXPECT_TRUE(user.enabled(L"txtAccount"));
  EXPECT_EQ(user.focus(), L"txtTransit");
  component.store.UserBankAcctPermission = flagTrue;
  user.control(L"fraBankAcctInfo").setEnabled(false);
  business.setSelected(true);
  EXPECT_TRUE(user.enabled(L"txtAccount"));
}

}  // namespace
}  // namespace nv::test
