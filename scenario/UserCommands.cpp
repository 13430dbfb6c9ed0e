// The commands of the scenario language in which the user does or sees something.
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <variant>
#include <vector>

#include "scenario/Commands.h"
#include "scenario/Failure.h"
#include "scenario/Player.h"
#include "scenario/RandomUser.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

using Names = std::vector<std::wstring>;

Names readNames(Tokens& tokens) {
  Names names;
  do names.push_back(tokens.word());
  while (!tokens.atEnd());
  return names;
}

void click(Player& player, const std::wstring& control) {
  player.stage().click(player.dialog(), control, MouseButton::left);
}

// Keyboard

/// A control, none for whatever has the keyboard, and what is typed there.
struct Entry {
  std::optional<std::wstring> control;
  std::wstring text;
};

void clear(Player& player, const std::wstring& control) {
  click(player, control);
  for (const wchar_t* key : {L"Home", L"Shift+End", L"Delete"}) player.stage().press(chordOf(key));
}

/// A text to type, once or several times over.
std::wstring readTyped(Tokens& tokens) {
  const std::wstring once = tokens.text();
  std::wstring text = once;
  if (tokens.take(L"times")) {
    for (std::int32_t times = tokens.number(); times > 1; --times) text += once;
  }
  return text;
}

template <bool clearing>
Action readType(Tokens& tokens) {
  std::vector<Entry> entries;
  do {
    Entry& entry = entries.emplace_back();
    if (clearing || tokens.nextIsWord()) entry.control = tokens.word();
    entry.text = readTyped(tokens);
  } while (!tokens.atEnd());
  return [=](Player& player, const Statement&) {
    for (const auto& [control, text] : entries) {
      if (control) clearing ? clear(player, *control) : click(player, *control);
      player.stage().type(text);
    }
  };
}

Action readClear(Tokens& tokens) {
  return [names = readNames(tokens)](Player& player, const Statement&) {
    for (const std::wstring& name : names) clear(player, name);
  };
}

/// Presses the key until the control has the focus.
void pressUntil(Player& player, const Chord& chord, const std::wstring& control) {
  constexpr int mostFields = 80;  // more than any dialog has
  for (int pressed = 0; pressed < mostFields; ++pressed) {
    player.stage().press(chord);
    if (player.focused(control)) return;
  }
  throw Failure(L"the focus does not come to " + control);
}

Action readKey(Tokens& tokens) {
  std::vector<std::variant<Chord, std::wstring>> strokes;
  std::optional<std::wstring> last;
  do {
    if (tokens.nextIsText()) {
      strokes.emplace_back(readTyped(tokens));
    } else if (!strokes.empty() && std::holds_alternative<Chord>(strokes.back()) && tokens.take(L"until")) {
      last = tokens.word();
      break;
    } else {
      strokes.emplace_back(chordOf(tokens.word()));
    }
  } while (!tokens.atEnd());
  return [=](Player& player, const Statement&) {
    for (std::size_t i = 0; i < strokes.size(); ++i) {
      const Chord* const chord = std::get_if<Chord>(&strokes[i]);
      if (chord == nullptr) {
        player.stage().type(std::get<std::wstring>(strokes[i]));
      } else if (last && i + 1 == strokes.size()) {
        pressUntil(player, *chord, *last);
      } else {
        player.stage().press(*chord);
      }
    }
  };
}

/// Tab leads from the first control through the others, and back to it.
Action readTabs(Tokens& tokens) {
  return [names = readNames(tokens)](Player& player, const Statement&) {
    const auto expectFocus = [&](const std::wstring& name, const std::wstring& before) {
      if (!player.focused(name)) throw Failure(L"the focus is not on " + name + L" behind " + before);
    };
    expectFocus(names.front(), L"what came before");
    for (std::size_t i = 0; i < names.size(); ++i) {
      player.stage().press(chordOf(L"Tab"));
      expectFocus(names[(i + 1) % names.size()], names[i]);
    }
  };
}

// Mouse

