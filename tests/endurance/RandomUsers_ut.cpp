// Random users, random hosts and random outside parties, for as long as wanted: whatever they do, the rules that every
// dialog keeps hold after each step.
//
// The environment decides: NVRANDOM_SECONDS lets users with ever new seeds work for so long, NVRANDOM_SEED repeats the
// one session of that seed and tells what happens in it. Without either, the sessions are the same every time.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "dialogs/biller/frmRandomInfo.h"
#include "forms/TextField.h"
#include "scenario/RandomUser.h"
#include "tests/support/WholeShow.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;

/// The random user's hands in a form without windows.
class FormHands final : public scenario::Hands {
 public:
  explicit FormHands(User& user) : user_(user) { user_.settle(); }

  Texts reachable() override {
    Texts names;
    for (const forms::Control* control : user_.form().controls()) {
      if (user_.open() && control->reachable()) names.push_back(control->fullName());
    }
    return names;
  }
  std::wstring textOf(const std::wstring& control) override { return user_.open() ? user_.text(control) : L""; }
  void click(const std::wstring& control) override {
    if (user_.open()) user_.click(control);
  }
  void rightClick(const std::wstring& control) override { user_.rightClick(control); }
  void press(const scenario::Chord& chord) override {
    int shift = 0;
    for (const int code : chord) {
      shift |= code == scenario::keys::shift ? forms::shiftKey : 0;
      shift |= code == scenario::keys::control ? forms::controlKey : 0;
      shift |= code == scenario::keys::alt ? forms::altKey : 0;
    }
    if (hasKeyboard()) user_.key(chord.back(), shift);
  }
  void type(const std::wstring& text) override {
    for (const wchar_t c : text) {
      if (hasKeyboard()) user_.type({&c, 1});
    }
  }
  void paste(const std::wstring& text) override {
    if (hasKeyboard()) user_.paste(text);
  }
  void close() override { user_.closeBox(); }
  void endSession() override { user_.endSession(); }

 private:
  bool hasKeyboard() const { return user_.open() && user_.form().activeControl() != nullptr; }

  User& user_;
};

/// What sessions came to, so that nobody takes idling for endurance.
struct Tally {
  int steps = 0;
  int accepted = 0;  // records, biller or bank
};

std::string narrow(std::wstring_view text) {
  std::string result;
  for (const wchar_t c : text) result += c >= L' ' && c <= L'~' ? static_cast<char>(c) : '?';
  return result;
}

/// One session: a record, a host that shows it in some mode, a user who works in what comes up.
class Session : public WholeShow {
 public:
  Session(std::uint32_t seed, bool aloud, Tally& tally)
      : WholeShow(scenes[seed % std::size(scenes)]), dice_(seed), user_(dice_), aloud_(aloud), tally_(tally) {
    arrange();
    listen();
  }
  ~Session() override {
    acting_ = 2;  // nobody does anything more
    object_.reset();
    random.Unload_From_Remote();
  }

  void play() {
    for (std::size_t shows = 1 + dice_.below(3); shows > 0 && !HasFailure(); --shows) show();
  }

 private:
  // The surroundings

  void arrange() {
    Store& store = component.store;
    store.PlayByPlayEnabled = flagTrue;
    for (Flag16* flag : {&store.Add, &store.InternationalPayment, &store.UseAcctvfy, &store.IPBillerNameAcctExist}) {
      if (dice_.oneIn(3)) *flag = flagTrue;
    }
    if (dice_.oneIn(5)) store.UserBankAcctPermission = flagFalse;
    if (dice_.oneIn(5)) store.PayeeBankAccount.clear();
    if (dice_.oneIn(5)) store.PayeeStreet = std::wstring(90, L'X');
    if (dice_.oneIn(5)) store.PayeeCountry = L"ZZ";
    if (dice_.oneIn(5)) {
      store.IPCurrencyList = StringArray({{0, 0}});
      store.IPCurrencyList.at({0}) = L"XXA - Swiss franc";
    }
    store.IPBillerCurrencies = StringArray({{0, 0}});
    store.IPBillerCurrencies.at({0}) = L"EUR";
    if (dice_.oneIn(8)) files.remove(countryFile);
    known_ = opened_ = record();
  }

