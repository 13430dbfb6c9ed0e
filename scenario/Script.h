// A scenario as it is played: its lines read, checked and grouped.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "scenario/Tokens.h"

namespace nv::scenario {

class Player;
struct Command;
struct Statement;

/// What a line does when its turn comes.
using Action = std::function<void(Player& player, const Statement& statement)>;

/// The failed call that the line `error` below a statement expects.
struct ExpectedError {
  std::int32_t number;
  std::optional<std::wstring> description;
};

struct Statement {
  std::wstring file;  // name of the file that it stands in
  int line = 0;
  std::wstring source;   // as written, but for the names of loops around it
  std::wstring comment;  // the lines of comment above it
  const Command* command = nullptr;
  Action action;
  std::optional<ExpectedError> error;
  std::optional<std::wstring> complaint;  // part of what must be said of this line, as the line `fails` below it has it
  std::vector<Statement> block;           // of `show`: the lines up to its `end`
  int endLine = 0;
  bool keepsRecord = false;  // of `show`: a `changed` speaks of it
};

/// A line that cannot be understood.
struct ScriptError {
  std::wstring file;
  int line;
  std::wstring text;
};

/// Reads a scenario, or a file that one includes. Fails with ScriptError at the first line that is wrong.
/// @param file its name, for reports.
std::vector<Statement> parseScript(std::wstring_view text, const std::wstring& file,
                                   const std::vector<Substitution>& substitutions);

}  // namespace nv::scenario
