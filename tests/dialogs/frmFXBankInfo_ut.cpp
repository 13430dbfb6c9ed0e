// The foreign bank details dialog: its two sections, what OK refuses, how a changed account is confirmed, and what each
// field makes of what is typed.
#include "dialogs/fxbank/frmFXBankInfo.h"

#include <algorithm>

#include "dialogs/support/CountryColumn.h"
#include "tests/support/ComponentTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;

/// The names of a section's controls.
struct Section {
  const wchar_t* country;
  const wchar_t* frame;
  const wchar_t* number;
  const wchar_t* account;
  const wchar_t* label;
  const wchar_t* numberConf;
  const wchar_t* accountConf;
};
constexpr Section abroad = {L"FR",
                            L"fraIntlBanks",
                            L"txtSwiftNumber",
                            L"txtBankAccount",
                            L"lblConfirmInt",
                            L"txtSwiftNumberConf",
                            L"txtBankAccountConf"};
constexpr Section unitedStates = {
    L"US", L"fraUSBanks", L"txtUSABA", L"txtUSBankAccount", L"lblConfirmUS", L"txtUSABAConf", L"txtUSBankAccountConf"};

class ForeignBankTest : public ComponentTest {
 protected:
  ForeignBankTest() : rows(countryColumns) {
    component.store.WhatKindOfBiller = L" ";
    component.store.postOfficeBoxWords = {L"PO BOX"};
    rows.add({L"Canada", L"CA", L"1"});
    rows.add({L"United States", L"US", L"1"});
    rows.add({L"France", L"FR", L"33"});
  }

  /// A bank of the section's country, as on record.
  static frmFXBankInfo::Details bank(const Section& section) {
    frmFXBankInfo::Details bank{L"BANK", L"1 MAIN STREET", L"CITY", L"PROV", section.country, {}, {}, {}, {}};
    if (&section == &unitedStates) {
      bank.routing = L"021000021";
      bank.usAccount = L"123456";
    } else {
      bank.swift = L"BNPAFRPP";
      bank.account = L"FR7612345";
    }
    return bank;
  }

  /// Whether OK accepted what the user did; `details` is what the dialog hands back.
  bool accepted(const frmFXBankInfo::Details& opening, const std::function<void(User&)>& inside) {
    const bool us = opening.country == L"US";
    component.store.PayeeFXBankAccount = us ? opening.routing + opening.usAccount : opening.account;
    component.store.PayeeFXBankSwift = opening.swift;
    const auto form = std::make_shared<frmFXBankInfo>(component);
    form->load();
    form->fill(opening, {L"AB", L"ON", L"QC"}, rows);
    widgetset.whenModal([&](User& user) {
      inside(user);
      if (user.open()) user.click(L"cmd_cancel");
    });
    form->showModal();
    details = form->details();
    return form->OKClicked() != flagFalse;
  }

  static void put(User& user, std::wstring_view field, const std::wstring& text) {
    dynamic_cast<forms::TextField&>(user.control(field)).setText(text);
  }
  void ok(User& user, const wchar_t* message, const wchar_t* caption = L"NVRandom") {
    messages.expect({.text = message, .caption = caption});
    user.click(L"cmd_ok");
    EXPECT_TRUE(user.open());
  }

  forms::RowTable rows;
  frmFXBankInfo::Details details;
};

