// The commands of the scenario language about what an installation brings besides files of its own: the account
// verifier, the closed libraries, and the country file that one of them deciphers.
#include "scenario/Answers.h"
#include "scenario/Commands.h"
#include "scenario/Failure.h"
#include "scenario/Player.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

/// The statement behind its command's name.
std::wstring argumentsOf(const Statement& statement) {
  return statement.source.substr(statement.source.find_first_of(L" \t") + 1);
}

Action readVerifier(Tokens& tokens) {
  if (tokens.take(L"unregistered")) {
    return [](Player& player, const Statement&) { player.stage().setVerifierRegistered(false); };
  }
  if (tokens.take(L"registered")) {
    return [](Player& player, const Statement&) { player.stage().setVerifierRegistered(true); };
  }
  readAnswer(tokens);  // the stand-in will read it again, when it is asked
  return [](Player& player, const Statement& statement) {
    player.stage().append(answersFile, argumentsOf(statement) + L"\r\n");
  };
}

/// What the member was asked last, or nothing.
std::optional<std::wstring> lastAsked(Player& player, const std::wstring& member) {
  return scenario::lastAsked(member, player.stage().lines(askedFile).value_or(std::vector<std::wstring>()));
}

Action readAsked(Tokens& tokens) {
  const std::wstring member = readMember(tokens);
  if (member.starts_with(L"put ")) throw Failure(L"what was put is written behind the call that it was put for");
  if (tokens.take(L"never")) {
    return [=](Player& player, const Statement&) {
      if (const auto seen = lastAsked(player, member)) differ(member + L" never to be asked", *seen);
    };
  }
  std::wstring call = member;
  while (!tokens.atEnd() && !tokens.take(L"with")) call.append(L" ").append(shown(tokens.value()));
  std::wstring puts;
  while (!tokens.atEnd()) {
    puts.append(L" ").append(tokens.word());
    puts.append(L" ").append(shown(tokens.value()));
  }
  const std::wstring expected = puts.empty() ? call : call + L" with" + puts;
  return [=](Player& player, const Statement&) {
    const std::wstring seen = lastAsked(player, member).value_or(L"none");
    if (seen != expected && !(puts.empty() && seen.starts_with(call + L" with "))) differ(expected, seen);
  };
}

/// As many rows as asked for, so that each of them is offered: no country stands twice in a row, and none is among
/// those that the component always offers.
std::wstring countryRows(std::int32_t count) {
  std::wstring text = L"Countries\r\n";
  std::int32_t row = 0;
  for (std::int32_t code = 0; row < count; ++code) {
    const std::wstring letters = {static_cast<wchar_t>(L'A' + code / 26 % 26), static_cast<wchar_t>(L'A' + code % 26)};
    if (letters == L"CA" || letters == L"US") continue;
    ++row;
    text += L"COUNTRY " + std::to_wstring(row) + L"," + letters + L"," + std::to_wstring(row % 1000) + L"\r\n";
  }
  return text;
}

Action readCountries(Tokens& tokens) {
  constexpr const wchar_t* file = L"NORVIK/Bin/FXCountries";
  if (tokens.take(L"sample")) return [](Player& player, const Statement&) { player.stage().setSampleCountries(); };
  if (tokens.take(L"absent")) return [](Player& player, const Statement&) { player.stage().remove(file); };
  if (tokens.take(L"garbage")) {
    return [](Player& player, const Statement&) { player.stage().write(file, L"not enciphered"); };
  }
  const std::wstring text = tokens.take(L"rows") ? countryRows(tokens.number()) : tokens.text();
  return [=](Player& player, const Statement&) { player.stage().setCountries(text); };
}

using enum Command::Place;

constexpr Command commands[] = {
    {L"verifier",
     L"verifier unregistered | registered | MEMBER RESULT [\"TEXT\" [times N] | null] [length N] | "
     L"MEMBER \"TEXT\" | MEMBER fails HRESULT [\"DESCRIPTION\"]",
     anywhere, readVerifier},
    {L"asked", L"asked MEMBER  never | ARGUMENT... [with PROPERTY VALUE...]", anywhere, readAsked},
    {L"countries", L"countries sample | \"TEXT\" | rows N | garbage | absent", anywhere, readCountries},
};

}  // namespace

std::span<const Command> standInCommands() {
  return commands;
}

}  // namespace nv::scenario
