// What becomes of what the user does in the fields of the biller dialog: keys, full fields, pasting, the focus.
#include <algorithm>

#include "forms/TextField.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

std::wstring range(wchar_t from, wchar_t to) {
  std::wstring characters;
  for (wchar_t c = from; c <= to; ++c) characters += c;
  return characters;
}

const std::wstring digits = range(L'0', L'9'), capitals = range(L'A', L'Z'), small = range(L'a', L'z');
/// What cleansing leaves.
const std::wstring clean = range(32, 33) + range(35, 125);
const std::wstring cleanCapitals = range(32, 33) + range(35, L'`') + range(L'{', 125);

class FieldRulesTest : public BillerTest {
 protected:
  FieldRulesTest() {
    component.store.NVMemberType = L"B";
    component.store.PayeeBusinessNum = L"100000009";
  }

  static forms::TextField& field(User& user, const wchar_t* name) {
    return dynamic_cast<forms::TextField&>(user.control(name));
  }
  /// Brings the field to light, if it is one that only shows at times, and empties it with the focus in it.
  static void begin(User& user, const wchar_t* name) {
    field(user, name).setVisible(true);
    field(user, name).setFocus();
    field(user, name).setText({});
  }
};

TEST_F(FieldRulesTest, NothingAppearsButWhatTheRuleAllows) {
  struct Field {
    const wchar_t* name;
    std::wstring appears;
    bool capitalises = false;
  };
  struct Group {
    const char* what;
    std::function<void()> record;
    std::vector<Field> fields;
  };
  const Group groups[] = {
      {"in Canada",
       nullptr,
       {{L"ran_payee_street", cleanCapitals, true},
        {L"ran_payee_city", cleanCapitals, true},
        {L"ran_payee_prov", capitals, true},
        {L"ran_payee_country", capitals, true},
        {L"ran_payee_postal", capitals, true},  // at the first position
        {L"cmbCurrencyCode", capitals, true},
        {L"txtPhoneCountryCode", digits},
        {L"ran_payee_ph_area", digits},
        {L"ran_payee_phone", digits},
        {L"txtFaxCountryCode", digits},
        {L"ran_payee_fax_area", digits},
        {L"ran_payee_faxnumber", digits},
        {L"ran_payee_email", clean},
        {L"ran_payee_www", clean},
        {L"ran_payee_contact", cleanCapitals, true},
        {L"txtBusinessNum", capitals + digits, true},
        {L"txtTransit", digits},
        {L"txtBankID", digits},
        {L"txtAccount", digits},
        {L"txtTransitConf", digits},
        {L"txtBankIDConf", digits},
        {L"txtAccountConf", digits}}},
      {"abroad",
       [this] { international(); },
       {{L"ran_Inter_payee_phone", digits},
        {L"ran_inter_payee_faxnumber", digits},
        {L"ran_payee_postal", capitals + digits + L" -", true}}},
      {"in the United States",
       [this] { unitedStates(); },
       {{L"ran_payee_postal", digits}, {L"txtBankAccountNumber", range(33, 33) + cleanCapitals.substr(2), true}}},
  };
  for (const Group& group : groups) {
    if (group.record) group.record();
    User user = shown();
    for (const Field& field : group.fields) {
      std::wstring wrong;
      for (int code = 1; code <= 255 + 3; ++code) {
        constexpr wchar_t beyond[] = {0x0152, 0x0410, 0x20AC};
        const wchar_t c = code <= 255 ? static_cast<wchar_t>(code) : beyond[code - 256];
        if (c == forms::keys::tab || c == forms::keys::enter || c == forms::keys::escape) continue;  // they lead away
        begin(user, field.name);
        user.type(std::wstring(1, c));
        const wchar_t shaped = field.capitalises && small.find(c) != small.npos ? static_cast<wchar_t>(c - 32) : c;
        const bool appears = field.appears.find(shaped) != std::wstring::npos;
        if (user.text(field.name) != (appears ? std::wstring(1, shaped) : L"")) wrong += L" " + std::to_wstring(c);
      }
      EXPECT_EQ(wrong, L"") << field.name << L" " << group.what;
      // Leaving the lists is to decide nothing.
      FieldRulesTest::field(user, L"ran_payee_country").setText(component.store.PayeeCountry);
      FieldRulesTest::field(user, L"cmbCurrencyCode").setText(component.store.PayeeCurrency);
    }
    random.Unload_From_Remote();
  }
}

