#include "host/scenario/Player.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "host/application/Automation.h"
#include "host/application/Clipboard.h"
#include "host/application/Embedding.h"
#include "host/base/Text.h"
#include "host/user/Picture.h"

namespace nv::host {

namespace {

constexpr const wchar_t* dialogName = L"frmRandomInfo";
constexpr const wchar_t* firstBiller = L"a";

std::wstring readUtf8(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw Failure(L"the file cannot be read");
  return wide(std::string(std::istreambuf_iterator<char>(stream), {}));
}

std::wstring shown(const ExpectedError& error) {
  return L"error " + shownNumber(error.number) + (error.description ? L" " + inQuotes(*error.description) : L"");
}

}  // namespace

void differ(const std::wstring& expected, const std::wstring& seen) {
  throw Failure(L"expected " + expected + L", seen " + seen);
}

Player::Player(Surroundings surroundings)
    : surroundings_(std::move(surroundings)),
      installation_(surroundings_.installation, surroundings_.standIns),
      user_(thread_),
      file_(surroundings_.scenario.filename()) {}

std::optional<std::wstring> Player::play() {
  try {
    const auto statements = read(surroundings_.scenario);
    begin();
    play(statements);
    finish();
    return std::nullopt;
  } catch (const Failure& failure) {
    return report(failure.text());
  } catch (const HostError& error) {
    return report(error.shown());
  } catch (const ScriptError& error) {
    file_ = error.file;
    line_ = error.line;
    return report(error.text);
  }
}

/// The failure with its place and a picture of the screen.
std::wstring Player::report(const std::wstring& failure) {
  std::wstring text = position() + failure;
  if (source_.empty()) return text;  // nothing has been played
  const auto picture = surroundings_.pictures / L"failure.png";
  try {
    user_.paint();
  } catch (const Failure&) {  // NOLINT(bugprone-empty-catch): a host that hangs is shown as it is
  }
  try {
    Picture::ofScreen().save(picture);
    return text.append(L" (screen: ").append(picture.wstring()).append(L")");
  } catch (const Failure& missing) {
    return text.append(L" (").append(missing.text()).append(L")");
  }
}

void Player::begin() {
  thread_.ask([this] { mainWindow_ = std::make_unique<HostWindow>(L"NVHost", POINT{20, 20}, SIZE{1000, 800}); });
  user_.await(L"the host's window does not come to the front",
              [this] { return GetForegroundWindow() == mainWindow_->handle(); });
  createBiller(firstBiller);
  thread_.ask([this] { Clipboard(mainWindow_->handle()).clear(); });
}

void Player::finish() {
  source_ = L"end of the scenario";
  if (const HWND box = messageBox(thread_.id())) throw unexpected(box);
  if (!instances_.empty() && !dialogs(thread_.id(), {}).empty()) {
    onHost([this] { instances_.begin()->second.biller->unloadFromRemote(); });
  }
  onHost([this] {
    instances_.clear();
    mainWindow_.reset();
  });
  user_.settle();
  const auto left = dialogs(thread_.id(), {});
  if (!left.empty()) throw Failure(nameOf(left.front()) + L" is still up when all instances are released");
}

std::wstring Player::position() const {
  std::wstring text = file_ + L": ";
  if (line_ > 0) text.insert(text.size() - 1, std::to_wstring(line_) + L":");
  if (!source_.empty()) text += source_ + L": ";
  return text;
}

// Statements

std::vector<Statement> Player::read(const std::filesystem::path& file) const {
  return parseScript(readUtf8(file), file.filename(),
                     {{L"root", installation_.root()}, {L"folder", installation_.folder()}});
}

void Player::include(const std::filesystem::path& file) {
  play(read(surroundings_.scenario.parent_path() / file));
}

void Player::play(std::span<const Statement> statements) {
  for (const Statement& statement : statements) {
    file_ = statement.file;
    line_ = statement.line;
    source_ = statement.source;
    play(statement);
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
  const HWND box = messageBox(thread_.id());
  if (box != nullptr && !statement.facesMessageBox) throw unexpected(box);
  if (!statement.error) return statement.action(*this, statement);
  try {
    statement.action(*this, statement);
  } catch (const HostError& error) {
    const auto& [number, description] = *statement.error;
    if (error.number() == number && description.value_or(error.description()) == error.description()) return;
    differ(shown(*statement.error), error.shown());
  }
  differ(shown(*statement.error), L"none");
}

Failure Player::unexpected(HWND messageBox) {
  const MessageBoxView view = user_.viewOf(messageBox);
  return Failure(L"unexpected: message " + inQuotes(view.text) + L" caption " + inQuotes(view.caption) + L" icon " +
                 view.icon + L" buttons " + view.buttons);
}

// Instances

Biller& Player::biller() {
  const auto found = instances_.find(inUse_);
  if (found == instances_.end()) throw Failure(L"there is no instance " + inUse_);
  return *found->second.biller;
}

void Player::createBiller(const std::wstring& name) {
  if (instances_.contains(name)) throw Failure(L"there is an instance " + name + L" already");
  onHost([this, name] { instances_[name].biller = std::make_unique<Biller>(); });
  inUse_ = name;
}

void Player::useBiller(const std::wstring& name) {
  inUse_ = name;
  biller();
}

void Player::releaseBiller(const std::wstring& name) {
  if (!instances_.contains(name)) throw Failure(L"there is no instance " + name);
  onHost([this, name] { instances_.erase(name); });
}

// Showing

void Player::show(Showing kind, const Statement& statement) {
  biller();
  if (showing_++ == 0) {
    onHost([this] {
      for (auto& [name, instance] : instances_) instance.biller->forgetEvents();
    });
  }
  const HWND outer = dialog_;
  if (kind == Showing::modal || kind == Showing::import) {
    showModal(kind == Showing::modal ? Biller::Show::modal : Biller::Show::import, statement);
  } else {
    showRemote(kind == Showing::remote, statement);
  }
  dialog_ = outer;
  --showing_;
}

/// Plays the lines at the front of the block that answer message boxes, until the dialog is `shown`: some come before
/// it. Returns how many lines these were.
std::size_t Player::answerEarlyMessages(const Statement& statement, const std::function<bool()>& shown) {
  for (std::size_t next = 0;; ++next) {
    user_.await(L"no dialog appears", [&] { return shown() || messageBox(thread_.id()) != nullptr; });
    if (shown()) return next;
    if (next == statement.block.size()) throw unexpected(messageBox(thread_.id()));
    play({&statement.block[next], 1});
  }
}

void Player::playBlock(const Statement& statement, std::size_t from) {
  play(std::span(statement.block).subspan(from));
  file_ = statement.file;
  line_ = statement.endLine;
  source_ = L"end";
}

void Player::showModal(Biller::Show kind, const Statement& statement) {
  const auto before = dialogs(thread_.id(), dialogName);
  dialog_ = nullptr;
  const auto appears = [&] {
    for (const HWND window : dialogs(thread_.id(), dialogName)) {
      if (std::ranges::find(before, window) == before.end()) dialog_ = window;
    }
    return dialog_ != nullptr;
  };
  auto shown = thread_.begin([&biller = biller(), kind] { return biller.show(kind); });
  const std::size_t played = answerEarlyMessages(statement, [&] { return appears() || UiThread::ready(shown); });
  if (UiThread::ready(shown)) {
    result_ = shown.get();
    if (played < statement.block.size())
      throw Failure(L"the call returned " + std::to_wstring(result_) + L" without a dialog");
    return;
  }
  user_.settle();
  playBlock(statement, played);
  awaitReturn(shown, L"the dialog is still up");
  result_ = shown.get();
  user_.settle();
}

void Player::showRemote(bool embedFirst, const Statement& statement) {
  const std::wstring name = inUse_;
  auto shown = thread_.begin([this, name, embedFirst] {
    auto& [biller, window] = instances_.at(name);
    if (!window || window->handle() == nullptr) window = windowFor(*biller);
    if (embedFirst) embed(*biller, *window);
    result_ = biller->show(Biller::Show::remote);
    if (!embedFirst) embed(*biller, *window);
    return biller->window();
  });
  const std::size_t played = answerEarlyMessages(statement, [&] { return UiThread::ready(shown); });
  dialog_ = shown.get();
  user_.await(L"the dialog does not appear", [this] { return IsWindowVisible(dialog_) != FALSE; });
  user_.settle();
  playBlock(statement, played);
  user_.settle();
  if (IsWindow(dialog_)) return;
  onHost([this, name] {
    if (instances_.contains(name)) instances_.at(name).window.reset();
  });
}

HWND Player::window(const std::wstring& name) {
  if (name == L"form" && dialog_ != nullptr) return dialog_;
  if (name == L"host") {
    const auto found = instances_.find(inUse_);
    const HWND own = found == instances_.end() || !found->second.window ? nullptr : found->second.window->handle();
    return own != nullptr ? own : mainWindow_->handle();
  }
  if (!IsWindow(dialog_)) throw Failure(L"the dialog is gone");
  return user_.awaitControl(dialog_, name);
}

}  // namespace nv::host
