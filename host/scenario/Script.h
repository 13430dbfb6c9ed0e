// A scenario as it is played: its lines read, checked and grouped.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/base/Tokens.h"

namespace nv::host {

class Player;
struct Statement;

/// What a line does when its turn comes.
using Action = std::function<void(Player& player, const Statement& statement)>;

/// The failed call that the line `error` below a statement expects.
struct ExpectedError {
  long number;
  std::optional<std::wstring> description;
};

struct Statement {
  std::wstring file;  // name of the file that it stands in
  int line = 0;
  std::wstring source;  // as written
  Action action;
  bool facesMessageBox = false;  // may be played while a message box is up
  std::optional<ExpectedError> error;
  std::optional<std::wstring>
      complaint;                 // part of what nvhost must say of this line, as the line `fails` below it has it
  std::vector<Statement> block;  // of `show`: the lines up to its `end`
  int endLine = 0;
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

}  // namespace nv::host