TEST_F(FieldRulesTest, APostalCodeOfCanadaAlternates) {
  User user = shown();
  begin(user, L"ran_payee_postal");
  user.type(L"1kk1a-0b1c2");
  EXPECT_EQ(user.text(L"ran_payee_postal"), L"K1A0B1") << "and no more than six";
  field(user, L"ran_payee_postal").select(1, 1);
  user.type(L"M7");
  EXPECT_EQ(user.text(L"ran_payee_postal"), L"K7A0B1") << "each position keeps its kind";
  field(user, L"ran_payee_postal").selectAll();
  user.type(L"9h");
  EXPECT_EQ(user.text(L"ran_payee_postal"), L"H");
}

TEST_F(FieldRulesTest, EnterAndAFullFieldLeadOn) {
  struct Row {
    const wchar_t* field;
    const wchar_t* enter;  // where Enter leads
    std::wstring filling;
    const wchar_t* full;  // where a full field leads; nullptr: nowhere
  };
  const auto many = [](std::size_t count) { return std::wstring(count, L'2'); };
  struct Group {
    const char* what;
    std::function<void()> record;
    std::vector<Row> rows;
  };
  const Group groups[] = {
      {"domestic",
       [this] { component.store.PayeeCountry = L"US"; },
       {{L"ran_payee_street", L"ran_payee_city", many(60), L"ran_payee_city"},
        {L"ran_payee_city", L"ran_payee_prov", many(20), L"ran_payee_prov"},
        {L"ran_payee_prov", L"ran_payee_country", L"NY", nullptr},
        {L"ran_payee_postal", L"cmbCurrencyCode", many(9), L"cmbCurrencyCode"},
        {L"txtPhoneCountryCode", L"ran_payee_ph_area", many(4), L"ran_payee_ph_area"},
        {L"ran_payee_ph_area", L"ran_payee_phone", many(3), L"ran_payee_phone"},
        {L"ran_payee_phone", L"ran_payee_fax_area", many(7), L"ran_payee_fax_area"},
        {L"txtFaxCountryCode", L"ran_payee_fax_area", many(4), L"ran_payee_fax_area"},
        {L"ran_payee_fax_area", L"ran_payee_faxnumber", many(3), L"ran_payee_faxnumber"},
        {L"ran_payee_faxnumber", L"ran_payee_email", many(7), L"ran_payee_email"},
        {L"ran_payee_email", L"ran_payee_www", many(50), L"ran_payee_www"},
        {L"ran_payee_www", L"ran_payee_contact", many(50), L"ran_payee_contact"},
        {L"ran_payee_contact", L"txtBusinessNum", many(40), L"chkDiscountsApply"},
        {L"txtBusinessNum", L"txtTransit", L"100000009RT0001", L"txtTransit"},
        {L"txtTransit", L"txtBankID", many(5), L"txtBankID"},
        {L"txtBankID", L"txtAccount", many(3), L"txtAccount"},
        {L"txtAccount", L"cmd_ok", many(12), L"cmd_ok"},
        {L"txtTransitConf", L"txtBankIDConf", many(5), L"txtBankIDConf"},
        {L"txtBankIDConf", L"txtAccountConf", many(3), L"txtAccountConf"},
        {L"txtAccountConf", L"cmd_ok", many(12), L"cmd_ok"}}},
      {"international",
       [this] { international(); },
       {{L"txtPhoneCountryCode", L"ran_Inter_payee_phone", many(4), L"ran_Inter_payee_phone"},
        {L"ran_Inter_payee_phone", L"ran_inter_payee_faxnumber", many(15), L"ran_inter_payee_faxnumber"},
        {L"txtFaxCountryCode", L"ran_inter_payee_faxnumber", many(4), L"ran_inter_payee_faxnumber"},
        {L"ran_inter_payee_faxnumber", L"ran_payee_email", many(15), L"ran_payee_email"},
        {L"ran_payee_contact", L"ran_payee_contact", many(40), L"chkDiscountsApply"}}},
      {"United States",
       [this] { unitedStates(); },
       {{L"ran_payee_postal", L"ran_payee_ph_area", many(9), L"ran_payee_ph_area"},
        {L"ran_payee_contact", L"txtBankName", many(40), nullptr},
        {L"txtBankAccountNumber", L"cmd_ok", many(17), nullptr}}},
      {"individual",
       [this] { individual(), component.store.WhatKindOfBiller = L" ", component.store.PayeeCurrency = L"CAD"; },
       {{L"ran_payee_email", L"txtTransit", many(50), nullptr}}},
  };
  for (const Group& group : groups) {
    SCOPED_TRACE(group.what);
    group.record();
    User user = shown();
    for (const Row& row : group.rows) {
      SCOPED_TRACE(testing::PrintToString(std::wstring(row.field)));
      if (std::wstring(row.field).ends_with(L"Conf")) {
        for (const wchar_t* name : {L"txtTransitConf", L"txtBankIDConf", L"txtAccountConf"}) {
          user.control(name).setVisible(true);
        }
      }
      begin(user, row.field);
      user.type(L"\r");
      EXPECT_EQ(user.focus(), row.enter);

      begin(user, row.field);
      user.type(row.filling.substr(0, row.filling.size() - 1));
      EXPECT_EQ(user.focus(), row.field) << "one short";
      user.type(row.filling.substr(row.filling.size() - 1));
      EXPECT_EQ(user.focus(), row.full ? row.full : row.field);
      EXPECT_EQ(user.text(row.field).size(), row.filling.size());
    }
    random.Unload_From_Remote();
  }
}

