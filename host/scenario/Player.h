// Plays one scenario: a host application and its user, on a fresh installation, with fresh instances of the component
// on a thread of their own. What the commands act on and share stands here; what each does, in their tables.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/application/Biller.h"
#include "host/application/HostWindow.h"
#include "host/application/Installation.h"
#include "host/application/UiThread.h"
#include "host/base/Failure.h"
#include "host/scenario/Script.h"
#include "host/user/Screen.h"
#include "host/user/User.h"

namespace nv::host {

/// Where a scenario finds and leaves things.
struct Surroundings {
  std::filesystem::path scenario;      // the file itself
  std::filesystem::path installation;  // root of the stand-in installation, made anew
  std::filesystem::path standIns;      // what the installation is given: see Installation
  std::filesystem::path pictures;      // folder for the scenario's pictures
};

/// What the host shows.
enum class Showing { modal, remote, remoteEmbeddedAfterwards, import };

[[noreturn]] void differ(const std::wstring& expected, const std::wstring& seen);

class Player {
 public:
  explicit Player(Surroundings surroundings);

  /// Plays the scenario to its end and tidies up. Returns what it failed with, as "file:line: what", or nothing. After
  /// a failure the host's thread may hang in a dialog: nothing but ending the process is left to do.
  std::optional<std::wstring> play();

  /// The line that is being played, as "file:line: text: ".
  std::wstring position() const;

  /// Plays the lines of another file, which stands beside the scenario.
  void include(const std::filesystem::path& file);

  // For the commands. Failures are Failure and HostError.

  User& user() { return user_; }
  Installation& installation() { return installation_; }
  const Surroundings& surroundings() const { return surroundings_; }

  /// Has the host do something. A message box that comes up meanwhile is unexpected.
  template <class Work>
  auto onHost(Work work) {
    auto result = thread_.begin(std::move(work));
    awaitReturn(result, L"the call does not return");
    return result.get();
  }

  /// The instance in use.
  Biller& biller();
  void createBiller(const std::wstring& name);
  void useBiller(const std::wstring& name);
  void releaseBiller(const std::wstring& name);

  /// Shows the dialog and plays the block of the statement while it is up.
  void show(Showing kind, const Statement& statement);
  LONG result() const { return result_; }

  /// The dialog that lines speak of.
  HWND dialog() const { return dialog_; }
  void setDialog(HWND dialog) { dialog_ = dialog; }
  /// A window by name: "form" for the dialog, "host" for the host's window around or behind it, else one of the
  /// dialog's controls, which is waited for.
  HWND window(const std::wstring& name);
  HWND mainWindow() const { return mainWindow_->handle(); }

 private:
  /// An instance of the component and the window of the host that it is embedded in, if any.
  struct Instance {
    std::unique_ptr<Biller> biller;
    std::unique_ptr<HostWindow> window;
  };

  std::vector<Statement> read(const std::filesystem::path& file) const;
  void begin();
  void play(std::span<const Statement> statements);
  void play(const Statement& statement);
  void finish();
  std::wstring report(const std::wstring& failure);
  void perform(const Statement& statement);
  void showModal(Biller::Show kind, const Statement& statement);
  void showRemote(bool embedFirst, const Statement& statement);
  std::size_t answerEarlyMessages(const Statement& statement, const std::function<bool()>& shown);
  void playBlock(const Statement& statement, std::size_t from);
  Failure unexpected(HWND messageBox);

  template <class Result>
  void awaitReturn(const std::future<Result>& result, const wchar_t* complaint) {
    const auto box = [this] { return messageBox(thread_.id()); };
    thread_.waitUntil([&] { return UiThread::ready(result) || box() != nullptr; });
    if (UiThread::ready(result)) return;
    if (const HWND unexpectedBox = box()) throw unexpected(unexpectedBox);
    throw Failure(complaint);
  }

  Surroundings surroundings_;
  Installation installation_;
  UiThread thread_;
  User user_;
  std::unique_ptr<HostWindow> mainWindow_;
  std::map<std::wstring, Instance> instances_;
  std::wstring inUse_;
  HWND dialog_ = nullptr;
  int showing_ = 0;  // how many shows are up, one inside the other
  LONG result_ = 0;

  std::wstring file_;
  int line_ = 0;
  std::wstring source_;
};

}  // namespace nv::host