template <MouseButton button>
Action readPress(Tokens& tokens) {
  return [names = readNames(tokens)](Player& player, const Statement&) {
    for (const std::wstring& name : names) player.stage().click(player.dialog(), name, button);
  };
}

/// Whether an event tells of this top, in twips, but for what frames and that which stands in them are rounded by to
/// pixels of more than 96 dpi.
bool reportsTop(const std::wstring& event, int top) {
  constexpr std::wstring_view begin = L"CurrentFieldTop(";
  constexpr int rounding = 30;  // two pixels at 96 dpi, at which there is none
  return event.starts_with(begin) && std::abs(std::stoi(event.substr(begin.size())) - top) <= rounding;
}

/// The host hears the top of each control, and nothing else, when the user clicks there.
Action readReports(Tokens& tokens) {
  return [names = readNames(tokens)](Player& player, const Statement&) {
    for (const std::wstring& name : names) {
      const Names before = player.stage().events();
      const std::wstring top = player.stage().look(player.dialog(), name, L"top");
      click(player, name);
      const Names seen = player.stage().events();
      if (seen.size() == before.size() + 1 && reportsTop(seen.back(), std::stoi(top))) continue;
      differ(std::wstring(name).append(L" to be reported at ").append(top), seen.empty() ? L"none" : joined(seen));
    }
  };
}

Action readCancel(Tokens&) {
  return [](Player& player, const Statement&) { click(player, L"cmd_cancel"); };
}

Action readChoose(Tokens& tokens) {
  const std::wstring control = tokens.word();
  const std::wstring cell = tokens.text();
  return [=](Player& player, const Statement&) { player.stage().choose(player.dialog(), control, cell); };
}

// Looking

const Names aspects = {L"text",   L"caption",   L"visible",   L"enabled", L"focused",   L"checked",
                       L"masked", L"selection", L"maxlength", L"rows",    L"columns",   L"row",
                       L"left",   L"top",       L"width",     L"height",  L"backcolor", L"font",
                       L"name",   L"role",      L"key",       L"action",  L"required"};

bool isAspect(std::wstring_view name) {
  return std::ranges::find(aspects, name) != aspects.end();
}

struct Sight {
  std::wstring window;
  std::wstring aspect;
  std::wstring expected;
  bool isText;
};

void compare(Player& player, const Sight& sight) {
  const std::wstring seen = player.stage().look(player.dialog(), sight.window, sight.aspect);
  if (seen == sight.expected) return;
  const auto asWritten = [&](const std::wstring& value) { return sight.isText ? inQuotes(value) : value; };
  throw Failure(sight.window + L" " + sight.aspect + L": expected " + asWritten(sight.expected) + L", seen " +
                asWritten(seen));
}

Action readIs(Tokens& tokens) {
  std::vector<Sight> sights;
  std::wstring window = tokens.word();
  do {
    if (!sights.empty() && !isAspect(tokens.peekWord())) window = tokens.word();
    const std::wstring aspect = tokens.word();
    if (!isAspect(aspect)) {
      throw Failure(L"nothing is known of " + aspect + L", but of " + joined(aspects) + didYouMean(aspect, aspects));
    }
    const bool isText = tokens.nextIsText();
    sights.push_back({window, aspect, tokens.wordOrText(), isText});
  } while (!tokens.atEnd());
  return [=](Player& player, const Statement&) {
    for (const Sight& sight : sights) compare(player, sight);
  };
}

/// A truth that is expected of several controls.
template <const wchar_t* aspect, bool expected>
Action readAre(Tokens& tokens) {
  return [names = readNames(tokens)](Player& player, const Statement&) {
    for (const std::wstring& name : names) compare(player, {name, aspect, expected ? L"true" : L"false", false});
  };
}

constexpr wchar_t visible[] = L"visible";
constexpr wchar_t enabled[] = L"enabled";
constexpr wchar_t focused[] = L"focused";

