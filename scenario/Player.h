// Plays one scenario on a stage. What the commands act on and share stands here; what each does, in their tables.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "scenario/Script.h"
#include "scenario/Stage.h"

namespace nv::scenario {

/// A message box that nobody waited for.
[[noreturn]] void failUnexpected(const Message& box);

class Player {
 public:
  /// @param scenario the file; others that it names stand beside it.
  Player(Stage& stage, std::filesystem::path scenario) : stage_(stage), scenario_(std::move(scenario)) {}

  /// Plays the scenario to its end and tidies up. Returns what it failed with, as "file:line: what", or nothing. After
  /// a failure the stage may hang in a dialog.
  std::optional<std::wstring> play();

  /// Told each line before it is played, and each show after it has ended.
  std::function<void(const Statement& statement)> beforeLine;
  std::function<void()> afterShow;

  /// What is compared with a model that has been looked at and found good: makes the model instead, in ASCII.
  bool renewsModels = false;

  /// The line that is being played, as "file:line: text: ".
  std::wstring position() const;
  /// What was passed over because only other stages can play it: by command, how often.
  const std::map<std::wstring, int>& passedOver() const { return passedOver_; }

  // For the commands. Failures are Failure and CallError.

  Stage& stage() { return stage_; }

  /// Plays the lines of another file.
  void include(const std::wstring& file);
  /// The lines of a text file that stands beside the scenario.
  std::vector<std::wstring> model(const std::wstring& file) const;
  /// Makes the file of these lines, if `renewsModels`.
  void renewModel(const std::wstring& file, const std::vector<std::wstring>& lines) const;

  /// Shows the dialog and plays the block of the statement while it is up.
  void show(Showing kind, const Statement& statement);

  /// The dialog that lines speak of: the last that was asked for, while it is up, else the one around it.
  Dialog dialog();
  void setDialog(Dialog dialog);

  using Record = std::map<std::wstring, Value>;
  /// Every property that a host can read.
  Record record();
  /// The record as it was when the last show began that is over, and keeps one.
  const Record& recordBefore() const { return recordBefore_; }

  /// Whether the control, or the field inside it, has the keyboard.
  bool focused(const std::wstring& control) { return stage_.look(dialog(), control, L"focused") == L"true"; }

 private:
  std::vector<Statement> read(const std::filesystem::path& file) const;
  void play(std::span<const Statement> statements);
  void play(const Statement& statement);
  void perform(const Statement& statement);
  void playShown(Showing kind, const Statement& statement);
  void playBlock(const Statement& statement, std::size_t from);
  std::wstring report(const std::wstring& failure);

  Stage& stage_;
  std::filesystem::path scenario_;
  std::vector<Dialog> dialogs_;  // of the shows that are up and what was asked for in them, the innermost last
  std::size_t shown_ = 0;        // how many of them stay, up or not: those up to that of the last show
  int showing_ = 0;              // how many shows are up, one inside the other
  Record recordBefore_;
  std::map<std::wstring, int> passedOver_;

  std::wstring file_ = scenario_.filename().wstring();
  int line_ = 0;
  std::wstring source_;
};

}  // namespace nv::scenario
