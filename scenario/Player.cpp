#include "scenario/Player.h"

#include <fstream>
#include <iterator>

#include "scenario/Commands.h"
#include "scenario/Failure.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

constexpr const wchar_t* firstInstance = L"a";

std::wstring readUtf8(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw Failure(file.filename().wstring() + L" cannot be read");
  return fromUtf8(std::string(std::istreambuf_iterator<char>(stream), {}));
}

std::wstring asWritten(const ExpectedError& error) {
  return L"error " + shownNumber(error.number) + (error.description ? L" " + inQuotes(*error.description) : L"");
}

}  // namespace

void failUnexpected(const Message& box) {
  throw Failure(L"unexpected: message " + inQuotes(box.text) + L" caption " + inQuotes(box.caption) + L" icon " +
                box.icon + L" buttons " + box.buttons);
}

std::optional<std::wstring> Player::play() {
  try {
    const auto statements = read(scenario_);
    stage_.begin();
    stage_.create(firstInstance);
    play(statements);
    source_ = L"end of the scenario";
    if (const auto box = stage_.messageBox()) failUnexpected(*box);
    stage_.finish();
    return std::nullopt;
  } catch (const Failure& failure) {
    return report(failure.text());
  } catch (const CallError& error) {
    return report(error.shown());
  } catch (const ScriptError& error) {
    file_ = error.file;
    line_ = error.line;
    source_.clear();
    return report(error.text);
  }
}

/// The failure with its place and where a picture of it stands.
std::wstring Player::report(const std::wstring& failure) {
  const std::wstring text = position() + failure;
  return source_.empty() ? text : text + stage_.picture();
}

std::wstring Player::position() const {
  std::wstring text = file_ + L": ";
  if (line_ > 0) text.insert(text.size() - 1, std::to_wstring(line_) + L":");
  if (!source_.empty()) text += source_ + L": ";
  return text;
}

// Statements

std::vector<Statement> Player::read(const std::filesystem::path& file) const {
  const std::wstring root = stage_.root();
  return parseScript(readUtf8(file), file.filename().wstring(),
                     {{L"root", root}, {L"folder", root.substr(0, root.size() - 1)}});
}

void Player::include(const std::wstring& file) {
  play(read(scenario_.parent_path() / file));
}

std::vector<std::wstring> Player::model(const std::wstring& file) const {
  return splitLines(replaced(readUtf8(scenario_.parent_path() / file), L"{root}", stage_.root()));
}

void Player::renewModel(const std::wstring& file, const std::vector<std::wstring>& lines) const {
  std::ofstream stream(scenario_.parent_path() / file, std::ios::binary);
  for (const std::wstring& line : lines) stream << std::string(line.begin(), line.end()) << '\n';
  if (!stream) throw Failure(file + L" cannot be written");
}

void Player::play(std::span<const Statement> statements) {
  for (const Statement& statement : statements) {
    file_ = statement.file;
    line_ = statement.line;
    source_ = statement.source;
    if (beforeLine) beforeLine(statement);
    if ((statement.command->stages & stage_.kind()) != 0) {
      play(statement);
    } else {
      ++passedOver_[statement.command->name];
    }
  }
}

void Player::play(const Statement& statement) {
  if (!statement.complaint) return perform(statement);
  try {
    perform(statement);
  } catch (const Failure& failure) {
    if (failure.text().find(*statement.complaint) != std::wstring::npos) return;
    differ(L"the failure " + inQuotes(*statement.complaint), inQuotes(failure.text()));
  }
  differ(L"the failure " + inQuotes(*statement.complaint), L"none");
}

void Player::perform(const Statement& statement) {
  const auto box = stage_.messageBox();
  if (box && statement.command->place != Command::Place::atMessageBox) failUnexpected(*box);
  if (!statement.error) return statement.action(*this, statement);
  try {
    statement.action(*this, statement);
  } catch (const CallError& error) {
    const auto& [number, description] = *statement.error;
    if (error.number() == number && description.value_or(error.description()) == error.description()) return;
    differ(asWritten(*statement.error), error.shown());
  }
  differ(asWritten(*statement.error), L"none");
}

// Showing

void Player::show(Showing kind, const Statement& statement) {
  if (showing_ == 0) stage_.forgetEvents();
  const bool keepsRecord = statement.keepsRecord || afterShow;
  Record before = keepsRecord ? record() : Record();
  const std::size_t depth = dialogs_.size();
  const std::size_t outer = shown_;
  ++showing_;
  playShown(kind, statement);
  --showing_;
  shown_ = outer;
  dialogs_.resize(depth);
  if (keepsRecord) recordBefore_ = std::move(before);
  if (afterShow) afterShow();
}

void Player::playShown(Showing kind, const Statement& statement) {
  stage_.beginShow(kind);
  // Some message boxes come before the dialog.
  std::size_t next = 0;
  Dialog dialog = stage_.awaitShown();
  while (dialog == noDialog && stage_.messageBox()) {
    if (next == statement.block.size()) failUnexpected(*stage_.messageBox());
    play({&statement.block[next++], 1});
    dialog = stage_.awaitShown();
  }
  if (dialog == noDialog) {
    stage_.endShow();
    if (next == statement.block.size()) return;
    throw Failure(L"the call returned " + std::to_wstring(stage_.result()) + L" without a dialog");
  }
  dialogs_.push_back(dialog);
  shown_ = dialogs_.size();
  playBlock(statement, next);
  stage_.endShow();
}

void Player::playBlock(const Statement& statement, std::size_t from) {
  play(std::span(statement.block).subspan(from));
  file_ = statement.file;
  line_ = statement.endLine;
  source_ = L"end";
  if (const auto box = stage_.messageBox()) failUnexpected(*box);
}

Dialog Player::dialog() {
  while (dialogs_.size() > shown_ && !stage_.isUp(dialogs_.back())) dialogs_.pop_back();
  return dialogs_.empty() ? noDialog : dialogs_.back();
}

void Player::setDialog(Dialog dialog) {
  if (this->dialog() != dialog) dialogs_.push_back(dialog);
}

Player::Record Player::record() {
  Record record;
  for (const std::wstring& property : stage_.readable()) record[property] = stage_.get(property);
  return record;
}

}  // namespace nv::scenario
