// The commands of the scenario language in which the host does something.
#include <algorithm>

#include "scenario/Commands.h"
#include "scenario/Failure.h"
#include "scenario/Player.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

using Names = std::vector<std::wstring>;

std::wstring shownEvents(const Names& events) {
  return events.empty() ? L"none" : joined(events);
}

bool sameEvents(const Names& expected, const Names& seen) {
  return std::ranges::equal(expected, seen, [](const std::wstring& wanted, const std::wstring& event) {
    return wanted == event || wanted == event.substr(0, event.find(L'('));
  });
}

/// A value as the component hands it out: its truth values are 16-bit numbers.
Value asStored(const Value& value) {
  const bool* const truth = std::get_if<bool>(&value);
  return truth == nullptr ? value : Value(static_cast<std::int16_t>(*truth ? -1 : 0));
}

/// Properties with their values, in the order in which they stand in the line.
using Properties = std::vector<std::pair<std::wstring, Value>>;

Properties readProperties(Tokens& tokens) {
  Properties properties;
  do {
    std::wstring name = tokens.word();
    Value value = tokens.value();
    properties.emplace_back(std::move(name), std::move(value));
  } while (!tokens.atEnd());
  return properties;
}

/// A property that is set. A text can be made as long as a field takes, or longer, by its last character over and over.
struct Setting {
  std::wstring property;
  Value value;
  std::wstring field;  // empty: the value is as it is
  std::size_t beyond = 0;
};

Setting readSetting(Tokens& tokens) {
  Setting setting;
  setting.property = tokens.word();
  setting.value = tokens.value();
  if (tokens.take(L"beyond")) setting.beyond = 1;
  if (setting.beyond == 0 && !tokens.take(L"filling")) return setting;
  const auto* const text = std::get_if<std::wstring>(&setting.value);
  if (text == nullptr || text->empty()) throw Failure(L"only a text can be made longer");
  setting.field = tokens.word();
  return setting;
}

Action readLet(Tokens& tokens) {
  std::vector<Setting> settings;
  do settings.push_back(readSetting(tokens));
  while (!tokens.atEnd());
  return [=](Player& player, const Statement&) {
    for (const auto& [property, value, field, beyond] : settings) {
      Value set = value;
      if (!field.empty()) {
        auto& text = std::get<std::wstring>(set);
        text.resize(std::stoul(player.stage().look(player.dialog(), field, L"maxlength")) + beyond, text.back());
      }
      player.stage().put(property, set);
    }
  };
}

Action readExpect(Tokens& tokens) {
  return [properties = readProperties(tokens)](Player& player, const Statement&) {
    for (const auto& [name, expected] : properties) {
      const Value seen = player.stage().get(name);
      if (seen != asStored(expected)) throw Failure(name + L": expected " + shown(expected) + L", seen " + shown(seen));
    }
  };
}

/// What of the record is not as it was, and what should not be.
Action readChanged(Tokens& tokens) {
  const Properties expected = tokens.take(L"none") ? Properties() : readProperties(tokens);
  return [=](Player& player, const Statement&) {
    const Player::Record now = player.record();
    Player::Record wanted = player.recordBefore();
    for (const auto& [name, value] : expected) {
      const auto before = wanted.find(name);
      if (before == wanted.end()) throw Failure(L"no host can read a property " + name);
      if (std::exchange(before->second, asStored(value)) == asStored(value)) {
        throw Failure(name + L" was " + shown(value) + L" before the show, too");
      }
    }
    for (const auto& [name, value] : wanted) {
      if (now.at(name) == value) continue;
      const bool named =
          std::ranges::find(expected, name, [](const auto& each) { return each.first; }) != expected.end();
      throw Failure(name + L": expected " + shown(value) + (named ? L"" : L", as it was") + L", seen " +
                    shown(now.at(name)));
    }
  };
}

template <void (Stage::*act)(const std::wstring&)>
Action readInstance(Tokens& tokens) {
  const std::wstring name = tokens.word();
  return [=](Player& player, const Statement&) { (player.stage().*act)(name); };
}

Action readShow(Tokens& tokens) {
  Showing kind;
  if (tokens.take(L"modal")) {
    kind = Showing::modal;
  } else if (tokens.take(L"import")) {
    kind = Showing::import;
  } else if (tokens.take(L"remote")) {
    kind = tokens.take(L"after") ? Showing::remoteEmbeddedAfterwards : Showing::remote;
  } else {
    throw Failure(L"it is not said how to show the dialog");
  }
  return [=](Player& player, const Statement& statement) { player.show(kind, statement); };
}

Action readResult(Tokens& tokens) {
  const std::int32_t expected = tokens.number();
  return [=](Player& player, const Statement&) {
    const std::int32_t seen = player.stage().result();
    if (seen != expected) differ(std::to_wstring(expected), std::to_wstring(seen));
  };
}

Action readEvents(Tokens& tokens) {
  Names expected;
  if (!tokens.take(L"none")) {
    do {
      expected.push_back(tokens.word());
    } while (!tokens.atEnd());
  }
  return [=](Player& player, const Statement&) {
    const Names seen = player.stage().events();
    if (!sameEvents(expected, seen)) differ(shownEvents(expected), shownEvents(seen));
  };
}

Action readSize(Tokens&) {
  return [](Player& player, const Statement&) { player.stage().compareSize(); };
}

Action readInclude(Tokens& tokens) {
  const std::wstring file = tokens.word();
  return [=](Player& player, const Statement&) { player.include(file); };
}

Action readUnload(Tokens&) {
  return [](Player& player, const Statement&) { player.stage().unload(); };
}

using enum Command::Place;

constexpr Command hostTable[] = {
    {L"let", L"let PROPERTY VALUE [filling | beyond FIELD]...", anywhere, readLet},
    {L"expect", L"expect PROPERTY VALUE...", anywhere, readExpect},
    {L"changed", L"changed none | PROPERTY VALUE...", afterShow, readChanged},
    {L"new", L"new INSTANCE", anywhere, readInstance<&Stage::create>},
    {L"use", L"use INSTANCE", anywhere, readInstance<&Stage::use>},
    {L"release", L"release INSTANCE", anywhere, readInstance<&Stage::release>},
    {L"show", L"show modal | remote [after] | import", opensBlock, readShow},
    {L"result", L"result NUMBER", anywhere, readResult},
    {L"events", L"events none | EVENT...", anywhere, readEvents},
    {L"size", L"size", anywhere, readSize, Stage::real},
    {L"unload", L"unload", anywhere, readUnload},
    {L"include", L"include FILE", anywhere, readInclude},
};

}  // namespace

std::span<const Command> hostCommands() {
  return hostTable;
}

}  // namespace nv::scenario