/// What a screen reader learns of the controls that can be used: "NAME;ROLE;required;KEY", a line each.
Names told(Stage& stage, Dialog dialog) {
  const Names onlyRead = {L"text", L"grouping", L"graphic"};
  Names lines;
  Names called;
  for (const std::wstring& control : stage.reachable(dialog)) {
    const auto look = [&](const wchar_t* aspect) { return stage.look(dialog, control, aspect); };
    const std::wstring role = look(L"role");
    if (std::ranges::find(onlyRead, role) != onlyRead.end()) continue;
    const std::wstring name = look(L"name");
    if (name.empty()) throw Failure(control + L" has no name");
    if (std::ranges::find(called, name) != called.end()) throw Failure(L"there are two called " + inQuotes(name));
    called.push_back(name);
    std::wstring& line = lines.emplace_back(name);
    line.append(L";").append(role).append(look(L"required") == L"true" ? L";required;" : L";;").append(look(L"key"));
  }
  return lines;
}

Action readTells(Tokens& tokens) {
  return [file = tokens.wordOrText()](Player& player, const Statement&) {
    Names seen = told(player.stage(), player.dialog());
    if (player.renewsModels) return player.renewModel(file, seen);
    Names expected = player.model(file);
    for (Names* lines : {&expected, &seen}) std::ranges::sort(*lines);  // stages know no common order
    Names missing;
    Names further;
    std::ranges::set_difference(expected, seen, std::back_inserter(missing));
    std::ranges::set_difference(seen, expected, std::back_inserter(further));
    const auto shown = [](const Names& lines) { return lines.empty() ? L"none" : inQuotes(joined(lines)); };
    if (!missing.empty() || !further.empty()) differ(shown(missing), shown(further));
  };
}

// Message boxes

struct ExpectedMessage {
  std::wstring text;
  std::optional<std::wstring> caption;
  std::optional<std::wstring> icon;
  std::optional<std::wstring> buttons;
  std::wstring answer = L"ok";
};

ExpectedMessage readMessageBox(Tokens& tokens) {
  ExpectedMessage message;
  message.text = tokens.text();
  while (!tokens.atEnd()) {
    if (tokens.take(L"caption")) {
      message.caption = tokens.text();
    } else if (tokens.take(L"icon")) {
      message.icon = tokens.word();
    } else if (tokens.take(L"buttons")) {
      message.buttons = tokens.word();
    } else if (tokens.take(L"answer")) {
      message.answer = tokens.word();
    } else {
      throw Failure(L"a message box has no " + tokens.wordOrText());
    }
  }
  return message;
}

void await(Player& player, const ExpectedMessage& expected) {
  const Message box = player.stage().awaitMessageBox();
  if (box.text != expected.text) differ(inQuotes(expected.text), inQuotes(box.text));
  if (expected.caption.value_or(box.caption) != box.caption) {
    differ(L"caption " + inQuotes(*expected.caption), inQuotes(box.caption));
  }
  if (expected.icon.value_or(box.icon) != box.icon) differ(L"icon " + *expected.icon, box.icon);
  if (expected.buttons.value_or(box.buttons) != box.buttons) differ(L"buttons " + *expected.buttons, box.buttons);
  player.stage().answer(expected.answer);
}

Action readMessage(Tokens& tokens) {
  return [message = readMessageBox(tokens)](Player& player, const Statement&) { await(player, message); };
}

/// An attempt to accept that stops at a control: what is told, where the focus is then, and what is selected there. The
/// message box is, unless the line says otherwise, one of the dialog's for information.
Action readRefused(Tokens& tokens) {
  const std::wstring control = tokens.word();
  const bool all = tokens.take(L"all");
  const std::wstring selection = tokens.nextIsText() ? tokens.text() : std::wstring();
  std::optional<ExpectedMessage> message;
  if (tokens.take(L"message")) {
    message = readMessageBox(tokens);
    if (!message->icon) message->icon = L"information";
    if (!message->buttons) message->buttons = L"ok";
  }
  return [=](Player& player, const Statement&) {
    ExpectedMessage expected = message.value_or(ExpectedMessage());
    if (message && !message->caption) expected.caption = player.stage().look(player.dialog(), L"form", L"caption");
    click(player, L"cmd_ok");
    if (message) {
      await(player, expected);
    } else if (const auto box = player.stage().messageBox()) {
      failUnexpected(*box);
    }
    if (!player.stage().isUp(player.dialog())) throw Failure(L"expected a refusal, seen none: the dialog is gone");
    compare(player, {control, focused, L"true", false});
    const std::wstring selected = all ? player.stage().look(player.dialog(), control, L"text") : selection;
    compare(player, {control, L"selection", selected, true});
  };
}

