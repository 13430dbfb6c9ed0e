// Outside parties that fail or, while they are asked, let the user and the host go on: at each question in turn.
#include <algorithm>
#include <set>

#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Text.h"
#include "tests/support/WholeShow.h"

namespace nv::test {
namespace {

/// Who is asked: about a Canadian account the verifier or the library; in the United States nobody, but there is a
/// link, and the style's font is still to be brought in.
enum class Scene { verifier, library, unitedStates };
constexpr Scene scenes[] = {Scene::verifier, Scene::library, Scene::unitedStates};

/// A business with a bank account in the embedded dialog, and a user who uses all that asks somebody outside.
class Asking : public WholeShow {
 public:
  explicit Asking(Scene scene) : scene_(scene) {
    if (scene == Scene::unitedStates) {
      unitedStates();
      component.store.FormStyle = 3;
      component.store.windowsDirectory = L"C:\\WINDOWS\\";
      files.makeFolder(L"C:\\WINDOWS\\fonts");
      files.put(L"C:\\Apps\\Resources\\segoeui.ttf", L"font");
    } else {
      bankAccount();
    }
    component.store.UseAcctvfy = scene == Scene::library ? flagTrue : flagFalse;
    component.store.PayeeBusinessNum = L"100200308";
    component.store.USBillPaymentURL = L"http://norvik.example";
    component.store.PlayByPlayEnabled = flagTrue;
    files.makeFolder(L"C:\\Apps\\Norvik");
    before = record();
    installation.whenAsked = [this](const std::wstring& name) { question(name); };
    files.whenUsed = [this](const std::wstring& path) { question(path == errorLog ? L"the log" : path); };
    machine.whenAsked = [this] { question(L"the machine"); };
    shell.whenAsked = [this] { question(L"the shell"); };
  }

  /// Whom the question in hand goes to; runs at each.
  std::function<void(const std::wstring& whom)> whenQuestioned;

  void work(User& user) {
    if (scene_ == Scene::unitedStates) {
      user.click(L"ctHyperLink1");
      put(user, L"txtConfirmBankAccountNumber", L"123456");
    } else {
      user.click(L"imgHelpCSFTInfo(1)");
    }
    user.rightClick(L"ran_payee_email");
    user.click(L"cmd_help");
    user.click(L"cmd_ok");
  }
  std::size_t logLines() const { return static_cast<std::size_t>(std::ranges::count(files.text(errorLog), L'\n')); }

 private:
  void question(const std::wstring& whom) {
    if (whenQuestioned) whenQuestioned(whom);
  }

