// Outside parties that fail or, while they are asked, let the user and the host go on: at each question in turn.
#include <algorithm>
#include <set>

#include "dialogs/biller/frmRandomInfo.h"
#include "tests/support/WholeShow.h"

namespace nv::test {
namespace {

TEST(OutsideParties, EachFailureIsToldOnceAndLeavesTheDialogOpen) {
  std::set<std::wstring> told;  // the procedures that failed
  for (const Scene& scene : scenes) {
    WholeShow whole(scene);
    EXPECT_EQ(whole.play(), 0);
    EXPECT_EQ(whole.boxes, Texts());
    for (std::size_t failing = 1; failing <= whole.asked.size() && !testing::Test::HasFailure(); ++failing) {
      SCOPED_TRACE(testing::Message() << scene.name << ", question " << failing << ", to " << whole.asked[failing - 1]);
      WholeShow show(scene);
      show.whenAsked = [&] {
        if (show.asked.size() == failing) throw RuntimeError(ErrorNumber::permissionDenied);
      };
      bool refused = false;
      show.whenRefused = [&] {
        refused = true;
        EXPECT_EQ(show.record(), show.before);
      };
      if (show.play() != 0) {  // the host is told, and may try again
        EXPECT_EQ(show.boxes, Texts());
        EXPECT_TRUE(show.component.forms.empty());
        EXPECT_EQ(show.play(), 0);
      }
      EXPECT_LE(show.boxes.size(), 1U);
      const bool isError = !show.boxes.empty() && show.boxes.front().starts_with(L"The following error");
      const auto logged = std::ranges::count(show.files.text(WholeShow::errorLog), L'\n');
      EXPECT_GE(logged, isError ? 1 : 0);
      EXPECT_LE(logged, 1);  // of some failures the log alone hears
      EXPECT_FALSE(refused && show.boxes.empty()) << "the user is told why";
      EXPECT_EQ(show.record(), whole.record()) << "and may try again";
      EXPECT_EQ(show.host.events, whole.host.events);
      if (isError) told.insert(show.boxes.front().substr(show.boxes.front().find(L" procedure ")));
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
  std::function<void(WholeShow&, User&)> happens;
};

const Interruption interruptions[] = {
    {"OK again", true, [](WholeShow&, User& user) { user.click(L"cmd_ok"); }},
    {"Alt+O", true, [](WholeShow&, User& user) { EXPECT_TRUE(user.altKey(L'O')); }},
    {"typing", true,
     [](WholeShow&, User& user) {
       user.type(L"1\t2\r ");
       forms::Form& form = user.form();
       EXPECT_TRUE(!form.busy() || form.characterTyped(*form.activeControl(), L'1') == 0) << "its key came before";
     }},
    {"Delete", true, [](WholeShow&, User& user) { user.key(User::deleteKey); }},
    {"choosing", true, [](WholeShow&, User& user) { user.choose(L"ran_payee_country", L"France"); }},
    {"Escape", true, [](WholeShow&, User& user) { user.key(forms::keys::escape); }},
    {"Cancel", true, [](WholeShow&, User& user) { user.click(L"cmd_cancel"); }},
    {"coming back", true, [](WholeShow&, User& user) { user.activate(); }},
    {"a second show", true, [](WholeShow& show, User&) { show.random.ShowForm_Remote(); }},
    {"a question for the window", true, [](WholeShow& show, User&) { EXPECT_NE(show.random.Get_hWnd(), 0); }},
    {"a modal show, cancelled", true,
     [](WholeShow& show, User&) {
       show.widgetset.whenModal([](User& other) { other.click(L"cmd_cancel"); });
       EXPECT_EQ(show.random.ShowForm(), frmRandomInfo::cancelledResult);
     }},
    {"the close box", false, [](WholeShow&, User& user) { user.closeBox(); }},
    {"the end of the session", false, [](WholeShow&, User& user) { user.endSession(); }},
    {"unloading", false, [](WholeShow& show, User&) { show.random.Unload_From_Remote(); }},
    {"the window's end", false, [](WholeShow&, User& user) { user.form().windowGone(); }},
    {"unloading and a new show", false,
     [](WholeShow& show, User&) {
       show.random.Unload_From_Remote();
       show.random.ShowForm_Remote();
     }},
};

TEST(OutsideParties, LetOthersGoOnWhileTheyAreAsked) {
  for (const Scene& scene : scenes) {
    WholeShow whole(scene);
    whole.play();
    const auto accepted = [](const WholeShow& show) { return std::ranges::count(show.host.events, L"CSBOK"); };
    for (const Interruption& interruption : interruptions) {
      for (std::size_t at = 1; at <= whole.asked.size() && !testing::Test::HasFailure(); ++at) {
        if (!WholeShow::letsOthersGoOn(whole.asked[at - 1])) continue;
        SCOPED_TRACE(testing::Message() << scene.name << ", " << interruption.what << " at question " << at << ", to "
                                        << whole.asked[at - 1]);
        WholeShow show(scene);
        bool goesOn = true;
        show.whenAsked = [&] {
          if (show.asked.size() != at || !show.biller) return;
          goesOn = interruption.goesOn;
          interruption.happens(show, *show.biller);
        };
        const std::int32_t result = show.play();
        EXPECT_TRUE(result == 0 || (result == frmRandomInfo::cancelledResult && !goesOn)) << result;
        EXPECT_FALSE(show.biller->form().loaded());
        EXPECT_EQ(show.record(), goesOn ? whole.record() : show.before);
        EXPECT_EQ(accepted(show), goesOn ? accepted(whole) : 0);
        EXPECT_EQ(show.boxes, Texts());
      }
    }
  }
}

}  // namespace
}  // namespace nv::test