TEST_F(FieldRulesTest, WhatIsPastedIsCleansedAndShaped) {
  User user = shown();
  struct Case {
    const wchar_t* field;
    const wchar_t* pasted;
    const wchar_t* text;
  };
  for (const Case& c :
       {Case{L"ran_payee_street", L"1 \"Main\"\r\nStré~et", L"1 MAINSTRET"},
        Case{L"ran_payee_city", L"\x7fOttawa", L"OTTAWA"}, Case{L"ran_payee_prov", L"qc", L"QC"},
        Case{L"ran_payee_postal", L"k1a0b1", L"K1A0B1"}, Case{L"ran_payee_contact", L"J\"D", L"JD"},
        Case{L"ran_payee_email", L"Jane\"@x.yz", L"Jane@x.yz"}, Case{L"ran_payee_www", L"WWW.\tx.yz", L"WWW.x.yz"},
        Case{L"txtBusinessNum", L" 100000009 ", L"100000009"}}) {
    begin(user, c.field);
    widgetset.clipboard = c.pasted;
    user.key(forms::keys::insert, forms::shiftKey);
    EXPECT_EQ(user.text(c.field), c.text) << c.field;
  }
  EXPECT_EQ(user.row(L"ran_payee_prov"), L"QC") << "a province that the host knows is the list's choice";
}

TEST_F(FieldRulesTest, TheHostHearsWhereTheFocusIs) {
  const auto reported = [this](const Texts& names) {
    User user = shown();
    for (const std::wstring& name : names) {
      user.control(L"cmd_help").setFocus();
      host.tops.clear();
      user.control(name).setFocus();
      EXPECT_EQ(host.tops, std::vector<std::int16_t>{static_cast<std::int16_t>(user.control(name).topInForm())})
          << name;
      EXPECT_GT(user.control(name).topInForm(), 0);
    }
    random.Unload_From_Remote();
  };
  reported({L"ran_payee_street", L"ran_payee_city", L"ran_payee_prov", L"ran_payee_country", L"ran_payee_postal",
            L"txtPhoneCountryCode", L"ran_payee_ph_area", L"ran_payee_phone", L"txtFaxCountryCode",
            L"ran_payee_fax_area", L"ran_payee_faxnumber", L"ran_payee_email", L"ran_payee_www", L"ran_payee_contact",
            L"txtTransit", L"txtBankID", L"txtAccount"});
  international();
  reported({L"ran_Inter_payee_phone", L"ran_inter_payee_faxnumber"});
}

