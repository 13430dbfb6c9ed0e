// The commands of the scenario language in which the host does something.
#include "host/application/Automation.h"
#include "host/base/Text.h"
#include "host/scenario/Commands.h"
#include "host/scenario/Player.h"

namespace nv::host {

namespace {

std::wstring joined(const std::vector<std::wstring>& words) {
  std::wstring text;
  for (const std::wstring& word : words) text.append(text.empty() ? L"" : L" ").append(word);
  return text.empty() ? L"none" : text;
}

bool sameEvents(const std::vector<std::wstring>& expected, const std::vector<std::wstring>& seen) {
  return std::ranges::equal(expected, seen, [](const std::wstring& wanted, const std::wstring& event) {
    return wanted == event || wanted == event.substr(0, event.find(L'('));
  });
}

/// A value as the component hands it out: its truth values are 16-bit numbers.
Value asStored(const Value& value) {
  const bool* const truth = std::get_if<bool>(&value);
  return truth == nullptr ? value : Value(static_cast<std::int16_t>(*truth ? -1 : 0));
}

Action readLet(Tokens& tokens) {
  const std::wstring name = tokens.word();
  const Value value = tokens.value();
  return [=](Player& player, const Statement&) {
    player.onHost([&biller = player.biller(), name, value] { biller.put(name, value); });
  };
}

Action readExpect(Tokens& tokens) {
  const std::wstring name = tokens.word();
  const Value expected = tokens.value();
  return [=](Player& player, const Statement&) {
    const Value seen = player.onHost([&biller = player.biller(), name] { return biller.get(name); });
    if (seen != asStored(expected)) differ(shown(expected), shown(seen));
  };
}

template <void (Player::*act)(const std::wstring&)>
Action readInstance(Tokens& tokens) {
  const std::wstring name = tokens.word();
  return [=](Player& player, const Statement&) { (player.*act)(name); };
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
  const long expected = tokens.number();
  return [=](Player& player, const Statement&) {
    if (player.result() != expected) differ(std::to_wstring(expected), std::to_wstring(player.result()));
  };
}

Action readEvents(Tokens& tokens) {
  std::vector<std::wstring> expected;
  if (!tokens.take(L"none")) {
    do expected.push_back(tokens.word());
    while (!tokens.atEnd());
  }
  return [=](Player& player, const Statement&) {
    const auto seen = player.onHost([&biller = player.biller()] { return biller.events(); });
    if (!sameEvents(expected, seen)) differ(joined(expected), joined(seen));
  };
}

std::wstring shown(SIZE size) {
  return std::to_wstring(size.cx) + L" x " + std::to_wstring(size.cy);
}

Action readSize(Tokens&) {
  return [](Player& player, const Statement&) {
    player.onHost([&biller = player.biller()] {
      const HWND dialog = biller.window();
      const SIZE told = biller.size();
      if (!IsWindow(dialog)) throw Failure(L"Get_hWnd gives no window");
      if ((GetWindowLongW(dialog, GWL_STYLE) & WS_CAPTION) == WS_CAPTION) throw Failure(L"the window has a caption");
      RECT inside{};
      GetClientRect(dialog, &inside);
      if (told.cx <= 0 || told.cy <= 0 || toPixels(told.cx, dialog) != inside.right ||
          toPixels(told.cy, dialog) != inside.bottom) {
        const SIZE seen{toTwips(inside.right, dialog), toTwips(inside.bottom, dialog)};
        differ(L"the window to be " + shown(told) + L" as Get_Width and Get_Height tell", shown(seen));
      }
    });
  };
}

Action readInclude(Tokens& tokens) {
  const std::wstring file = tokens.word();
  return [=](Player& player, const Statement&) { player.include(file); };
}

Action readUnload(Tokens&) {
  return [](Player& player, const Statement&) {
    player.onHost([&biller = player.biller()] { biller.unloadFromRemote(); });
    player.user().settle();
  };
}

using enum Command::Place;

constexpr Command hostTable[] = {
    {L"let", L"let PROPERTY VALUE", anywhere, readLet},
    {L"expect", L"expect PROPERTY VALUE", anywhere, readExpect},
    {L"new", L"new INSTANCE", anywhere, readInstance<&Player::createBiller>},
    {L"use", L"use INSTANCE", anywhere, readInstance<&Player::useBiller>},
    {L"release", L"release INSTANCE", anywhere, readInstance<&Player::releaseBiller>},
    {L"show", L"show modal | remote [after] | import", opensBlock, readShow},
    {L"result", L"result NUMBER", anywhere, readResult},
    {L"events", L"events none | EVENT...", anywhere, readEvents},
    {L"size", L"size", anywhere, readSize},
    {L"unload", L"unload", anywhere, readUnload},
    {L"include", L"include FILE", anywhere, readInclude},
};

}  // namespace

std::span<const Command> hostCommands() {
  return hostTable;
}

}  // namespace nv::host
