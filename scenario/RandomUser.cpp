#include "scenario/RandomUser.h"

#include <algorithm>
#include <string_view>

#include "scenario/Failure.h"
#include "scenario/Player.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

/// What is worth typing, separated by bars: parts of records that are accepted, and what is not.
constexpr std::wstring_view typedTexts =
    L"1 MAIN STREET|P.O. BOX 5|OTTAWA|ON|NY|K1A0B1|10001|613|5551234|145678901|1|33|pay@acme.example|pay@|"
    L"www.acme.example|JANE DOE|123456782|001|12345|1234567|021000021|0000000|123456|BANQUE|1 RUE DE LA PAIX|PARIS|"
    L"FR7612345|BNPAFRPP|FR|CA|US|EUR|CAD|USD|---|'\"~!&|\u00e9\u00fc\u0153| |           ";

constexpr const wchar_t* pressedKeys[] = {
    L"Backspace",  L"Tab",  L"Enter", L"Escape", L"Space",       L"End",       L"Home",      L"Left",
    L"Up",         L"Down", L"Right", L"Insert", L"Delete",      L"PageUp",    L"Shift+Tab", L"Shift+End",
    L"Shift+Home", L"A",    L"7",     L"Delete", L"Shift+Right", L"Control+C", L"Control+X", L"Shift+A"};

std::vector<std::wstring> parts(std::wstring_view text) {
  std::vector<std::wstring> parts(1);
  for (const wchar_t c : text) c == L'|' ? static_cast<void>(parts.emplace_back()) : parts.back().push_back(c);
  return parts;
}

bool isList(const std::wstring& name) {
  return name.starts_with(L"cmb") || name == L"ran_payee_prov" || name == L"ran_payee_country";
}

/// The field that a field confirms; empty for any other.
std::wstring confirmedBy(std::wstring name) {
  for (const std::wstring_view mark : {L"Confirm", L"Conf"}) {
    const auto at = name.find(mark);
    if (name.starts_with(L"txt") && at != std::wstring::npos) return name.erase(at, mark.size());
  }
  return {};
}

}  // namespace

void RandomUser::act(Hands& hands) {
  struct Act {
    std::size_t weight;
    void (RandomUser::*act)(Hands&);
  };
  static constexpr Act acts[] = {
      {60, &RandomUser::clickAnything}, {25, &RandomUser::clickOK},  {80, &RandomUser::typeText},
      {10, &RandomUser::confirm},       {80, &RandomUser::pressKey}, {10, &RandomUser::mnemonic},
      {12, &RandomUser::pasteText},     {25, &RandomUser::pickRow},  {10, &RandomUser::rightClick},
      {1, &RandomUser::close},
  };
  std::size_t total = 0;
  for (const Act& each : acts) total += each.weight;
  std::size_t chosen = dice_.below(total);
  for (const Act& each : acts) {
    if (chosen < each.weight) return (this->*each.act)(hands);
    chosen -= each.weight;
  }
}

std::wstring RandomUser::reachable(Hands& hands, const std::function<bool(const std::wstring& name)>& wanted) {
  auto names = hands.reachable();
  std::erase_if(names, [&](const std::wstring& name) { return !wanted(name); });
  return names.empty() ? std::wstring() : dice_.pick(names);
}

/// One of the texts above, or noise.
std::wstring RandomUser::someText() {
  static const auto texts = parts(typedTexts);
  if (!dice_.oneIn(8)) return dice_.pick(texts);
  std::wstring noise(dice_.below(dice_.oneIn(10) ? 300 : 12), L' ');
  for (wchar_t& c : noise) {
    c = static_cast<wchar_t>(dice_.oneIn(10) ? dice_.below(0xD800 - 32) + 32 : dice_.below(95) + 32);
  }
  return noise;
}

void RandomUser::clickAnything(Hands& hands) {
  const std::wstring name = reachable(hands, [](const auto&) { return true; });
  say(L"click " + name);
  if (!name.empty()) hands.click(name);
}

void RandomUser::clickOK(Hands& hands) {
  const std::wstring name = reachable(hands, [](const auto& each) { return each == L"cmd_ok"; });
  say(L"click " + name);
  if (!name.empty()) hands.click(name);
}

void RandomUser::typeText(Hands& hands) {
  const std::wstring text = someText();
  say(L"type \"" + text + L"\"");
  hands.type(text);
}

/// Types what the confirmations ask for and accepts, or empties a field.
void RandomUser::confirm(Hands& hands) {
  const auto enter = [&hands](const std::wstring& text) {
    for (const wchar_t* key : {L"Home", L"Shift+End", L"Delete"}) hands.press(chordOf(key));
    hands.type(text);
  };
  auto names = hands.reachable();
  std::erase_if(names, [](const std::wstring& name) { return confirmedBy(name).empty(); });
  say(names.empty() ? L"clear the field" : L"confirm");
  if (names.empty()) return enter({});
  for (const std::wstring& name : names) {
    const std::wstring text = hands.textOf(confirmedBy(name));
    const auto left = hands.reachable();  // a field that loses the focus may take others away
    if (std::ranges::find(left, name) == left.end()) continue;
    hands.click(name);
    enter(text);
  }
  hands.press(chordOf(L"Alt+O"));
}

