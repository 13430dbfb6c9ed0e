// The commands of the scenario language about what an installation brings besides files of its own: the account
// verifier, the closed libraries, and the country file that one of them deciphers.
#include "host/base/Text.h"
#include "host/scenario/Commands.h"
#include "host/scenario/Player.h"
#include "host/standins/Answers.h"
#include "host/standins/Record.h"
#include "host/standins/Setup.h"

namespace nv::host {

namespace {

/// The statement behind its command's name.
std::wstring argumentsOf(const Statement& statement) {
  return statement.source.substr(statement.source.find_first_of(L" \t") + 1);
}

Action readVerifier(Tokens& tokens) {
  if (tokens.take(L"unregistered")) return [](Player&, const Statement&) { withdrawVerifier(); };
  if (tokens.take(L"registered")) return [](Player&, const Statement&) { restoreVerifier(); };
  readAnswer(tokens);  // the stand-in will read it again, when it is asked
  return [](Player&, const Statement& statement) { record(answersFile, argumentsOf(statement)); };
}

Action readAsked(Tokens& tokens) {
  const std::wstring member = readMember(tokens);
  if (member.starts_with(L"put ")) throw Failure(L"what was put is written behind the call that it was put for");
  if (tokens.take(L"never")) {
    return [=](Player&, const Statement&) {
      if (const auto seen = lastAsked(member)) differ(member + L" never to be asked", *seen);
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
  return [=](Player&, const Statement&) {
    const std::wstring seen = lastAsked(member).value_or(L"none");
    if (seen != expected && !(puts.empty() && seen.starts_with(call + L" with "))) differ(expected, seen);
  };
}

/// As many rows as asked for, so that each of them is offered: no country stands twice in a row, and none is among
/// those that the component always offers.
std::string countryRows(long count) {
  std::string text = "Countries\r\n";
  long row = 0;
  for (long code = 0; row < count; ++code) {
    const std::string letters = {static_cast<char>('A' + code / 26 % 26), static_cast<char>('A' + code % 26)};
    if (letters == "CA" || letters == "US") continue;
    ++row;
    text += "COUNTRY " + std::to_string(row) + "," + letters + "," + std::to_string(row % 1000) + "\r\n";
  }
  return text;
}

Action readCountries(Tokens& tokens) {
  constexpr const wchar_t* file = L"NORVIK/Bin/FXCountries";
  if (tokens.take(L"sample"))
    return [](Player& player, const Statement&) { player.installation().setSampleCountries(); };
  if (tokens.take(L"absent")) return [](Player& player, const Statement&) { player.installation().remove(file); };
  if (tokens.take(L"garbage")) {
    return [](Player& player, const Statement&) { player.installation().write(file, L"not enciphered"); };
  }
  const bool rows = tokens.take(L"rows");
  const std::string text = rows ? countryRows(tokens.number()) : narrow(tokens.text(), CP_ACP);
  return [=](Player& player, const Statement&) { player.installation().setCountries(text); };
}

using enum Command::Place;

constexpr Command commands[] = {
    {L"verifier",
     L"verifier unregistered | registered | MEMBER RESULT [\"TEXT\" [times N] | null] [length N] | "
     L"MEMBER \"TEXT\" | MEMBER fails HRESULT [\"DESCRIPTION\"]",
     anywhere, readVerifier},
    {L"asked", L"asked MEMBER never | ARGUMENT... [with PROPERTY VALUE...]", anywhere, readAsked},
    {L"countries", L"countries sample | \"TEXT\" | rows N | garbage | absent", anywhere, readCountries},
};

}  // namespace

std::span<const Command> standInCommands() {
  return commands;
}

}  // namespace nv::host
