// The commands of the scenario language about what is around the component: the installation's files and their faults,
// and the clipboard.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>

#include "host/application/Clipboard.h"
#include "host/base/Text.h"
#include "host/scenario/Commands.h"
#include "host/scenario/Player.h"

namespace nv::host {

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
    const Installation& installation = player.installation();
    // Programs that the component starts write in their own time.
    const bool found = installation.waitUntil([&] {
      const auto lines = installation.lines(file).value_or(Lines());
      return std::ranges::find(lines, withoutDate(line), withoutDate) != lines.end();
    });
    if (!found) throw Failure(L"expected the line " + inQuotes(line) + L", seen none");
  };
}

Action fileIs(const std::wstring& file, const std::wstring& model) {
  return [=](Player& player, const Statement&) {
    std::ifstream stream(player.surroundings().scenario.parent_path() / model, std::ios::binary);
    if (!stream) throw Failure(model + L" cannot be read");
    const auto seen = player.installation().lines(file);
    if (!seen) throw Failure(L"expected the file, seen none");
    const std::wstring expected = wide(std::string(std::istreambuf_iterator<char>(stream), {}));
    compareLines(splitLines(replaced(expected, L"{root}", player.installation().root())), *seen);
  };
}

Action fileAbsent(const std::wstring& file) {
  return [=](Player& player, const Statement&) {
    if (player.installation().exists(file)) throw Failure(L"expected no such file, seen one");
  };
}

Action readFile(Tokens& tokens) {
  const std::wstring file = tokens.text();
  if (tokens.take(L"has")) return fileHas(file, tokens.text());
  if (tokens.take(L"is")) return fileIs(file, tokens.wordOrText());
  if (tokens.take(L"absent")) return fileAbsent(file);
  throw Failure(L"it is not said what to look for in the file");
}

Action readWrite(Tokens& tokens) {
  const std::wstring file = tokens.text();
  const std::wstring text = tokens.text();
  return [=](Player& player, const Statement&) { player.installation().write(file, text); };
}

Action readCopy(Tokens& tokens) {
  const std::wstring from = tokens.text();
  const std::wstring to = tokens.text();
  return [=](Player& player, const Statement&) { player.installation().copy(from, to); };
}

template <void (Installation::*act)(const std::wstring&)>
Action readFault(Tokens& tokens) {
  const std::wstring file = tokens.text();
  return [=](Player& player, const Statement&) { (player.installation().*act)(file); };
}

Action readClipboard(Tokens& tokens) {
  const std::wstring text = tokens.text();
  return [=](Player& player, const Statement&) {
    player.user().thread().ask([window = player.mainWindow(), text] { Clipboard(window).set(text); });
  };
}

Action readExpectClipboard(Tokens& tokens) {
  const std::wstring expected = tokens.text();
  return [=](Player& player, const Statement&) {
    const auto seen = player.user().thread().ask([window = player.mainWindow()] { return Clipboard(window).text(); });
    if (seen != expected) differ(inQuotes(expected), inQuotes(seen));
  };
}

using enum Command::Place;

constexpr Command installationTable[] = {
    {L"file", L"file \"FILE\" has \"LINE\" | is MODELFILE | absent", anywhere, readFile},
    {L"write", L"write \"FILE\" \"TEXT\"", anywhere, readWrite},
    {L"copy", L"copy \"FROM\" \"TO\"", anywhere, readCopy},
    {L"folder", L"folder \"FOLDER\"", anywhere, readFault<&Installation::makeFolder>},
    {L"remove", L"remove \"FILE OR FOLDER\"", anywhere, readFault<&Installation::remove>},
    {L"lock", L"lock \"FILE\"", anywhere, readFault<&Installation::lock>},
    {L"unlock", L"unlock \"FILE\"", anywhere, readFault<&Installation::unlock>},
    {L"readonly", L"readonly \"FILE OR FOLDER\"", anywhere, readFault<&Installation::makeReadOnly>},
    {L"clipboard", L"clipboard \"TEXT\"", anywhere, readClipboard},
    {L"expect-clipboard", L"expect-clipboard \"TEXT\"", anywhere, readExpectClipboard},
};

}  // namespace

std::span<const Command> installationCommands() {
  return installationTable;
}

}  // namespace nv::host
