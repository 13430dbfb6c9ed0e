#include "scenario/Script.h"

#include <algorithm>
#include <array>
#include <utility>

#include "scenario/Commands.h"
#include "scenario/Failure.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

constexpr std::array families = {hostCommands, userCommands, installationCommands, standInCommands};

/// What the user does may go on, and end in what comes of it, in the same line.
constexpr std::wstring_view continuations[] = {L"key",      L"is",      L"focus",   L"visible", L"hidden", L"enabled",
                                               L"disabled", L"message", L"refused", L"in",      L"cancel"};

/// The line without the blanks at its front.
std::wstring_view cut(std::wstring_view line) {
  return line.substr(std::min(line.find_first_not_of(L" \t"), line.size()));
}

class Parser {
 public:
  Parser(std::vector<std::wstring> lines, std::wstring file, const std::vector<Substitution>& substitutions)
      : lines_(std::move(lines)), file_(std::move(file)), substitutions_(substitutions) {}

  std::vector<Statement> parse() {
    std::vector<Statement> statements;
    block(nullptr, false, statements);
    if (next_ < lines_.size()) fail(L"there is nothing that this end could belong to");
    return statements;
  }

 private:
  [[noreturn]] void fail(std::wstring text) const { throw ScriptError{file_, line_, std::move(text)}; }

  /// Reads lines up to the end of the file or, inside what `opener` begins, up to the line `end`, which is left.
  void block(const wchar_t* opener, bool inShow, std::vector<Statement>& statements) {
    std::wstring comment;
    for (; next_ < lines_.size(); ++next_) {
      line_ = static_cast<int>(next_) + 1;
      const std::wstring source = expanded(cut(lines_[next_]));
      if (source.starts_with(L"#")) comment += source + L"\n";
      try {
        Tokens tokens(source, substitutions_);
        if (tokens.atEnd()) continue;
        const std::wstring name = tokens.word();
        if (name == L"end") {
          tokens.end();
          return;
        }
        if (name == L"for") {
          loop(tokens, inShow, statements);
        } else if (name == L"error" || name == L"fails") {
          if (statements.empty()) fail(L"there is no line before that could fail");
          readExpectation(name, tokens, statements.back());
        } else {
          addLine(name, tokens, source, inShow, statements);
          statements.back().comment = std::exchange(comment, {});
        }
      } catch (const Failure& failure) {
        fail(failure.text());
      }
    }
    if (opener != nullptr) fail(std::wstring(L"the end of a ") + opener + L" is missing");
  }

  void addLine(const std::wstring& name, Tokens& tokens, const std::wstring& source, bool inShow,
               std::vector<Statement>& statements) {
    const bool user = std::ranges::any_of(userCommands(), [&](const Command& command) { return command.name == name; });
    const bool goesOn = user && name != L"refused" && name != L"message";
    Tokens rest = goesOn ? tokens.cutFrom(continuations) : Tokens();
    add(name, tokens, source, inShow, statements);
    if (!rest.atEnd()) addLine(rest.word(), rest, source, inShow, statements);
  }

  void add(const std::wstring& name, Tokens& tokens, const std::wstring& source, bool inShow,
           std::vector<Statement>& statements) {
    const Command& command = commandOf(name);
    if (command.place == Command::Place::inBlock && !inShow) {
      fail(name + L" acts on a dialog: it belongs between a show and its end");
    }
    if (command.place == Command::Place::afterShow) {
      const auto show = std::find_if(statements.rbegin(), statements.rend(), [](const Statement& statement) {
        return statement.command->place == Command::Place::opensBlock;
      });
      if (show == statements.rend()) fail(name + L" speaks of the show before it, and there is none");
      show->keepsRecord = true;
    }
    Statement statement;
    statement.file = file_;
    statement.line = line_;
    statement.source = source;
    statement.command = &command;
    try {
      statement.action = command.read(tokens);
      tokens.end();
    } catch (const Failure& failure) {
      fail(failure.text() + L"; it is written: " + command.usage);
    }
    if (command.place == Command::Place::opensBlock) {
      ++next_;
      block(L"show", true, statement.block);
      statement.endLine = line_;
    }
    statements.push_back(std::move(statement));
  }