TEST_F(FieldRulesTest, BankNumbersCannotBePasted) {
  const auto look = [this](const Texts& names, bool pasted) {
    User user = shown();
    for (const std::wstring& name : names) {
      SCOPED_TRACE(testing::PrintToString(name));
      begin(user, name.c_str());
      user.paste(L"123");
      EXPECT_EQ(user.text(name), pasted ? L"123" : L"");
      begin(user, name.c_str());
      user.key(forms::keys::insert, forms::shiftKey);
      EXPECT_EQ(user.text(name), pasted ? L"123" : L"");
      machine.clipboard = L"123";
      user.click(name);
      EXPECT_EQ(machine.clipboard, L"123");
      user.rightClick(name);
      EXPECT_EQ(machine.clipboard, L"");
    }
    random.Unload_From_Remote();
  };
  look({L"txtTransit", L"txtBankID", L"txtAccount", L"txtTransitConf", L"txtBankIDConf", L"txtAccountConf"}, false);
  look({L"ran_payee_email"}, true);
  unitedStates();
  look({L"txtRoutingNumber", L"txtBankAccountNumber", L"txtConfirmBankAccountNumber"}, false);
}

TEST_F(FieldRulesTest, ProceduresAreTracedUnderTheirNames) {
  User user = shown();
  struct Row {
    const wchar_t* field;
    const wchar_t* keyPress;
    const wchar_t* change;
  };
  for (const Row& row : {Row{L"ran_payee_city", L"ran_payee_city_KeyPress", L"ran_payee_city_Change"},
                         Row{L"txtTransit", L"txttransit_KeyPress", L"txttransit_Change"},
                         Row{L"txtBankID", L"txtbankid_KeyPress", L"txtBankID_Change"},
                         Row{L"txtAccount", L"txtaccount_KeyPress", L"txtAccount_Change"},
                         Row{L"txtTransitConf", L"txtAccountConf_KeyPress", L"txtTransitConf_Change"},
                         Row{L"txtAccountConf", L"txtAccountConf_KeyPress", L"txtAccountConf_Change"}}) {
    begin(user, row.field);
    startTrace();
    user.type(L"2");
    component.store.PlayByPlayEnabled = flagFalse;
    const Texts trace = traced();
    EXPECT_TRUE(inOrder(trace, {L"RandomInfo - Form_KeyPress", std::wstring(L"RandomInfo - ") + row.keyPress,
                                std::wstring(L"RandomInfo - ") + row.change}))
        << testing::PrintToString(trace);
  }
}

TEST_F(FieldRulesTest, ARefusedBusinessNumberIsToBeMended) {
  installation.answers[L"VerifyAccount"].result = 0;
  User user = shown();
  const auto leave = [&](const wchar_t* to) {
    user.click(L"txtBusinessNum");
    user.click(to);
  };
  leave(L"ran_payee_email");
  EXPECT_EQ(user.focus(), L"txtBusinessNum");
  EXPECT_EQ(user.selected(L"txtBusinessNum"), L"100000009");
  user.type(L"txtBusinessNum", L"\r");
  EXPECT_EQ(user.text(L"txtBusinessNum"), L"1000000099") << "the number stays, whatever Enter types";
  user.type(L"\b");
  leave(L"chkBNNotAvailable");
  EXPECT_EQ(user.focus(), L"chkBNNotAvailable");
  user.check(L"chkBNNotAvailable", false);
  leave(L"optCIndividual");
  EXPECT_EQ(user.text(L"txtBusinessNum"), L"");
  user.click(L"optCBusiness");
  leave(L"ran_payee_email");
  EXPECT_EQ(user.focus(), L"ran_payee_email") << "an empty one is OK's business";
  user.type(L"txtBusinessNum", L"1");
  user.click(L"cmd_cancel");
  EXPECT_FALSE(user.open());
}

TEST_F(FieldRulesTest, ABusinessNumberMakesABusiness) {
  component.store.PayeeBusinessNum.clear();
  component.store.PayeeIndBussFlg = L"I";
  User user = shown();
  user.click(L"optCIndividual");
  field(user, L"txtBusinessNum").setText(L"1");
  EXPECT_TRUE(user.checked(L"optCBusiness"));
}

}  // namespace
}  // namespace nv::test