TEST_F(ForeignBankTest, OKRefusesOneThingAfterTheOther) {
  struct Mend {
    const wchar_t* message;
    const wchar_t* focus;  // nullptr: where it was
    const wchar_t* field;
    const wchar_t* text;
    const wchar_t* caption = L"NVRandom";
  };
  const wchar_t* const postOfficeBox =
      L"Post Office Box address cannot be used.  Please enter physical street address.";
  const std::vector<Mend> address = {
      {L"You must enter bank name.", L"txtBankName", L"txtBankName", L"Bank"},
      {L"You must enter bank street.", L"txtBankStreet", L"txtBankStreet", L"po  box 1"},
      {L"You must enter bank city.", L"txtBankCity", L"txtBankCity", L"City"},
      {L"You must enter bank province/state.", L"cmbBankProv", L"cmbBankProv", L"PROV"},
  };
  const wchar_t* const both = L"You must enter both an ABA Routing # and an Account #.";
  const wchar_t* const invalid =
      L"The ABA Routing # that you have entered is not valid. Please make sure you enter a valid 9 digit ABA Routing "
      L"#.";
  const wchar_t* const length = L"Swift numbers must be either 8 or 11 characters long.";
  const std::pair<Section, std::vector<Mend>> sections[] = {
      {abroad,
       {{postOfficeBox, nullptr, L"txtBankStreet", L"1 Main Street"},
        {L"You must enter Swift code.", nullptr, L"txtSwiftNumber", L"BNPAFRP"},
        {length, nullptr, L"txtSwiftNumber", L"BNPAFRPP1"},
        {length, nullptr, L"txtSwiftNumber", L"BNPAFRPPXXX"},
        {L"You must enter a bank account number.", nullptr, L"txtBankAccount", L"FR1"}}},
      {unitedStates,
       {{postOfficeBox, nullptr, L"txtBankStreet", L"1 Main Street"},
        {both, nullptr, L"txtUSABA", L"021000022", L"Bank Account Number Validation"},
        {both, nullptr, L"txtUSBankAccount", L"123", L"Bank Account Number Validation"},
        {invalid, nullptr, L"txtUSABA", L"021000021", L"Invalid ABA #"}}},
  };
  for (const auto& [section, mends] : sections) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(section.country)));
    EXPECT_TRUE(
        accepted({L" ", L" ", L" ", L" ", L"", {}, {}, {}, {}}, [&, &section = section, &mends = mends](User& user) {
          const auto mend = [&](const std::vector<Mend>& list) {
            for (const Mend& each : list) {
              ok(user, each.message, each.caption);
              EXPECT_EQ(user.focus(), each.focus ? each.focus : L"cmd_ok");
              if (each.focus) {
                EXPECT_EQ(user.text(each.focus), L"");
              }
              put(user, each.field, each.text);
            }
          };
          mend(address);
          ok(user, L"You must enter bank country.");
          EXPECT_EQ(user.focus(), L"cmbBankCountry");
          user.choose(L"cmbBankCountry", section.country);
          user.click(L"txtBankName");
          EXPECT_EQ(user.focus(), section.number);
          mend(mends);
          user.click(L"cmd_ok");
          EXPECT_EQ(user.focus(), section.numberConf) << "a new account is confirmed";
          put(user, section.numberConf, user.text(section.number));
          put(user, section.accountConf, user.text(section.account));
          user.click(L"cmd_ok");
        }));
    EXPECT_EQ(details.name + details.street + details.city + details.province + details.country,
              std::wstring(L"BANK1 MAIN STREETCITYPROV") + section.country);
  }
}

TEST_F(ForeignBankTest, WhatItWasOpenedWithIsAcceptedAtOnce) {
  for (const Section* section : {&abroad, &unitedStates}) {
    EXPECT_TRUE(accepted(bank(*section), [&](User& user) {
      EXPECT_EQ(user.focus(), L"txtBankName");
      EXPECT_TRUE(user.enabled(section->account));
      EXPECT_FALSE(user.enabled((section == &abroad ? unitedStates : abroad).account));
      put(user, L"txtBankName", L" Another ");
      put(user, section->account, user.text(section->account) + L" ");
      user.click(L"cmd_ok");
    }));
    EXPECT_EQ(details.name, L"ANOTHER");
    EXPECT_FALSE(accepted(bank(*section), [](User& user) { user.click(L"cmd_cancel"); }));
    EXPECT_FALSE(accepted(bank(*section), [](User& user) { user.closeBox(); }));
  }
}

