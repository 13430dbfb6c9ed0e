// The stage without windows: the component's rules with the windowless widgetset, on a machine in memory. It plays in
// milliseconds, under sanitizers, what nvhost plays with the real DLL.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "component/ClsRandom.h"
#include "component/core/Component.h"
#include "scenario/Stage.h"
#include "scenario/native/ComponentThread.h"
#include "scenario/native/StandIns.h"
#include "tests/support/FakeServices.h"
#include "tests/support/User.h"
#include "tests/support/Windowless.h"

namespace nv::scenario {

using test::User;
using test::WindowlessWidgetset;

class NativeStage final : public Stage {
 public:
  /// @param countries the deciphered sample list of countries.
  explicit NativeStage(std::wstring countries);
  ~NativeStage() override;

  Kind kind() const override { return native; }
  std::wstring root() const override { return installationRoot; }
  void begin() override {}
  void finish() override;

  void create(const std::wstring& instance) override;
  void use(const std::wstring& instance) override;
  void release(const std::wstring& instance) override;
  void put(const std::wstring& property, const Value& value) override;
  Value get(const std::wstring& property) override;
  const std::vector<std::wstring>& readable() override;
  std::vector<std::wstring> events() override { return inUse().events; }
  void forgetEvents() override;
  void unload() override;
  void beginShow(Showing kind) override;
  Dialog awaitShown() override;
  void endShow() override;
  std::int32_t result() const override { return result_; }

  Dialog awaitDialog(const std::wstring& name) override;
  bool isUp(Dialog dialog) override { return formOf(dialog) != nullptr; }
  Dialog front() override;
  std::vector<std::wstring> reachable(Dialog dialog) override;
  std::wstring focus(Dialog dialog) override { return userOf(dialog).focus(); }
  void click(Dialog dialog, const std::wstring& control, MouseButton button) override;
  void choose(Dialog dialog, const std::wstring& list, const std::wstring& cell) override;
  void press(const Chord& chord) override;
  void type(const std::wstring& text) override;
  void close(Dialog dialog) override;
  void closeHost() override;
  void endSession(Dialog dialog) override;
  std::wstring look(Dialog dialog, const std::wstring& window, const std::wstring& aspect) override;
  std::optional<Message> messageBox() override { return messages_.shown(); }
  Message awaitMessageBox() override;
  void answer(const std::wstring& button) override;
  void shot(Dialog, const std::wstring&) override {}
  void compareSize() override {}

  std::optional<std::vector<std::wstring>> lines(const std::wstring& file) override;
  bool exists(const std::wstring& fileOrFolder) override;
  void write(const std::wstring& file, const std::wstring& text) override;
  void append(const std::wstring& file, const std::wstring& text) override;
  void copy(const std::wstring& from, const std::wstring& to) override;
  void makeFolder(const std::wstring& folder) override { files_.makeFolder(path(folder)); }
  void remove(const std::wstring& fileOrFolder) override;
  void lock(const std::wstring& file) override;
  void unlock(const std::wstring& file) override;
  void makeReadOnly(const std::wstring& fileOrFolder) override;
  bool waitUntil(const std::function<bool()>& condition) override { return condition(); }
  std::wstring clipboard() override { return widgetset_.clipboard; }
  void setClipboard(const std::wstring& text) override { widgetset_.clipboard = text; }
  void setCountries(const std::wstring& text) override;
  void setSampleCountries() override { setCountries(countries_); }
  void setVerifierRegistered(bool registered) override { standIns_.verifierRegistered = registered; }

 private:
  static constexpr const wchar_t* installationRoot = L"C:\\nvhost\\installation\\";

  /// Message boxes that wait for the answer in a loop of their own.
  class Messages final : public platform::MessageBoxes {
   public:
    explicit Messages(NativeStage& stage) : stage_(stage) {}
    const std::optional<Message>& shown() const { return shown_; }
    void answer(Answer answer) { answer_ = answer; }
    Answer show(std::wstring_view text, std::wstring_view caption, Icon icon, Buttons buttons) override;

   private:
    NativeStage& stage_;
    std::optional<Message> shown_;
    std::optional<Answer> answer_;
  };

  class Machine final : public test::FakeMachine {
   public:
    explicit Machine(WindowlessWidgetset& widgetset) : widgetset_(widgetset) {}
    void emptyClipboard() override { widgetset_.clipboard.clear(); }

   private:
    WindowlessWidgetset& widgetset_;
  };

  /// An instance of the class, what the host hears of it, and the host's window around its dialog.
  struct Instance final : ClsRandomEvents {
    explicit Instance(Component& component) : random(std::make_unique<ClsRandom>(component, *this)) {}
    void CSBOK() override { events.emplace_back(L"CSBOK"); }
    void CurrentFieldTop(std::int16_t top) override {
      events.push_back(L"CurrentFieldTop(" + std::to_wstring(top) + L")");
    }
    void Cancel() override { events.emplace_back(L"Cancel"); }
    void ViewSampleCheque() override { events.emplace_back(L"ViewSampleCheque"); }

    std::vector<std::wstring> events;
    std::unique_ptr<ClsRandom> random;
    Dialog embedded = noDialog;
  };

  struct Show {
    std::wstring instance;
    bool modal;
    std::vector<Dialog> before;  // the dialogs that were up when it began
    std::future<std::int32_t> returned;
  };

  /// Has the host do something. A message box that comes up meanwhile is unexpected.
  template <class Work>
  auto onHost(Work work);
  /// Has the user do something in the form, and lets what comes of it arrive.
  void act(const std::function<void()>& whatToDo);
  void settle();

  Instance& inUse();
  std::vector<Dialog> dialogs(std::wstring_view name) const;
  std::shared_ptr<forms::Form> formOf(Dialog dialog) const;
  User userOf(Dialog dialog);
  User activeUser();
  /// The user, if the control can be clicked.
  User reaching(Dialog dialog, const std::wstring& control);
  bool hostEnabled() const;
  std::wstring path(const std::wstring& file) const;

  std::wstring countries_;
  FakeFiles files_;
  WindowlessWidgetset widgetset_;
  Machine machine_{widgetset_};
  StandIns standIns_{files_, installationRoot};
  Messages messages_{*this};
  const platform::Services services_{messages_, files_, machine_, standIns_, standIns_};
  Component component_{services_, widgetset_};
  std::map<std::wstring, Instance> instances_;
  std::wstring inUse_;
  std::vector<Show> shows_;
  std::int32_t result_ = 0;
  forms::TextBox* menuOf_ = nullptr;  // the field whose context menu is open
  ComponentThread thread_;            // last: it uses the members above
};

}  // namespace nv::scenario