void RandomUser::pressKey(Hands& hands) {
  const wchar_t* const key = dice_.oneIn(3) ? L"Tab" : dice_.pick(pressedKeys);
  say(std::wstring(L"key ") + key);
  hands.press(chordOf(key));
}

void RandomUser::mnemonic(Hands& hands) {
  const std::wstring key = std::wstring(L"Alt+") + static_cast<wchar_t>(L'A' + dice_.below(26));
  say(L"key " + key);
  hands.press(chordOf(key));
}

void RandomUser::pasteText(Hands& hands) {
  const std::wstring text = someText();
  say(L"paste \"" + text + L"\"");
  hands.paste(text);
}

void RandomUser::pickRow(Hands& hands) {
  const std::wstring name = reachable(hands, isList);
  if (name.empty()) return;
  std::size_t rows = dice_.below(8);
  say(L"pick row " + std::to_wstring(rows) + L" from here of " + name);
  hands.click(name);
  hands.press(chordOf(L"F4"));
  for (; rows > 0; --rows) hands.press(chordOf(L"Down"));
  hands.press(chordOf(L"Enter"));
}

void RandomUser::rightClick(Hands& hands) {
  const std::wstring name = reachable(hands, [](const auto&) { return true; });
  say(L"right click " + name);
  if (!name.empty()) hands.rightClick(name);
}

void RandomUser::close(Hands& hands) {
  const bool session = dice_.oneIn(4);
  say(session ? L"the session ends" : L"close box");
  session ? hands.endSession() : hands.close();
}

namespace {

/// Hands on a stage. Message boxes are answered as they come.
class StageHands final : public Hands {
 public:
  StageHands(Stage& stage, Dice& dice) : stage_(stage), dice_(dice) {}

  /// Turns to the dialog in front. False when there is none.
  bool turn() {
    answerAll();
    dialog_ = stage_.front();
    return dialog_ != noDialog;
  }
  Dialog dialog() const { return dialog_; }

  void answerAll() {
    while (stage_.messageBox()) {
      const Message box = stage_.awaitMessageBox();
      if (box.text.starts_with(L"The following error")) failUnexpected(box);
      stage_.answer(box.buttons == L"ok" ? L"ok" : dice_.oneIn(2) ? L"yes" : L"no");
    }
  }

  std::vector<std::wstring> reachable() override { return able() ? stage_.reachable(dialog_) : Names(); }
  std::wstring textOf(const std::wstring& control) override {
    return able() ? stage_.look(dialog_, control, L"text") : std::wstring();
  }
  void click(const std::wstring& control) override {
    if (able()) stage_.click(dialog_, control, MouseButton::left);
  }
  void rightClick(const std::wstring&) override {}  // a menu would be left open
  void press(const Chord& chord) override {
    if (able() && !stage_.focus(dialog_).empty()) stage_.press(chord);
  }
  void type(const std::wstring& text) override {
    for (const wchar_t c : text) {
      if (able() && !stage_.focus(dialog_).empty()) stage_.type({&c, 1});
    }
  }
  void paste(const std::wstring& text) override {
    stage_.setClipboard(text);
    press(chordOf(L"Control+V"));
  }
  void close() override {
    if (able()) stage_.close(dialog_);
  }
  void endSession() override {
    if (able()) stage_.endSession(dialog_);
  }

 private:
  using Names = std::vector<std::wstring>;

  bool able() {
    answerAll();
    return stage_.front() == dialog_;
  }

  Stage& stage_;
  Dice& dice_;
  Dialog dialog_ = noDialog;
};

/// What has changed of the record without anybody's having accepted it; empty when nothing has.
std::wstring changedUnasked(const Player::Record& before, const Player::Record& now, bool billerGone, bool bankTaken) {
  for (const auto& [name, value] : now) {
    if (value == before.at(name)) continue;
    if (!billerGone && !(bankTaken && name.starts_with(L"PayeeFXBank"))) return name;
  }
  return {};
}

}  // namespace

void wander(Player& player, std::int32_t steps, std::uint32_t seed) {
  Stage& stage = player.stage();
  Dice dice(seed);
  StageHands hands(stage, dice);
  RandomUser user(dice);
  std::wstring lastAct;
  user.told = [&lastAct](const std::wstring& act) { lastAct = act; };
  const Dialog biller = player.dialog();
  Player::Record before = player.record();
  for (std::int32_t step = 1; hands.turn(); ++step) {
    const auto controls = stage.reachable(hands.dialog());
    const bool banksHere = std::ranges::count(controls, L"txtConfirmBankAccountNumber") > 0;
    step <= steps ? user.act(hands) : hands.close();
    hands.answerAll();
    const auto fail = [&](const std::wstring& what) {
      throw Failure((L"step " + std::to_wstring(step)).append(L", ").append(lastAct).append(L": ").append(what));
    };
    const Dialog front = stage.front();
    const std::wstring focus = front == noDialog ? std::wstring() : stage.focus(front);
    if (!focus.empty() && std::ranges::count(stage.reachable(front), focus) == 0) fail(focus + L" has the focus");
    Player::Record now = player.record();
    const bool bankTaken = banksHere || !stage.isUp(hands.dialog());
    const std::wstring changed = changedUnasked(before, now, !stage.isUp(biller), bankTaken);
    if (!changed.empty()) fail(changed + L" has changed, and nobody accepted it");
    before = std::move(now);
  }
}

}  // namespace nv::scenario