TEST_F(ForeignBankTest, AChangedAccountIsTypedTwice) {
  for (const Section* section : {&abroad, &unitedStates}) {
    const Section& s = *section;
    SCOPED_TRACE(testing::PrintToString(std::wstring(s.country)));
    const bool us = section == &unitedStates;
    const std::wstring number = us ? L"011000015" : L"DEUTDEFF", account = us ? L"98Z" : L"DE12";
    EXPECT_TRUE(accepted(bank(s), [&](User& user) {
      const auto confirming = [&](bool open) {
        for (const wchar_t* name : {s.label, s.numberConf, s.accountConf}) EXPECT_EQ(user.visible(name), open) << name;
        for (const wchar_t* name : {s.number, s.account}) EXPECT_EQ(user.masked(name), open) << name;
      };
      struct Attempt {
        std::wstring number;
        std::wstring account;
        const wchar_t* focus;
        std::wstring selected{};
      };
      put(user, s.number, number);
      put(user, s.account, account);
      confirming(false);
      user.click(L"cmd_ok");
      confirming(true);
      EXPECT_EQ(user.focus(), s.numberConf);
      const Attempt attempts[] = {
          {L"", L"", s.numberConf},          {number, L"", s.accountConf},        {L"", account, s.numberConf},
          {L"X", L"Y", s.accountConf, L"Y"}, {L"X", account, s.numberConf, L"X"}, {number, L"Y", s.accountConf, L"Y"},
      };
      for (const Attempt& attempt : attempts) {
        put(user, s.numberConf, attempt.number);
        put(user, s.accountConf, attempt.account);
        user.click(L"cmd_ok");
        EXPECT_TRUE(user.open());
        confirming(true);
        EXPECT_EQ(user.focus(), attempt.focus);
        EXPECT_EQ(user.selected(attempt.focus), attempt.selected);
      }
      user.type(s.account, L"\b");
      EXPECT_FALSE(user.masked(s.account)) << "what is changed is seen";
      put(user, s.numberConf, L" " + number + L" ");
      put(user, s.accountConf, L" " + account);
      user.click(L"cmd_ok");
      EXPECT_EQ(user.focus(), s.accountConf) << "which is not what it was";
      put(user, s.account, account);
      user.click(L"cmd_ok");
    }));
    EXPECT_EQ(us ? details.routing : details.swift, number);
    EXPECT_EQ(us ? details.usAccount : details.account, account);
  }
}

TEST_F(ForeignBankTest, AChangeThatIsTakenBackIsStillConfirmed) {
  EXPECT_TRUE(accepted(bank(abroad), [](User& user) {
    put(user, L"txtBankAccount", L"X");
    user.click(L"cmd_ok");
    put(user, L"txtBankAccount", L"FR7612345");
    user.click(L"cmd_ok");
    EXPECT_EQ(user.focus(), L"txtSwiftNumberConf");
    put(user, L"txtSwiftNumberConf", L"BNPAFRPP");
    put(user, L"txtBankAccountConf", L"FR7612345");
    user.click(L"cmd_ok");
  }));
}

