// The stage of nvhost: a host application with its windows, a user at keyboard and mouse, and an installation on disk,
// around the component as COM finds it. The scenario is played on one thread; host, component and dialogs live on
// another.
#pragma once

#include <filesystem>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/application/Biller.h"
#include "host/application/HostWindow.h"
#include "host/application/Installation.h"
#include "host/application/UiThread.h"
#include "host/user/User.h"
#include "scenario/Stage.h"

namespace nv::host {

/// Where a scenario finds and leaves things.
struct Surroundings {
  std::filesystem::path installation;  // root of the stand-in installation, made anew
  std::filesystem::path standIns;      // what the installation is given: see Installation
  std::filesystem::path pictures;      // folder for the scenario's pictures
};

class RealStage final : public scenario::Stage {
 public:
  explicit RealStage(Surroundings surroundings);

  /// Told each event as it comes, on the user-interface thread.
  std::function<void(const std::wstring& event)> onEvent;

  Kind kind() const override { return real; }
  std::wstring root() const override { return installation_.root(); }
  void begin() override;
  void finish() override;
  std::wstring picture() override;

  void create(const std::wstring& instance) override;
  void use(const std::wstring& instance) override;
  void release(const std::wstring& instance) override;
  void put(const std::wstring& property, const Value& value) override;
  Value get(const std::wstring& property) override;
  const std::vector<std::wstring>& readable() override;
  std::vector<std::wstring> events() override;
  void forgetEvents() override;
  void unload() override;
  void beginShow(scenario::Showing kind) override;
  scenario::Dialog awaitShown() override;
  void endShow() override;
  std::int32_t result() const override { return result_; }

  scenario::Dialog awaitDialog(const std::wstring& name) override;
  bool isUp(scenario::Dialog dialog) override;
  scenario::Dialog front() override;
  std::vector<std::wstring> reachable(scenario::Dialog dialog) override;
  std::wstring focus(scenario::Dialog dialog) override;
  void click(scenario::Dialog dialog, const std::wstring& control, scenario::MouseButton button) override;
  void choose(scenario::Dialog dialog, const std::wstring& list, const std::wstring& cell) override;
  void press(const scenario::Chord& chord) override { user_.press(chord); }
  void type(const std::wstring& text) override { user_.type(text); }
  void close(scenario::Dialog dialog) override;
  void closeHost() override;
  void endSession(scenario::Dialog dialog) override;
  std::wstring look(scenario::Dialog dialog, const std::wstring& window, const std::wstring& aspect) override;
  std::optional<scenario::Message> messageBox() override;
  scenario::Message awaitMessageBox() override;
  void answer(const std::wstring& button) override;
  void shot(scenario::Dialog dialog, const std::wstring& file) override;
  void compareSize() override;

  std::optional<std::vector<std::wstring>> lines(const std::wstring& file) override;
  bool exists(const std::wstring& fileOrFolder) override { return installation_.exists(fileOrFolder); }
  void write(const std::wstring& file, const std::wstring& text) override { installation_.write(file, text); }
  void append(const std::wstring& file, const std::wstring& text) override { installation_.append(file, text); }
  void copy(const std::wstring& from, const std::wstring& to) override { installation_.copy(from, to); }
  void makeFolder(const std::wstring& folder) override { installation_.makeFolder(folder); }
  void remove(const std::wstring& fileOrFolder) override { installation_.remove(fileOrFolder); }
  void lock(const std::wstring& file) override { installation_.lock(file); }
  void unlock(const std::wstring& file) override { installation_.unlock(file); }
  void makeReadOnly(const std::wstring& fileOrFolder) override { installation_.makeReadOnly(fileOrFolder); }
  bool waitUntil(const std::function<bool()>& condition) override { return installation_.waitUntil(condition); }
  std::wstring clipboard() override;
  void setClipboard(const std::wstring& text) override;
  void setCountries(const std::wstring& text) override;
  void setSampleCountries() override { installation_.setSampleCountries(); }
  void setVerifierRegistered(bool registered) override;

 private:
  /// An instance of the component and the window of the host that it is embedded in, if any.
  struct Instance {
    std::unique_ptr<Biller> biller;
    std::unique_ptr<HostWindow> window;
  };

  /// What is known when a show method has returned.
  struct Returned {
    LONG result;
    HWND dialog;  // of an embedded show
  };
  /// A show that has been begun and not ended.
  struct Show {
    std::wstring instance;
    bool modal;
    std::vector<HWND> before;  // the dialogs that were up when it began
    std::future<Returned> returned;
    HWND dialog = nullptr;
  };

  /// Has the host do something. A message box that comes up meanwhile is unexpected.
  template <class Work>
  auto onHost(Work work) {
    auto result = thread_.begin(std::move(work));
    awaitReturn(result, L"the call does not return");
    return result.get();
  }
  template <class Result>
  void awaitReturn(const std::future<Result>& result, const wchar_t* complaint);

  Biller& biller();
  HWND window(scenario::Dialog dialog, const std::wstring& name);
  HWND hostWindow();

  Surroundings surroundings_;
  Installation installation_;
  UiThread thread_;
  User user_;
  std::unique_ptr<HostWindow> mainWindow_;
  std::map<std::wstring, Instance> instances_;
  std::wstring inUse_;
  std::vector<std::wstring> readable_;
  std::vector<Show> shows_;
  MessageBoxView box_;
  LONG result_ = 0;
};

}  // namespace nv::host
