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
    return form->OKClicked();
  }

  static void put(User& user, std::wstring_view field, const std::wstring& text) {
    dynamic_cast<forms::TextField&>(user.control(field)).setText(text);
  }

  forms::RowTable rows;
  frmFXBankInfo::Details details;
};

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