TEST_F(ForeignBankTest, AnotherCountryDiscardsTheSectionThatIsLeft) {
  for (const auto& [from, to] : {std::pair{&abroad, &unitedStates}, std::pair{&unitedStates, &abroad}}) {
    accepted(bank(*from), [&, &from = from, &to = to](User& user) {
      put(user, from->account, L"9");
      user.click(L"cmd_ok");
      put(user, from->numberConf, L"9");
      EXPECT_TRUE(user.visible(from->label));
      user.choose(L"cmbBankCountry", to->country);
      user.click(L"txtBankName");
      EXPECT_EQ(user.focus(), to->number) << "ready for the new numbers";
      for (const wchar_t* name : {from->number, from->account, from->numberConf, from->accountConf}) {
        EXPECT_EQ(user.text(name), L"") << name;
        EXPECT_FALSE(user.enabled(name)) << name;
      }
      for (const wchar_t* name : {from->label, from->numberConf, from->accountConf}) EXPECT_FALSE(user.visible(name));
      EXPECT_FALSE(user.enabled(from->frame));
      EXPECT_TRUE(user.enabled(to->account));

      // Back again, the confirmation begins anew.
      user.choose(L"cmbBankCountry", from->country);
      user.click(L"txtBankName");
      put(user, from->number, from == &abroad ? L"DEUTDEFF" : L"011000015");
      put(user, from->account, L"9");
      user.click(L"cmd_ok");
      EXPECT_TRUE(user.open());
      EXPECT_EQ(user.focus(), from->numberConf);
      EXPECT_EQ(user.text(from->numberConf), L"");
    });
  }
}

TEST_F(ForeignBankTest, LeavingTheDialogSwitchesNothing) {
  EXPECT_FALSE(accepted(bank(unitedStates), [](User& user) {
    user.choose(L"cmbBankCountry", L"FR");
    user.click(L"cmd_cancel");
  }));
  EXPECT_EQ(details.routing, L"021000021");
  EXPECT_EQ(details.usAccount, L"123456");
}

TEST_F(ForeignBankTest, FieldsAreCleansedAndLeadOn) {
  struct Row {
    const Section* section;
    const wchar_t* field;
    std::size_t length;
    const wchar_t* next;
  };
  const Row fields[] = {
      {&abroad, L"txtBankName", 35, L"txtBankStreet"},
      {&abroad, L"txtBankStreet", 35, L"txtBankCity"},
      {&abroad, L"txtBankCity", 35, L"cmbBankProv"},
      {&abroad, L"txtSwiftNumber", 11, L"txtBankAccount"},
      {&abroad, L"txtBankAccount", 34, L"cmd_ok"},
      {&abroad, L"txtSwiftNumberConf", 11, L"txtBankAccountConf"},
      {&abroad, L"txtBankAccountConf", 34, L"cmd_ok"},
      {&unitedStates, L"txtUSABA", 9, L"txtUSBankAccount"},
      {&unitedStates, L"txtUSBankAccount", 17, L"cmd_ok"},
      {&unitedStates, L"txtUSABAConf", 9, L"txtUSBankAccountConf"},
      {&unitedStates, L"txtUSBankAccountConf", 17, L"cmd_ok"},
  };
  for (const Row& row : fields) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(row.field)));
    accepted(bank(*row.section), [&](User& user) {
      for (const wchar_t* name : {row.section->label, row.section->numberConf, row.section->accountConf}) {
        user.control(name).setVisible(true);
        user.control(name).setEnabled(true);
      }
      put(user, row.field, L"");
      user.click(row.field);
      user.type(L"a\"é~1 ");
      // One confirmation shapes the number itself instead; what is typed there is compared as it is.
      const bool shapesOther = std::wstring(row.field) == L"txtUSABAConf";
      EXPECT_EQ(user.text(row.field), shapesOther ? L"a\"é~1 " : L"A1 ");
      user.type(std::wstring(row.length - user.text(row.field).size() - 1, L'x'));
      EXPECT_EQ(user.focus(), row.field);
      user.type(L"x");
      EXPECT_EQ(user.focus(), row.next);
      EXPECT_EQ(user.text(row.field).size(), row.length);
    });
  }
}

TEST_F(ForeignBankTest, TheListsTakeCapitalsOnly) {
  for (const wchar_t* list : {L"cmbBankCountry", L"cmbBankProv"}) {
    accepted(bank(abroad), [&](User& user) {
      std::wstring seen;
      for (wchar_t c = 1; c <= 255; ++c) {
        if (c == forms::keys::tab || c == forms::keys::escape) continue;
        put(user, list, L"");
        user.control(list).setFocus();
        user.type(std::wstring(1, c));
        seen += user.text(list);
      }
      EXPECT_EQ(seen, L"ABCDEFGHIJKLMNOPQRSTUVWXYZ");
      put(user, list, L"FR");
      user.control(list).setFocus();
      user.key(forms::keys::end);
      user.type(L"\b");
      EXPECT_EQ(user.text(list), L"F");
      put(user, L"cmbBankCountry", L"FR");
    });
  }
}