  void listen() {
    object_ = std::make_shared<ClsRandom>(component, host);
    if (aloud_) user_.told = [this](const std::wstring& act) { say("user: " + narrow(act)); };
    messages.answerAny = [this](std::wstring_view text, MessageBoxes::Buttons buttons) {
      return answer(text, buttons);
    };
    widgetset.whenAnyModal = [this](User& user) { workIn(user); };
    whenAsked = [this] {
      const std::wstring name = asked.back();
      if (!letsOthersGoOn(name)) return;
      say("asked: " + narrow(name));
      static constexpr std::int16_t results[] = {1, 1, 1, 0, 2};
      installation.answers[name] = {dice_.pick(results), dice_.oneIn(2) ? L"Not known." : L"", 10};
      meanwhile(true);
    };
    host.whenTold = host.whenFocusMoves = [this] { meanwhile(false); };
  }

  void say(const std::string& what) const {
    if (aloud_) printf("  %*s%s\n", 2 * acting_, "", what.c_str());
  }

  MessageBoxes::Answer answer(std::wstring_view text, MessageBoxes::Buttons buttons) {
    say("box: " + narrow(text));
    EXPECT_FALSE(text.starts_with(L"The following error")) << std::wstring(text);
    meanwhile(false);
    if (buttons == MessageBoxes::Buttons::ok) return MessageBoxes::Answer::ok;
    return dice_.oneIn(2) ? MessageBoxes::Answer::yes : MessageBoxes::Answer::no;
  }

  // The host

  void show() {
    const std::size_t mode = dice_.below(4);
    if (mode == 0)
      return call("ShowForm", [](ClsRandom& object) {
        const std::int32_t result = object.ShowForm();
        EXPECT_TRUE(result == 0 || result == frmRandomInfo::cancelledResult) << result;
      });
    if (mode == 1) return call("ShowForm_Import", [](ClsRandom& object) { EXPECT_EQ(object.ShowForm_Import(), 0); });
    call("ShowForm_Remote", [](ClsRandom& object) { EXPECT_EQ(object.ShowForm_Remote(), 0); });
    for (std::size_t steps = 20 + dice_.below(60); steps > 0 && !HasFailure(); --steps) {
      const auto form = inFront();
      if (!form) break;
      User user(widgetset, *form);
      step(user);
    }
    if (dice_.oneIn(2)) call("Unload_From_Remote", [](ClsRandom& object) { object.Unload_From_Remote(); });
  }

  /// A call of the host's. It may have let go of the object: it makes another then, and the call holds it while it
  /// runs.
  template <class Call>
  void call(const char* name, Call&& call) {
    say(std::string("host: ") + name);
    if (!object_) object_ = std::make_shared<ClsRandom>(component, host);
    const auto held = object_;
    try {
      call(*held);
    } catch (...) {
      ADD_FAILURE() << name << " failed with " << RuntimeError::current().number();
    }
  }

  /// What others do while somebody asks them something, if they do anything: the host, and the user when messages pass.
  void meanwhile(bool userToo) {
    if (acting_ >= 2 || !dice_.oneIn(12)) return;
    ++acting_;
    const auto form = inFront();
    switch (dice_.below(userToo ? 9 : 7)) {
      case 0:
        call("Unload_From_Remote", [](ClsRandom& object) { object.Unload_From_Remote(); });
        break;
      case 1:
        call("Get_hWnd", [](ClsRandom& object) { object.Get_hWnd(); });
        break;
      case 2:
        call("ShowForm_Remote", [](ClsRandom& object) { object.ShowForm_Remote(); });
        break;
      case 3:
        say("host: release");
        object_.reset();
        break;
      case 4:
        call("PayeeName", [](ClsRandom& object) { EXPECT_FALSE(object.getPayeeName().empty()); });
        break;
      case 5:
        say("host: destroys the window");
        if (form) form->windowGone();
        break;
      case 6:
        if (acting_ == 1) show();
        break;
      default:
        if (!form) break;
        User user(widgetset, *form);
        step(user);
        break;
    }
    --acting_;
  }

  /// The form that takes input, if there is one.
  std::shared_ptr<forms::Form> inFront() const {
    const auto forms = component.forms.all();
    for (auto form = forms.rbegin(); form != forms.rend(); ++form) {
      const FormWindow* const window = widgetset.window(**form);
      if (window != nullptr && window->visible() && widgetset.takesInput(*window)) return *form;
    }
    return nullptr;
  }

