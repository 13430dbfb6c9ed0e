// Combo boxes and multi-column drop-down lists: text, rows, and what joins them.
#include "tests/support/FormTest.h"

namespace nv::test {
namespace {

using ListsTest = FormTest;

TEST_F(ListsTest, AComboBoxJoinsTextAndEntryWhenOneIsChosen) {
  for (const wchar_t* entry : {L"ON", L"QC"}) form->combo.add(entry);
  User user = shown();
  form->combo.setListIndex(1);
  EXPECT_EQ(form->journal, (Texts{L"combo change", L"combo click"}));
  form->combo.setListIndex(1);
  EXPECT_EQ(form->journal.size(), 2U) << "chosen already";

  user.type(L"combo", L"x");
  EXPECT_EQ(user.text(L"combo"), L"QCx");
  EXPECT_EQ(form->combo.listIndex(), forms::ComboBox::none) << "typing chooses none";
  user.choose(L"combo", L"ON");
  EXPECT_EQ(user.text(L"combo"), L"ON");
  EXPECT_EQ(form->combo.listIndex(), 0);

  for (const int index : {-2, 2}) {
    EXPECT_EQ(errorOf([&] { form->combo.setListIndex(index); }), 5) << index;
    EXPECT_EQ(form->combo.listIndex(), 0);
  }
  form->combo.clear();
  EXPECT_EQ(user.rows(L"combo"), Texts{});
  EXPECT_EQ(user.text(L"combo"), L"");
  EXPECT_EQ(form->combo.listIndex(), forms::ComboBox::none);
}

TEST_F(ListsTest, TypingFindsARowOfADropDownList) {
  for (const wchar_t* row : {L"CANADA;CA", L"UKRAINE;UA", L"UNITED STATES OF X;X", L"UNITED STATES;US"}) {
    form->list.addItem(row);
  }
  struct Case {
    std::wstring typed;
    std::wstring row;
  };
  const Case cases[] = {
      {L"c", L"CANADA;CA"},
      {L"us", L"UNITED STATES;US"},
      {L"UK", L""},  // two letters that are no code are no name either
      {L"ukr", L"UKRAINE;UA"},
      {L"un", L"UNITED STATES OF X;X"},
      {L"united states", L"UNITED STATES;US"},  // just that goes before what begins so
      {L"united states ", L"UNITED STATES OF X;X"},
      {L"usx", L""},
      {L"CANADAS", L""},
      {L"", L""},
  };
  User user = shown();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.typed);
    form->list.setText(L"");
    user.type(L"list", c.typed);
    EXPECT_EQ(user.row(L"list"), c.row);
    EXPECT_EQ(user.text(L"list"), c.typed) << "what was typed stays";
    user.key(forms::keys::home, forms::shiftKey);
    user.type(L"\b");
    EXPECT_EQ(user.row(L"list"), L"") << "an empty text finds none";
  }
}

TEST_F(ListsTest, TextAndRowOfADropDownListAreIndependent) {
  form->list.addItem(L"CANADA;CA");
  form->list.addItem(L"NOWHERE");
  form->list.addItem(L";;");
  EXPECT_EQ(form->list.cell(1, 1), L"") << "a short row has empty cells";
  EXPECT_EQ(errorOf([&] { form->list.cell(3, 0); }), 9);

  User user = shown();
  EXPECT_TRUE(form->list.selectWhere(1, L"CA"));
  EXPECT_EQ(user.row(L"list"), L"CANADA;CA");
  EXPECT_EQ(user.text(L"list"), L"");
  form->list.setText(L"NOWHERE");
  EXPECT_EQ(user.row(L"list"), L"CANADA;CA");
  EXPECT_FALSE(form->list.selectWhere(1, L"ca")) << "to the letter";
  EXPECT_EQ(user.row(L"list"), L"");
  EXPECT_EQ(errorOf([&] { form->list.selectRow(3); }), 5);

  form->journal.clear();
  user.choose(L"list", L"CA");
  EXPECT_EQ(user.text(L"list"), L"CA");
  EXPECT_EQ(form->journal.back(), L"list click");
  form->list.addItem(L"UNITED STATES;US");
  EXPECT_EQ(user.row(L"list"), L"CANADA;CA") << "a further row takes nothing away";
  forms::RowTable rows(2);
  rows.add({L"US"});
  rows.add({L"CA", L"2", L"one too many"});
  form->list.setRows(rows);
  EXPECT_EQ(user.rows(L"list"), (Texts{L"US;", L"CA;2"}));
  EXPECT_EQ(errorOf([&] { form->list.setRows(forms::RowTable(3)); }), 5);
  EXPECT_FALSE(form->list.selectedRow());
  EXPECT_EQ(user.row(L"list"), L"");
  form->list.clear();
  EXPECT_EQ(user.rows(L"list"), Texts{});
  EXPECT_EQ(user.text(L"list"), L"");
}

}  // namespace
}  // namespace nv::test
