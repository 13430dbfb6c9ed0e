#include "tests/support/RandomUser.h"

#include "forms/ComboBox.h"
#include "forms/DropDownList.h"

namespace nv::test {

using namespace forms;

namespace {

/// What is worth typing: parts of records that are accepted, and what is not.
constexpr std::wstring_view typedTexts[] = {
    L"1 MAIN STREET",
    L"P.O. BOX 5",
    L"OTTAWA",
    L"ON",
    L"NY",
    L"K1A0B1",
    L"10001",
    L"613",
    L"5551234",
    L"145678901",
    L"1",
    L"33",
    L"pay@acme.example",
    L"pay@",
    L"www.acme.example",
    L"JANE DOE",
    L"123456782",
    L"001",
    L"12345",
    L"1234567",
    L"021000021",
    L"0000000",
    L"123456",
    L"BANQUE",
    L"1 RUE DE LA PAIX",
    L"PARIS",
    L"FR7612345",
    L"BNPAFRPP",
    L"FR",
    L"CA",
    L"US",
    L"EUR",
    L"CAD",
    L"USD",
    L"---",
    L"'\"~!&|",
    L"\u00e9\u00fc\u0153",
    L" ",
    L"           ",
    L"\r",
};

constexpr int keyCodes[] = {
    keys::backspace, keys::tab,  keys::enter, keys::escape, keys::space,     keys::end, keys::home, keys::left,
    keys::up,        keys::down, keys::right, keys::insert, User::deleteKey, keys::f4,  'A',        '7',
};

bool isList(const Control& control) {
  return control.kind() == Kind::comboBox || control.kind() == Kind::dropDownList;
}

}  // namespace

void RandomUser::act(User& user) {
  struct Act {
    std::size_t weight;
    void (RandomUser::*act)(User&);
  };
  static constexpr Act acts[] = {
      {60, &RandomUser::clickAnything}, {25, &RandomUser::clickOK},  {80, &RandomUser::typeText},
      {10, &RandomUser::clearField},    {80, &RandomUser::pressKey}, {10, &RandomUser::mnemonic},
      {12, &RandomUser::pasteText},     {25, &RandomUser::pickRow},  {10, &RandomUser::rightClick},
      {1, &RandomUser::close},
  };
  user.settle();
  if (!user.open()) return;
  std::size_t total = 0;
  for (const Act& each : acts) total += each.weight;
  std::size_t chosen = dice_.below(total);
  for (const Act& each : acts) {
    if (chosen < each.weight) return (this->*each.act)(user);
    chosen -= each.weight;
  }
}

std::wstring RandomUser::reachable(const User& user, bool onlyLists) {
  std::vector<const Control*> choices;
  for (const Control* control : user.form().controls()) {
    if (control->reachable() && (!onlyLists || isList(*control))) choices.push_back(control);
  }
  return choices.empty() ? std::wstring() : dice_.pick(choices)->fullName();
}

/// What a confirmation asks for, one of the texts above, or noise.
std::wstring RandomUser::someText(const User& user) {
  if (const Control* const active = user.form().activeControl(); active != nullptr && dice_.oneIn(2)) {
    std::wstring confirmed(active->name());
    for (const std::wstring_view mark : {L"Confirm", L"Conf"}) {
      const auto at = confirmed.find(mark);
      if (at == std::wstring::npos) continue;
      confirmed.erase(at, mark.size());
      return user.text(confirmed);
    }
  }
  if (!dice_.oneIn(8)) return std::wstring(dice_.pick(typedTexts));
  std::wstring noise(dice_.below(dice_.oneIn(10) ? 300 : 12), L' ');
  for (wchar_t& c : noise)
    c = static_cast<wchar_t>(dice_.oneIn(10) ? dice_.below(0xD800 - 32) + 32 : dice_.below(95) + 32);
  return noise;
}

void RandomUser::clickAnything(User& user) {
  const std::wstring name = reachable(user, false);
  if (name.empty()) return;
  say(L"click " + name);
  user.click(name);
}

void RandomUser::clickOK(User& user) {
  for (const Control* control : user.form().controls()) {
    if (control->name() != L"cmd_ok" || !control->reachable()) continue;
    say(L"click cmd_ok");
    user.click(L"cmd_ok");
    return;
  }
}

void RandomUser::typeText(User& user) {
  const std::wstring text = someText(user);
  say(L"type \"" + text + L"\"");
  for (const wchar_t c : text) {
    if (!user.open() || user.form().activeControl() == nullptr) return;
    user.type({&c, 1});
  }
}

void RandomUser::clearField(User& user) {
  say(L"clear the field");
  for (const auto& [code, shift] : {KeyDown{keys::home, 0}, {keys::end, shiftKey}, {User::deleteKey, 0}}) {
    if (user.open() && user.form().activeControl() != nullptr) user.key(code, shift);
  }
}

void RandomUser::pressKey(User& user) {
  if (user.form().activeControl() == nullptr) return;
  const int code = dice_.oneIn(3) ? keys::tab : dice_.pick(keyCodes);
  const int shift = dice_.oneIn(4) ? static_cast<int>(dice_.below(4)) : 0;
  say(L"key " + std::to_wstring(code) + L" shift " + std::to_wstring(shift));
  user.key(code, shift);
}

void RandomUser::mnemonic(User& user) {
  const auto letter = static_cast<wchar_t>(L'A' + dice_.below(26));
  say(std::wstring(L"Alt+") + letter);
  user.altKey(letter);
}

void RandomUser::pasteText(User& user) {
  if (user.form().activeControl() == nullptr) return;
  const std::wstring text = someText(user);
  say(L"paste \"" + text + L"\"");
  user.paste(text);
}

void RandomUser::pickRow(User& user) {
  const std::wstring name = reachable(user, true);
  if (name.empty()) return;
  say(L"click " + name);
  user.click(name);
  if (!user.open() || !user.control(name).hasFocus() || user.rows(name).empty()) return;
  const std::wstring row = dice_.pick(user.rows(name));
  const std::wstring cell = row.substr(0, row.find(L';'));
  say(L"choose \"" + cell + L"\"");
  user.choose(name, cell);
}

void RandomUser::rightClick(User& user) {
  const std::wstring name = reachable(user, false);
  if (name.empty()) return;
  say(L"right click " + name);
  user.rightClick(name);
}

void RandomUser::close(User& user) {
  if (dice_.oneIn(4)) {
    say(L"the session ends");
    user.endSession();
  } else {
    say(L"close box");
    user.closeBox();
  }
}

}  // namespace nv::test