  Scene scene_;
};

/// Whom a show with these means asks, question by question.
Texts questions(Scene scene, Texts* record = nullptr) {
  Asking asking(scene);
  Texts whom;
  asking.whenQuestioned = [&](const std::wstring& name) { whom.push_back(name); };
  asking.random.ShowForm_Remote();
  User user = asking.widgetset.user(L"frmRandomInfo");
  asking.work(user);
  EXPECT_EQ(asking.boxes, Texts());
  EXPECT_EQ(asking.host.events, Texts{L"CSBOK"});
  if (record != nullptr) *record = asking.record();
  return whom;
}

TEST(OutsideParties, EachFailureIsToldOnceAndLeavesTheDialogOpen) {
  std::set<std::wstring> told;  // the procedures that failed
  for (const Scene scene : scenes) {
    Texts accepted;
    const Texts whom = questions(scene, &accepted);
    for (std::size_t failing = 0; failing < whom.size() && !HasFailure(); ++failing) {
      SCOPED_TRACE(testing::Message() << "question " << failing << ", to " << whom[failing]);
      Asking asking(scene);
      std::size_t question = 0;
      asking.whenQuestioned = [&](const std::wstring&) {
        if (question++ == failing) throw RuntimeError(ErrorNumber::permissionDenied);
      };
      if (errorOf([&] { asking.random.ShowForm_Remote(); }) != 0) {  // the host is told, and may try again
        EXPECT_EQ(asking.boxes, Texts());
        EXPECT_TRUE(asking.component.forms.empty());
        asking.random.ShowForm_Remote();
      }
      User user = asking.widgetset.user(L"frmRandomInfo");
      asking.work(user);
      EXPECT_LE(asking.boxes.size(), 1U);
      const bool isError = !asking.boxes.empty() && asking.boxes.front().starts_with(L"The following error");
      EXPECT_GE(asking.logLines(), isError ? 1U : 0U);
      EXPECT_LE(asking.logLines(), 1U);  // of some failures the log alone hears
      const bool refused = user.open();
      EXPECT_EQ(asking.record(), refused ? asking.before : accepted);
      EXPECT_EQ(asking.host.events, refused ? Texts() : Texts{L"CSBOK"});
      if (refused) {
        EXPECT_EQ(asking.boxes.size(), 1U) << "the user is told why";
        user.click(L"cmd_ok");  // and may try again
        EXPECT_EQ(asking.record(), accepted);
      }
      if (isError) told.insert(asking.boxes.front().substr(asking.boxes.front().find(L" procedure ")));
    }
  }
  EXPECT_EQ(told, (std::set<std::wstring>{
                      L" procedure 'Random.OpenBrowser'.", L" procedure 'Random.ValidateBankAccount'.",
                      L" procedure 'Random.ValidateBankId'.", L" procedure 'Random.VerifyAccount'.",
                      L" procedure 'RandomInfo - cmd_help_Click'.", L" procedure 'RandomInfo - cmd_ok_Click'.",
                      L" procedure 'RandomInfo - imgHelpCSFTInfo_Click'.",
                      L" procedure 'RandomInfo - ran_payee_email_MouseDown'.",
                      L" procedure 'modFormController.reStyleForm'."}));
}

/// What happens in the middle of a question, and whether the attempt to accept survives it.
struct Interruption {
  const char* what;
  bool goesOn;
  std::function<void(Asking&, User&)> happens;
};

const Interruption interruptions[] = {
    {"OK again", true, [](Asking&, User& user) { user.click(L"cmd_ok"); }},
    {"Alt+O", true, [](Asking&, User& user) { EXPECT_TRUE(user.altKey(L'O')); }},
    {"typing", true,
     [](Asking&, User& user) {
       user.type(L"1\t2\r ");
       forms::Form& form = user.form();
       EXPECT_TRUE(!form.busy() || form.characterTyped(*form.activeControl(), L'1') == 0) << "its key came before";
     }},
    {"Delete", true, [](Asking&, User& user) { user.key(User::deleteKey); }},
    {"choosing", true, [](Asking&, User& user) { user.choose(L"ran_payee_country", L"France"); }},
    {"Escape", true, [](Asking&, User& user) { user.key(forms::keys::escape); }},
    {"Cancel", true, [](Asking&, User& user) { user.click(L"cmd_cancel"); }},
    {"coming back", true, [](Asking&, User& user) { user.activate(); }},
    {"a second show", true, [](Asking& asking, User&) { asking.random.ShowForm_Remote(); }},
    {"a question for the window", true, [](Asking& asking, User&) { EXPECT_NE(asking.random.Get_hWnd(), 0); }},
    {"a modal show, cancelled", true,
     [](Asking& asking, User&) {
       asking.widgetset.whenModal([](User& other) { other.click(L"cmd_cancel"); });
       EXPECT_EQ(asking.random.ShowForm(), frmRandomInfo::cancelledResult);
     }},
    {"the close box", false, [](Asking&, User& user) { user.closeBox(); }},
    {"the end of the session", false, [](Asking&, User& user) { user.endSession(); }},
    {"unloading", false, [](Asking& asking, User&) { asking.random.Unload_From_Remote(); }},
    {"the window's end", false, [](Asking&, User& user) { user.form().windowGone(); }},
    {"unloading and a new show", false,
     [](Asking& asking, User&) {
       asking.random.Unload_From_Remote();
       asking.random.ShowForm_Remote();
     }},
};

TEST(OutsideParties, LetOthersGoOnWhileTheyAreAsked) {
  for (const Scene scene : scenes) {
    Texts accepted;
    const Texts whom = questions(scene, &accepted);
    for (const Interruption& interruption : interruptions) {
      for (std::size_t at = 0; at < whom.size() && !HasFailure(); ++at) {
        if (whom[at].starts_with(L"C:") || whom[at].starts_with(L"the ")) continue;  // these let nobody in
        SCOPED_TRACE(testing::Message() << interruption.what << " at question " << at << ", to " << whom[at]);
        Asking asking(scene);
        std::shared_ptr<User> user;
        std::size_t question = 0;
        asking.whenQuestioned = [&](const std::wstring&) {
          if (question++ == at && user) interruption.happens(asking, *user);
        };
        asking.random.ShowForm_Remote();
        user = std::make_shared<User>(asking.widgetset.user(L"frmRandomInfo"));
        const bool whileLoading = question > at;
        asking.work(*user);
        const bool goesOn = whileLoading || interruption.goesOn;
        EXPECT_FALSE(user->form().loaded());
        EXPECT_EQ(asking.record(), goesOn ? accepted : asking.before);
        EXPECT_EQ(std::ranges::count(asking.host.events, L"CSBOK"), goesOn ? 1 : 0);
        EXPECT_EQ(asking.boxes, Texts());
        asking.random.Unload_From_Remote();
      }
    }
  }
}

}  // namespace
}  // namespace nv::test