  /// `for NAME... in VALUE...`: the lines up to `end` once for each value, or group of values, in place of {NAME}.
  void loop(Tokens& tokens, bool inShow, std::vector<Statement>& statements) {
    std::vector<std::wstring> names;
    while (!tokens.take(L"in")) names.push_back(tokens.word());
    std::vector<std::wstring> values;
    while (!tokens.atEnd()) values.push_back(tokens.wordOrText());
    if (names.empty() || values.empty() || values.size() % names.size() != 0) {
      fail(L"the values are not as many for each name; it is written: for NAME... in VALUE...");
    }
    const std::size_t begin = next_ + 1;
    const auto outer = loops_;
    for (auto value = values.begin(); value != values.end();) {
      loops_ = outer;
      for (const std::wstring& name : names) loops_.push_back({name, *value++});
      next_ = begin;
      block(L"for", inShow, statements);
    }
    loops_ = outer;
  }

  /// The line with the values of the loops around it: in a text escaped as it must be there, elsewhere as they are.
  std::wstring expanded(std::wstring_view line) const {
    std::wstring result;
    bool inText = false;
    for (std::size_t at = 0; at < line.size();) {
      const auto loop = std::ranges::find_if(loops_, [rest = line.substr(at)](const Substitution& each) {
        return rest.starts_with(L"{" + each.name + L"}");
      });
      if (loop != loops_.end()) {
        const std::wstring quoted = inQuotes(loop->value);
        result += inText ? quoted.substr(1, quoted.size() - 2) : loop->value;
        at += loop->name.size() + 2;
      } else {
        if (line[at] == L'"' && (at == 0 || line[at - 1] != L'\\')) inText = !inText;
        result += line[at++];
      }
    }
    return result;
  }

  static void readExpectation(const std::wstring& name, Tokens& tokens, Statement& statement) {
    if (name == L"fails") {
      statement.complaint = tokens.text();
    } else {
      statement.error = ExpectedError{tokens.number(), std::nullopt};
      if (!tokens.atEnd()) statement.error->description = tokens.text();
    }
    tokens.end();
  }

  std::vector<std::wstring> lines_;
  std::wstring file_;
  const std::vector<Substitution>& substitutions_;
  std::vector<Substitution> loops_;
  std::size_t next_ = 0;
  int line_ = 0;
};

}  // namespace

namespace {

/// The lines, but that one that ends in a backslash has those that it goes on in, and they are empty.
std::vector<std::wstring> joinedLines(std::wstring_view text) {
  auto lines = splitLines(text);
  for (std::size_t i = 0; i < lines.size();) {
    std::size_t next = i + 1;
    for (; next < lines.size() && lines[i].ends_with(L'\\'); ++next) {
      lines[i].back() = L' ';
      lines[i] += std::exchange(lines[next], {});
    }
    i = next;
  }
  return lines;
}

}  // namespace

std::vector<Statement> parseScript(std::wstring_view text, const std::wstring& file,
                                   const std::vector<Substitution>& substitutions) {
  constexpr std::wstring_view byteOrderMark = L"\xFEFF";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  return Parser(joinedLines(text), file, substitutions).parse();
}

const Command& commandOf(std::wstring_view name) {
  std::vector<std::wstring> names = {L"end", L"for", L"error", L"fails"};
  for (const auto& family : families) {
    for (const Command& command : family()) {
      if (command.name == name) return command;
      names.emplace_back(command.name);
    }
  }
  throw Failure(L"there is no command " + std::wstring(name) + didYouMean(name, names));
}

}  // namespace nv::scenario
