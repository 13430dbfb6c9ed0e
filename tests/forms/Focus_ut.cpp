// Who has the focus, and what the keys that move it or press buttons do.
#include "tests/support/FormTest.h"

namespace nv::test {
namespace {

using FocusTest = FormTest;

TEST_F(FocusTest, TheNewControlIsActiveBeforeTheOldOneHearsOfIt) {
  User user = shown();
  user.click(L"first");
  std::wstring receiver;
  form->first.lostFocus = [&] {
    receiver = form->activeControl()->fullName();
    form->journal.push_back(L"first lost focus");
  };
  form->journal.clear();
  user.click(L"second");
  EXPECT_EQ(receiver, L"second");
  EXPECT_EQ(form->journal, (Texts{L"first lost focus", L"second got focus"}));

  widgetset.window(*form)->setFocused(form->first);  // the keyboard has gone astray
  form->second.setFocus();
  EXPECT_EQ(user.focus(), L"second");
}

TEST_F(FocusTest, ALostFocusHandlerMovesTheFocusAgain) {
  User user = shown();
  user.click(L"first");
  form->first.lostFocus = [&] { form->combo.setFocus(); };
  form->journal.clear();
  user.click(L"go");
  EXPECT_EQ(user.focus(), L"combo");
  EXPECT_EQ(form->journal, (Texts{L"combo got focus"})) << "a control that never got the focus does not lose it";
}

TEST_F(FocusTest, TwoFieldsThatHoldTheFocusDoNotFightForIt) {
  User user = shown();
  user.click(L"first");
  int calls = 0;
  const auto hold = [&calls](forms::Control& control) {
    return [&calls, &control] {
      if (++calls < 10) control.setFocus();
    };
  };
  form->first.lostFocus = hold(form->first);
  form->second.lostFocus = hold(form->second);
  user.tab();
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(user.focus(), L"first");
  form->journal.clear();
  user.altKey(L'g');
  EXPECT_EQ(form->journal, Texts{L"first got focus"}) << "a button that did not get the focus is not pressed";
}

TEST_F(FocusTest, AControlThatCannotBeReachedHasNoFocusAndGetsNone) {
  const std::function<void(SampleForm&)> ways[] = {
      [](SampleForm& f) { f.second.setVisible(false); },
      [](SampleForm& f) { f.second.setEnabled(false); },
      [](SampleForm& f) { f.optA.setEnabled(false), f.box.setVisible(false); },
      [](SampleForm& f) { f.box.setEnabled(false); },
  };
  for (const auto& way : ways) {
    SCOPED_TRACE(&way - ways);
    form = make(L"sample");
    form->second.setFocus();
    EXPECT_EQ(form->activeControl(), nullptr) << "not even loaded";
    form->load();
    form->second.setFocus();
    EXPECT_EQ(form->activeControl(), nullptr) << "not shown yet";
    User user = shown();
    user.click(L"second");
    form->journal.clear();
    way(*form);
    EXPECT_EQ(form->journal.front(), L"second lost focus");
    const std::wstring focus = user.focus();
    EXPECT_TRUE(form->activeControl()->reachable());
    form->journal.clear();
    for (const wchar_t* inVain : {L"second", L"lblFirst", L"box"}) user.control(inVain).setFocus();
    EXPECT_EQ(user.focus(), focus);
    EXPECT_EQ(form->journal, Texts{});
    form->unload();
  }
}

TEST_F(FocusTest, NoControlHasTheFocusWhenNoneCanHaveIt) {
  User user = shown();
  for (forms::Control* control : form->controls()) control->setEnabled(false);
  EXPECT_EQ(user.focus(), L"");
  form->first.setEnabled(true), form->leave.setEnabled(true);
  form->keyPressedDown(form->combo, {forms::keys::tab, forms::shiftKey});
  EXPECT_EQ(user.focus(), L"leave");
  form->leave.setEnabled(false);
  EXPECT_EQ(user.focus(), L"first");
}

TEST_F(FocusTest, TabGoesRoundThroughWhatCanBeReached) {
  User user = shown();
  form->optB.setSelected(true);  // a group is one stop: its selected button
  form->combo.setEnabled(false);
  form->list.setVisible(false);
  const Texts stops = {L"first", L"second", L"opt(1)", L"optOutside", L"tick", L"go", L"link", L"leave"};
  for (const std::wstring& stop : stops) {
    EXPECT_EQ(user.focus(), stop);
    user.tab();
  }
  EXPECT_EQ(user.focus(), stops.front()) << "and begins again";
  for (auto stop = stops.rbegin(); stop != stops.rend(); ++stop) {
    user.backTab();
    EXPECT_EQ(user.focus(), *stop);
  }
}

TEST_F(FocusTest, MnemonicsLeadToTheirControls) {
  struct Case {
    wchar_t character;
    bool claimed;
    std::wstring focus;
    Texts clicks;
  };
  const Case cases[] = {
      {L'f', true, L"first", {}},  // the label hands it on
      {L'F', true, L"first", {}},
      {L'i', true, L"second", {}},  // and so does the frame
      {L'p', true, L"tick", {}},    // which does not press what it leads to
      {L' ', false, L"leave", {}},  // "&&" is no mnemonic
      {L'g', true, L"go", {L"go click"}},
      {L't', true, L"tick", {L"tick click"}},
      {L'b', true, L"opt(1)", {L"opt(1) click"}},
      {L'x', false, L"leave", {}},
      {L'a', false, L"leave", {}},  // disabled
  };
  User user = shown();
  form->optA.setEnabled(false);
  for (const Case& c : cases) {
    SCOPED_TRACE(std::wstring(1, c.character));
    form->leave.setFocus();
    form->journal.clear();
    EXPECT_EQ(user.altKey(c.character), c.claimed);
    EXPECT_EQ(user.focus(), c.focus);
    std::erase_if(form->journal, [](const std::wstring& entry) { return !entry.ends_with(L"click"); });
    EXPECT_EQ(form->journal, c.clicks);
  }
}

TEST_F(FocusTest, KeysThatPress) {
  struct Case {
    const char* what;
    std::wstring focus;
    int key;
    std::wstring pressed;
  };
  const Case cases[] = {
      {"Enter on a button", L"go", forms::keys::enter, L"go click"},
      {"Space on a button", L"go", forms::keys::space, L"go click"},
      {"Enter on a link", L"link", forms::keys::enter, L"link click"},
      {"Space on a link", L"link", forms::keys::space, L"link click"},
      {"Space on a check box", L"tick", forms::keys::space, L"tick click"},
      {"Enter on a check box", L"tick", forms::keys::enter, L""},
      {"Escape in a field", L"first", forms::keys::escape, L"leave click"},
      {"Escape on another button", L"go", forms::keys::escape, L"leave click"},
      {"Enter in a field", L"first", forms::keys::enter, L""},
  };
  User user = shown();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    user.control(c.focus).setFocus();
    form->journal.clear();
    user.key(c.key);
    EXPECT_EQ(form->journal, c.pressed.empty() ? Texts{} : Texts{c.pressed});
  }
  form->leave.setVisible(false);
  user.click(L"first");
  form->journal.clear();
  wchar_t pressed = 0;
  form->first.keyPress = [&pressed](wchar_t& key) { pressed = key; };
  user.key(forms::keys::escape);
  EXPECT_EQ(form->journal, Texts{}) << "a hidden button is not pressed";
  EXPECT_EQ(pressed, forms::keys::escape) << "and the key goes on";
}

TEST_F(FocusTest, OptionButtonsExcludeEachOtherWithinTheirContainer) {
  User user = shown();
  user.click(L"optOutside");
  user.click(L"opt(0)");
  form->journal.clear();
  form->optB.setSelected(true);
  form->optB.setSelected(true);
  EXPECT_EQ(form->journal, (Texts{L"opt(1) click"}));
  EXPECT_FALSE(user.checked(L"opt(0)"));
  EXPECT_TRUE(user.checked(L"opt(1)"));
  EXPECT_TRUE(user.checked(L"optOutside"));
  user.click(L"opt(1)");
  EXPECT_TRUE(user.checked(L"opt(1)")) << "a click does not clear it";
}

TEST_F(FocusTest, ArrowKeysGoRoundAnOptionGroup) {
  struct Case {
    int key;
    std::wstring selected;
  };
  User user = shown();
  user.click(L"opt(0)");
  for (const Case& c : {Case{forms::keys::down, L"opt(2)"}, Case{forms::keys::right, L"opt(0)"},
                        Case{forms::keys::up, L"opt(2)"}, Case{forms::keys::left, L"opt(1)"}}) {
    form->optB.setEnabled(c.key != forms::keys::down);  // passed over while it is not
    user.key(c.key);
    EXPECT_EQ(user.focus(), c.selected);
    EXPECT_TRUE(user.checked(c.selected));
  }
}

}  // namespace
}  // namespace nv::test
