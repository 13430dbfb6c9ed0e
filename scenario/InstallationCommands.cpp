// The commands of the scenario language about what is around the component: the installation's files and their faults,
// and the clipboard.
#include <algorithm>
#include <regex>

#include "scenario/Commands.h"
#include "scenario/Failure.h"
#include "scenario/Player.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

/// The line with its leading date and time, in whatever order the user's settings put them, replaced by "<date>": when
/// a line was written is no difference.
std::wstring withoutDate(const std::wstring& line) {
  static const std::wregex date(LR"(^\d{1,4}[-./]\d{1,2}[-./]\d{1,4}( \d{1,2}[:.]\d\d[:.]\d\d( [AP]M)?)?)");
  return std::regex_replace(line, date, L"<date>", std::regex_constants::format_first_only);
}

using Lines = std::vector<std::wstring>;

/// Fails at the first line that differs.
void compareLines(const Lines& expected, const Lines& seen) {
  const auto lineAt = [](const Lines& lines, std::size_t i) {
    return i < lines.size() ? inQuotes(withoutDate(lines[i])) : std::wstring(L"the end of the file");
  };
  for (std::size_t i = 0; i < std::max(expected.size(), seen.size()); ++i) {
    if (lineAt(expected, i) == lineAt(seen, i)) continue;
    throw Failure(L"line " + std::to_wstring(i + 1) + L": expected " + lineAt(expected, i) + L", seen " +
                  lineAt(seen, i));
  }
}

Action fileHas(const std::wstring& file, const std::wstring& line) {
  return [=](Player& player, const Statement&) {
    // Programs that the component starts write in their own time.
    const bool found = player.stage().waitUntil([&] {
      const auto lines = player.stage().lines(file).value_or(Lines());
      return std::ranges::find(lines, withoutDate(line), withoutDate) != lines.end();
    });
    if (!found) throw Failure(L"expected the line " + inQuotes(line) + L", seen none");
  };
}

Action fileIs(const std::wstring& file, const std::wstring& model) {
  return [=](Player& player, const Statement&) {
    const auto seen = player.stage().lines(file);
    if (!seen) throw Failure(L"expected the file, seen none");
    compareLines(player.model(model), *seen);
  };
}

Action fileAbsent(const std::wstring& file) {
  return [=](Player& player, const Statement&) {
    if (player.stage().exists(file)) throw Failure(L"expected no such file, seen one");
  };
}

Action readFile(Tokens& tokens) {
  const std::wstring file = tokens.text();
  if (tokens.take(L"has")) return fileHas(file, tokens.text());
  if (tokens.take(L"is")) return fileIs(file, tokens.wordOrText());
  if (tokens.take(L"absent")) return fileAbsent(file);
  throw Failure(L"it is not said what to look for in the file");
}

template <void (Stage::*act)(const std::wstring&, const std::wstring&)>
Action readTwoTexts(Tokens& tokens) {
  const std::wstring first = tokens.text();
  const std::wstring second = tokens.text();
  return [=](Player& player, const Statement&) { (player.stage().*act)(first, second); };
}

template <void (Stage::*act)(const std::wstring&)>
Action readTexts(Tokens& tokens) {
  std::vector<std::wstring> texts;
  do texts.push_back(tokens.text());
  while (!tokens.atEnd());
  return [=](Player& player, const Statement&) {
    for (const std::wstring& text : texts) (player.stage().*act)(text);
  };
}

Action readExpectClipboard(Tokens& tokens) {
  const std::wstring expected = tokens.text();
  return [=](Player& player, const Statement&) {
    const std::wstring seen = player.stage().clipboard();
    if (seen != expected) differ(inQuotes(expected), inQuotes(seen));
  };
}

using enum Command::Place;

constexpr Command installationTable[] = {
    {L"file", L"file \"FILE\" has \"LINE\" | is MODELFILE | absent", anywhere, readFile},
    {L"write", L"write \"FILE\" \"TEXT\"", anywhere, readTwoTexts<&Stage::write>},
    {L"copy", L"copy \"FROM\" \"TO\"", anywhere, readTwoTexts<&Stage::copy>},
    {L"folder", L"folder \"FOLDER\"...", anywhere, readTexts<&Stage::makeFolder>},
    {L"remove", L"remove \"FILE OR FOLDER\"...", anywhere, readTexts<&Stage::remove>},
    {L"lock", L"lock \"FILE\"...", anywhere, readTexts<&Stage::lock>},
    {L"unlock", L"unlock \"FILE\"...", anywhere, readTexts<&Stage::unlock>},
    {L"readonly", L"readonly \"FILE OR FOLDER\"...", anywhere, readTexts<&Stage::makeReadOnly>},
    {L"clipboard", L"clipboard \"TEXT\"", anywhere, readTexts<&Stage::setClipboard>},
    {L"expect-clipboard", L"expect-clipboard \"TEXT\"", anywhere, readExpectClipboard},
};

}  // namespace

std::span<const Command> installationCommands() {
  return installationTable;
}

}  // namespace nv::scenario