Action readWander(Tokens& tokens) {
  const std::int32_t steps = tokens.number();
  const std::int32_t seed = tokens.take(L"seed") ? tokens.number() : 1;
  return [=](Player& player, const Statement&) { wander(player, steps, static_cast<std::uint32_t>(seed)); };
}

// Windows

Action readClose(Tokens& tokens) {
  if (tokens.take(L"host")) return [](Player& player, const Statement&) { player.stage().closeHost(); };
  return [](Player& player, const Statement&) { player.stage().close(player.dialog()); };
}

Action readEndSession(Tokens&) {
  return [](Player& player, const Statement&) { player.stage().endSession(player.dialog()); };
}

Action readIn(Tokens& tokens) {
  const std::wstring name = tokens.word();
  return [=](Player& player, const Statement&) { player.setDialog(player.stage().awaitDialog(name)); };
}

Action readShot(Tokens& tokens) {
  const std::wstring file = tokens.wordOrText();
  return [=](Player& player, const Statement&) { player.stage().shot(player.dialog(), file); };
}

using enum Command::Place;

constexpr Command userTable[] = {
    {L"type", L"type [CONTROL] \"TEXT\" [times N]...", inBlock, readType<false>},
    {L"enter", L"enter CONTROL \"TEXT\" [times N]...", inBlock, readType<true>},
    {L"clear", L"clear CONTROL...", inBlock, readClear},
    {L"key", L"key KEY | \"TEXT\" [times N]... [until CONTROL]", inBlock, readKey},
    {L"tabs", L"tabs CONTROL...", inBlock, readTabs},
    {L"press", L"press CONTROL...", inBlock, readPress<MouseButton::left>},
    {L"rightpress", L"rightpress CONTROL...", inBlock, readPress<MouseButton::right>},
    {L"reports", L"reports CONTROL...", inBlock, readReports},
    {L"cancel", L"cancel", inBlock, readCancel},
    {L"choose", L"choose CONTROL \"CELL\"", inBlock, readChoose},
    {L"is", L"is CONTROL | form | host  ASPECT VALUE...  [CONTROL  ASPECT VALUE...]...", anywhere, readIs},
    {L"focus", L"focus CONTROL", inBlock, readAre<focused, true>},
    {L"visible", L"visible CONTROL...", inBlock, readAre<visible, true>},
    {L"hidden", L"hidden CONTROL...", inBlock, readAre<visible, false>},
    {L"enabled", L"enabled CONTROL...", inBlock, readAre<enabled, true>},
    {L"disabled", L"disabled CONTROL...", inBlock, readAre<enabled, false>},
    {L"tells", L"tells MODELFILE", inBlock, readTells},
    {L"message", L"message \"TEXT\" [caption \"TEXT\"] [icon ICON] [buttons BUTTONS] [answer BUTTON]", atMessageBox,
     readMessage},
    {L"refused", L"refused CONTROL [\"SELECTION\" | all] [message ...]", inBlock, readRefused},
    {L"wander", L"wander STEPS [seed N]", inBlock, readWander},
    {L"close", L"close [host]", inBlock, readClose},
    {L"endsession", L"endsession", inBlock, readEndSession},
    {L"in", L"in WINDOW", inBlock, readIn},
    {L"shot", L"shot FILE", atMessageBox, readShot, Stage::real},
};

}  // namespace

std::span<const Command> userCommands() {
  return userTable;
}

}  // namespace nv::scenario