  // The user

  void workIn(User& user) {
    for (std::size_t steps = dice_.below(80); steps > 0 && user.open() && !HasFailure(); --steps) step(user);
    if (!user.open()) return;
    say("user: has done enough");
    user.closeBox();
  }

  void step(User& user) {
    ++tally_.steps;
    ++stepping_;
    if (dice_.oneIn(30)) widgetset.pending.push_back([this] { meanwhile(true); });
    FormHands hands(user);
    if (user.open()) user_.act(hands);
    --stepping_;
    for (const auto& form : component.forms.all()) check(*form);
    checkRecord();
  }

  // The rules

  /// The focus is where it can be, and the windows show what the controls hold.
  void check(forms::Form& form) const {
    const FormWindow* const window = widgetset.window(form);
    if (window == nullptr || !window->visible()) return;
    if (const forms::Control* const active = form.activeControl()) {
      EXPECT_TRUE(active->reachable() && active->takesFocus()) << active->fullName() << " has the focus";
      EXPECT_EQ(window->focused(), active) << active->fullName() << " has not got the keyboard";
    }
    for (const forms::Control* control : form.controls()) {
      const Seen& seen = static_cast<const ControlWindow*>(control->peer())->seen();
      EXPECT_EQ(seen.visible, control->visible()) << control->fullName();
      EXPECT_EQ(seen.enabled, control->enabled()) << control->fullName();
      const auto* field = dynamic_cast<const forms::TextField*>(control);
      EXPECT_EQ(seen.text, field != nullptr ? field->text() : control->caption()) << control->fullName();
    }
  }

  /// The record is as it was, or as it was before the dialogs that are up, unless OK was pressed meanwhile.
  void checkRecord() {
    for (const std::wstring& label : traced()) pressedOK_ = pressedOK_ || label.ends_with(L"cmd_ok_Click");
    const Record now = record();
    for (const auto& [name, value] : now) {
      if (!name.starts_with(L"Payee") || value == known_[name]) continue;
      say(narrow(name) + " is now \"" + narrow(value) + "\"");
      EXPECT_TRUE(pressedOK_ || value == opened_[name]) << narrow(name) << " changed, and nobody accepted it";
    }
    tally_.accepted += now != known_ ? 1 : 0;
    known_ = now;
    if (component.forms.empty()) opened_ = now;
    if (stepping_ == 0) pressedOK_ = false;
  }

  scenario::Dice dice_;
  scenario::RandomUser user_;
  bool aloud_;
  Tally& tally_;
  std::shared_ptr<ClsRandom> object_;
  Record known_;
  Record opened_;  // before the dialogs that are open now
  bool pressedOK_ = false;
  int stepping_ = 0;
  int acting_ = 0;
};

TEST(RandomUsers, BreakNoRule) {
  const char* const seedWanted = std::getenv("NVRANDOM_SEED");
  const char* const secondsWanted = std::getenv("NVRANDOM_SECONDS");
  const auto begin = std::chrono::steady_clock::now();
  constexpr std::uint32_t sessionsOfEveryRun = 100;
  std::uint32_t first = secondsWanted != nullptr ? std::random_device()() : 1;
  if (seedWanted != nullptr) first = static_cast<std::uint32_t>(std::strtoul(seedWanted, nullptr, 10));
  printf("  seeds from %u on\n", first);
  fflush(stdout);  // whatever becomes of this run
  const auto goesOn = [&](std::uint32_t sessions) {
    if (seedWanted != nullptr) return sessions < 1;
    if (secondsWanted == nullptr) return sessions < sessionsOfEveryRun;
    return std::chrono::steady_clock::now() - begin < std::chrono::seconds(std::atoi(secondsWanted));
  };
  Tally tally;
  std::uint32_t sessions = 0;
  for (; goesOn(sessions) && !testing::Test::HasFailure(); ++sessions) {
    SCOPED_TRACE("to see it again: NVRANDOM_SEED=" + std::to_string(first + sessions));
    Session(first + sessions, seedWanted != nullptr, tally).play();
  }
  printf("  %u random users: %d steps, %d times a record accepted\n", sessions, tally.steps, tally.accepted);
  EXPECT_TRUE(seedWanted != nullptr || tally.accepted > 0);
}

}  // namespace
}  // namespace nv::test