TEST_F(ForeignBankTest, AProvinceOfCanadaIsCompleted) {
  const auto typed = [this](const wchar_t* country, const wchar_t* keys) {
    std::wstring text;
    frmFXBankInfo::Details opening = bank(abroad);
    opening.country = country;
    opening.province.clear();
    accepted(opening, [&](User& user) {
      user.type(L"cmbBankProv", keys);
      text = user.text(L"cmbBankProv");
    });
    return text;
  };
  EXPECT_EQ(typed(L"CA", L"Q"), L"QC");
  EXPECT_EQ(typed(L"CAN", L"O"), L"ON");
  EXPECT_EQ(typed(L"CA", L"X"), L"X");
  EXPECT_EQ(typed(L"CA", L"Q\b"), L"Q") << "not again what was just erased";
  EXPECT_EQ(typed(L"FR", L"Q"), L"Q");
}

TEST_F(ForeignBankTest, NumbersCannotBePasted) {
  for (const Section* section : {&abroad, &unitedStates}) {
    accepted(bank(*section), [&](User& user) {
      put(user, section->account, L"9");
      user.click(L"cmd_ok");
      for (const wchar_t* name : {section->number, section->account, section->numberConf, section->accountConf}) {
        put(user, name, L"");
        user.click(name);
        user.paste(L"123");
        user.key(forms::keys::insert, forms::shiftKey);
        EXPECT_EQ(user.text(name), L"") << name;
        machine.clipboard = L"123";
        user.rightClick(name);
        EXPECT_EQ(machine.clipboard, L"") << name;
      }
    });
  }
}

TEST_F(ForeignBankTest, SomeProceduresCarryTheOtherDialogsName) {
  accepted(bank(abroad), [this](User& user) {
    user.click(L"txtBankAccount");
    startTrace();
    user.type(L"x");
    user.rightClick(L"txtBankAccount");
    user.click(L"txtBankName");
    EXPECT_TRUE(
        inOrder(traced(), {L"RandomInfo - txtBankAccount_KeyDown", L"frmFXBankInfo - txtBankAccount_Change",
                           L"RandomInfo - txtBankAccount_MouseDown", L"RandomInfo - txtBankAccount_LostFocus"}));
    component.store.PlayByPlayEnabled = flagFalse;
  });
}

TEST_F(ForeignBankTest, ARunTimeErrorIsReportedAndLeavesTheDialogOpen) {
  accepted(bank(abroad), [this](User& user) {
    put(user, L"txtBankName", L"");
    messages.expect(
        {.text = L"You must enter bank name.", .whileOpen = [] { throw RuntimeError(ErrorNumber::typeMismatch); }});
    messages.expect({.text = L"The following error: 'Type mismatch (Error 13)' occurred in procedure 'frmFXBankInfo - "
                             L"cmd_ok_Click'.",
                     .icon = MessageBoxes::Icon::critical});
    user.click(L"cmd_ok");
    EXPECT_TRUE(user.open());
  });
}

TEST_F(ForeignBankTest, NothingOverlaps) {
  accepted(bank(abroad), [](User& user) {
    const auto& controls = user.form().controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        if (controls[i]->frame() != controls[j]->frame()) continue;
        const forms::Place a = controls[i]->place(), b = controls[j]->place();
        EXPECT_FALSE(a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom())
            << controls[i]->fullName() << L" and " << controls[j]->fullName();
      }
    }
  });
}

}  // namespace
}  // namespace nv::test
