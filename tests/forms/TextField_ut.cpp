// How text gets into a field: what the user types and pastes, what handlers make of it, what code sets.
#include "forms/TextField.h"

#include <algorithm>

#include "platform/Text.h"
#include "tests/support/FormTest.h"

namespace nv::test {
namespace {

using forms::Selection;
using TextFieldTest = FormTest;

/// What the dialogs do in their Change handlers: letters in capitals, no double quotes.
void cleanse(forms::TextBox& box) {
  std::wstring text = box.text();
  std::erase(text, L'"');
  std::ranges::transform(text, text.begin(), asciiUpper);
  box.setText(text);
}

/// The same, trimmed.
void trim(forms::TextBox& box) {
  box.setText(std::wstring(trimmed(box.text())));
}

TEST_F(TextFieldTest, CaretStaysWithWhatIsTypedWhenAHandlerRewritesTheText) {
  struct Case {
    const char* what;
    std::wstring before;
    int caret;
    std::function<void(User&)> act;
    void (*change)(forms::TextBox&);
    std::wstring after;
    int caretAfter;
  };
  const Case cases[] = {
      {"at the end", L"", 0, [](User& user) { user.type(L"toronto"); }, cleanse, L"TORONTO", 7},
      {"in the middle", L"ABCD", 2, [](User& user) { user.type(L"xy"); }, cleanse, L"ABXYCD", 4},
      {"at the start", L"ABCD", 0, [](User& user) { user.type(L"xy"); }, cleanse, L"XYABCD", 2},
      {"what goes again", L"ABCD", 2, [](User& user) { user.type(L"\""); }, cleanse, L"ABCD", 2},
      {"goes again, then stays", L"ABCD", 2, [](User& user) { user.type(L"\"x"); }, cleanse, L"ABXCD", 3},
      {"pasted in the middle", L"ABCD", 2, [](User& user) { user.paste(L"x\"y\""); }, cleanse, L"ABXYCD", 4},
      {"backspace", L"ABCD", 2, [](User& user) { user.type(L"\b"); }, cleanse, L"ACD", 1},
      {"delete", L"ABCD", 2, [](User& user) { user.key(User::deleteKey); }, cleanse, L"ABD", 2},
      {"blank in front", L"AB", 0, [](User& user) { user.type(L" "); }, trim, L"AB", 0},
      {"blank behind", L"AB", 2, [](User& user) { user.type(L" "); }, trim, L"AB", 2},
      {"over a selection", L"ABCD", 2,
       [](User& user) {
         user.key(forms::keys::end, forms::shiftKey);
         user.type(L"x");
       },
       cleanse, L"ABX", 3},
  };
  User user = shown();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    form->first.change = nullptr;
    form->first.setText(c.before);
    form->first.change = [&] { c.change(form->first); };
    user.click(L"first");
    form->first.select(c.caret, 0);
    c.act(user);
    EXPECT_EQ(user.text(L"first"), c.after);
    EXPECT_EQ(form->first.text(), c.after);
    EXPECT_EQ(user.selection(L"first"), (Selection{c.caretAfter, 0}));
  }
}

TEST_F(TextFieldTest, KeyBecomesTextOneStepAfterTheOther) {
  User user = shown();
  user.click(L"first");
  form->journal.clear();
  form->whenKeyPressed = [&](wchar_t& key) { form->journal.push_back(L"form " + std::wstring(1, key)), key = L'b'; };
  form->first.keyDown = [&](forms::KeyDown& key) { form->journal.push_back(L"down " + std::to_wstring(key.code)); };
  form->first.keyPress = [&](wchar_t& key) { form->journal.push_back(L"press " + std::wstring(1, key)), key = L'c'; };
  form->first.change = [&] { form->journal.push_back(L"change " + form->first.text()); };
  user.type(L"a");
  EXPECT_EQ(form->journal, (Texts{L"down 65", L"form a", L"press b", L"change c"}));
}

TEST_F(TextFieldTest, AKeySentByAHandlerArrivesWhenTheHandlersHaveReturned) {
  User user = shown();
  form->whenKeyPressed = [this](wchar_t& key) {
    if (key == L'a') form->sendKey(L'9');
  };
  form->first.keyPress = [&](wchar_t& key) {
    if (key == L'a') user.settle();  // as while a message box is up
    form->second.setFocus();
  };
  user.type(L"first", L"a");
  EXPECT_EQ(form->first.text() + L"/" + form->second.text(), L"a/9");
}

TEST_F(TextFieldTest, HandlersDiscardKeys) {
  User user = shown();
  user.click(L"first");
  int presses = 0;
  form->first.keyPress = [&](wchar_t& key) {
    ++presses;
    if (key == L'p') key = 0;
  };
  form->whenKeyPressed = [](wchar_t& key) {
    if (key == L'f') key = 0;
  };
  form->first.keyDown = [](forms::KeyDown& key) {
    const bool shiftInsert = key.code == forms::keys::insert && key.shift == forms::shiftKey;
    const bool controlV = key.code == 'V' && key.shift == forms::controlKey;
    if (key.code == 'D' || shiftInsert || controlV) key.code = 0;
  };
  user.type(L"dfpv");
  EXPECT_EQ(presses, 2) << "what was discarded does not go on";
  user.paste(L"123");
  user.key(forms::keys::insert, forms::shiftKey);
  EXPECT_EQ(form->first.text(), L"v");
}

TEST_F(TextFieldTest, ChangeIsRaisedWhenTheTextDiffersAndOnlyThen) {
  User user = shown();
  form->first.setText(L"A");
  form->first.setText(L"A");
  EXPECT_EQ(form->journal, (Texts{L"first change"}));

  user.click(L"first");
  form->first.selectAll();
  form->journal.clear();
  user.type(L"A");  // over the selected one
  EXPECT_EQ(form->journal, Texts{});
  EXPECT_EQ(user.selection(L"first"), (Selection{1, 0}));

  int changes = 0;
  form->first.change = [&] {
    ++changes;
    form->first.setText(L"FIXED");
  };
  user.type(L"b");  // one for what was typed, one for what the handler made of it
  EXPECT_EQ(changes, 2);
}

TEST_F(TextFieldTest, ATextSetByCodeStartsAtItsStartAndSelectionsAreCutOff) {
  User user = shown();
  user.type(L"first", L"typed");
  form->first.setText(L"set");
  EXPECT_EQ(user.selection(L"first"), (Selection{0, 0}));

  struct Case {
    int start, length;
    std::wstring selected;
  };
  for (const Case& c : {Case{1, 1, L"e"}, Case{1, 99, L"et"}, Case{99, 1, L""}, Case{-1, 2, L"se"}, Case{0, -1, L""}}) {
    SCOPED_TRACE(testing::Message() << c.start << ", " << c.length);
    form->first.select(c.start, c.length);
    EXPECT_EQ(user.selected(L"first"), c.selected);
  }
}

}  // namespace
}  // namespace nv::test
