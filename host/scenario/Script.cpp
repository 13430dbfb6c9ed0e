#include "host/scenario/Script.h"

#include <algorithm>

#include "host/base/Failure.h"
#include "host/base/Text.h"
#include "host/scenario/Commands.h"

namespace nv::host {

namespace {

class Parser {
 public:
  Parser(std::vector<std::wstring> lines, std::wstring file, const std::vector<Substitution>& substitutions)
      : lines_(std::move(lines)), file_(std::move(file)), substitutions_(substitutions) {}

  std::vector<Statement> parse() {
    auto statements = block(false);
    if (next_ < lines_.size()) fail(L"there is no show that this end could belong to");
    return statements;
  }

 private:
  [[noreturn]] void fail(std::wstring text) const { throw ScriptError{file_, line_, std::move(text)}; }

  /// Reads lines up to the end of the file or, `inside` a block, up to the line `end`, which is left.
  std::vector<Statement> block(bool inside) {
    std::vector<Statement> statements;
    for (; next_ < lines_.size(); ++next_) {
      line_ = static_cast<int>(next_) + 1;
      try {
        Tokens tokens(lines_[next_], substitutions_);
        if (tokens.atEnd()) continue;
        const std::wstring name = tokens.word();
        if (name == L"end") {
          tokens.end();
          return statements;
        }
        if (name == L"error" || name == L"fails") {
          if (statements.empty()) fail(L"there is no line before that could fail");
          readExpectation(name, tokens, statements.back());
        } else {
          statements.push_back(statement(name, tokens, inside));
        }
      } catch (const Failure& failure) {
        fail(failure.text());
      }
    }
    if (inside) fail(L"the end of a show is missing");
    return statements;
  }

  Statement statement(const std::wstring& name, Tokens& tokens, bool inside) {
    const Command* const command = findCommand(name);
    if (command == nullptr) fail(L"there is no command " + name);
    if (command->place == Command::Place::inBlock && !inside) {
      fail(name + L" acts on a dialog: it belongs between a show and its end");
    }
    Statement statement;
    statement.file = file_;
    statement.line = line_;
    statement.source = lines_[next_].substr(lines_[next_].find_first_not_of(L" \t"));
    statement.facesMessageBox = command->place == Command::Place::atMessageBox;
    try {
      statement.action = command->read(tokens);
      tokens.end();
    } catch (const Failure& failure) {
      fail(failure.text() + L"; it is written: " + command->usage);
    }
    if (command->place == Command::Place::opensBlock) {
      ++next_;
      statement.block = block(true);
      statement.endLine = line_;
    }
    return statement;
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
  std::size_t next_ = 0;
  int line_ = 0;
};

}  // namespace

std::vector<Statement> parseScript(std::wstring_view text, const std::wstring& file,
                                   const std::vector<Substitution>& substitutions) {
  constexpr std::wstring_view byteOrderMark = L"\xFEFF";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  return Parser(splitLines(text), file, substitutions).parse();
}

const Command* findCommand(std::wstring_view name) {
  for (const auto& family : {hostCommands(), userCommands(), installationCommands(), standInCommands()}) {
    const auto found = std::ranges::find(family, name, &Command::name);
    if (found != family.end()) return &*found;
  }
  return nullptr;
}

}  // namespace nv::host
