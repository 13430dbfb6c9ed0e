// Showing the dialog: the three ways of showing it, how each ends, and what the host gets to hear.
#include <algorithm>
#include <memory>
#include <new>

#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

class ShowTest : public BillerTest {
 protected:
  User dialog() { return widgetset.user(L"frmRandomInfo"); }
  /// The user leaves the next modal dialog in this way.
  void whenModal(std::function<void(User&)> leave) { widgetset.whenModal(std::move(leave)); }
};

struct WayOut {
  const char* what;
  std::function<void(User&)> leave;
  std::int32_t result;
  Texts events;
};

const WayOut waysOut[] = {
    {"cancel", [](User& user) { user.click(L"cmd_cancel"); }, 50000, {L"Cancel"}},
    {"Escape", [](User& user) { user.key(forms::keys::escape); }, 50000, {L"Cancel"}},
    {"close box", [](User& user) { user.closeBox(); }, 50000, {L"Cancel"}},
    {"system shutdown", [](User& user) { user.endSession(); }, 50000, {L"Cancel"}},
    {"by code", [](User& user) { user.form().unload(); }, 0, {}},
    {"OK, nothing changed", [](User& user) { user.click(L"cmd_ok"); }, 50000, {L"CSBOK"}},
    {"OK", [](User& user) { user.type(L"ran_payee_city", L"X"), user.click(L"cmd_ok"); }, 0, {L"CSBOK"}},
};

TEST_F(ShowTest, AModalShowReturnsHowItEndedAndTellsTheHostNothing) {
  for (const WayOut& c : waysOut) {
    SCOPED_TRACE(c.what);
    component.store.closeResult = 1;
    component.store.importFlag = flagTrue;
    whenModal([&](User& user) {
      EXPECT_EQ(component.store.importFlag, flagFalse);
      c.leave(user);
    });
    EXPECT_EQ(random.ShowForm(), c.result);
    EXPECT_EQ(host.events, Texts{});
  }
}

TEST_F(ShowTest, ARemoteShowReturnsAtOnceAndTellsTheHostHowItEnded) {
  for (const WayOut& c : waysOut) {
    SCOPED_TRACE(c.what);
    host.events.clear();
    component.store.closeResult = 0;
    component.store.importFlag = flagTrue;
    EXPECT_EQ(random.ShowForm_Remote(), 0);
    EXPECT_EQ(component.store.importFlag, flagFalse);
    User user = dialog();
    EXPECT_TRUE(user.open());
    c.leave(user);
    EXPECT_FALSE(user.open());
    EXPECT_EQ(host.events, c.events);
    EXPECT_EQ(component.store.closeResult, c.result);
  }
}

TEST_F(ShowTest, TheHostAsksForTheWindowBeforeOrAfterItIsShown) {
  startTrace();
  const std::int32_t window = random.Get_hWnd();
  EXPECT_NE(window, 0);
  EXPECT_FALSE(dialog().open()) << "made, not shown";
  const std::int32_t height = random.Get_Height();
  const std::int32_t width = random.Get_Width();
  component.forms.all().front()->move(300, 400);  // somewhere in its container
  random.ShowForm_Remote();
  random.ShowForm_Remote();
  EXPECT_EQ(random.Get_hWnd(), window);
  EXPECT_EQ(widgetset.window(dialog().form())->handle(), window);
  EXPECT_EQ(widgetset.window(dialog().form())->place(), (forms::Place{0, 0, width, height}));
  const Texts trace = traced();
  EXPECT_EQ(std::ranges::count(trace, L"RandomInfo - Form_Load"), 1);

  dialog().closeBox();
  EXPECT_NE(random.Get_hWnd(), window) << "made anew once it was closed";
}

TEST_F(ShowTest, UnloadFromRemoteClosesEveryDialogWithoutAnEvent) {
  Host otherHost;
  ClsRandom other(component, otherHost);
  random.ShowForm_Remote();
  other.ShowForm_Remote();
  whenModal([&](User&) { random.Unload_From_Remote(); });
  EXPECT_EQ(random.ShowForm(), 0);
  EXPECT_TRUE(component.forms.empty());
  EXPECT_EQ(host.events, Texts{});
  EXPECT_EQ(otherHost.events, Texts{});
  random.Unload_From_Remote();  // nothing to unload
}

TEST_F(ShowTest, EachInstanceHearsOfItsOwnDialog) {
  Host otherHost;
  ClsRandom other(component, otherHost);
  random.ShowForm_Remote();
  User mine = dialog();
  other.ShowForm_Remote();
  User others = dialog();
  mine.click(L"cmd_cancel");
  EXPECT_EQ(host.events, Texts{L"Cancel"});
  EXPECT_EQ(otherHost.events, Texts{});
  EXPECT_TRUE(others.open());
  others.closeBox();
  EXPECT_EQ(otherHost.events, Texts{L"Cancel"});
}

TEST_F(ShowTest, AnImportIsForReading) {
  struct Case {
    std::wstring bankCity;
    bool frame1;
    std::wstring banking;
  };
  for (const Case& c :
       {Case{L"", false, L"&Enter Banking Information"}, Case{L"  ", false, L"&Enter Banking Information"},
        Case{L"ZURICH", true, L"View Banking Information"}}) {
    for (const bool escape : {false, true}) {
      SCOPED_TRACE(c.bankCity);
      component.store.PayeeFXBankCity = c.bankCity;
      component.store.PayeeStreet = L" 1 Main St ";
      whenModal([&](User& user) {
        EXPECT_EQ(component.store.importFlag, flagTrue);
        EXPECT_EQ(user.caption(L"Frame1"), L"Information about this Biller/Payee");
        EXPECT_EQ(user.caption(L"cmdFXBankingInfo"), c.banking);
        EXPECT_EQ(user.caption(L"cmd_ok"), L"Close");
        EXPECT_FALSE(user.visible(L"cmd_cancel"));
        EXPECT_EQ(user.text(L"ran_payee_street"), L" 1 MAIN ST ");
        for (const forms::Control* control : user.form().controls()) {
          if (control->kind() != forms::Kind::textBox) continue;
          EXPECT_FALSE(user.enabled(control->fullName())) << control->fullName();
        }
        EXPECT_EQ(user.enabled(L"cmdFXBankingInfo"), c.frame1);
        if (escape) {
          user.key(forms::keys::escape);
        } else {
          user.click(L"cmd_ok");
        }
      });
      EXPECT_EQ(random.ShowForm_Import(), 0);
      EXPECT_EQ(component.store.importFlag, flagFalse);
      EXPECT_EQ(component.store.PayeeStreet, L" 1 Main St ") << "the record stays as it was";
      EXPECT_EQ(host.events, Texts{});
    }
  }
}

TEST_F(ShowTest, AnErrorWhileLoadingIsTheResultOrReachesTheHost) {
  struct Case {
    std::function<void()> fails;
    std::int32_t number;
  };
  const Case cases[] = {{[] { throw RuntimeError(ErrorNumber::pathNotFound); }, 76},
                        {[] { throw std::bad_alloc(); }, 7},
                        {[] { throw RuntimeError(-2147467259, L"Unspecified error"); }, -2147467259}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.number);
    machine.whenAsked = c.fails;
    EXPECT_EQ(random.ShowForm(), c.number) << "without a message";
    for (const auto show : {&ClsRandom::ShowForm_Remote, &ClsRandom::ShowForm_Import, &ClsRandom::Get_hWnd}) {
      EXPECT_EQ(errorOf([&] { (random.*show)(); }), c.number);
      EXPECT_TRUE(component.forms.empty());
      EXPECT_EQ(component.store.importFlag, flagFalse);
    }
  }
  machine.whenAsked = nullptr;
  random.ShowForm_Remote();
  EXPECT_TRUE(dialog().open()) << "the next one works";
}

TEST_F(ShowTest, TheHostMayReleaseTheObjectInsideAnEvent) {
  for (const WayOut& c : waysOut) {
    SCOPED_TRACE(c.what);
    host.events.clear();
    auto released = std::make_unique<ClsRandom>(component, host);
    host.whenTold = [&] { released.reset(); };
    released->ShowForm_Remote();
    {
      User user = dialog();
      c.leave(user);
      EXPECT_FALSE(user.open());
    }
    EXPECT_EQ(host.events, c.events);
    EXPECT_TRUE(component.forms.empty());
  }
}

TEST_F(ShowTest, TheHostMayReleaseTheObjectWhenItHearsOfTheFirstField) {
  auto released = std::make_unique<ClsRandom>(component, host);
  host.whenFocusMoves = [&] { released.reset(); };
  EXPECT_EQ(released->ShowForm_Remote(), 0);
  EXPECT_TRUE(component.forms.empty());
}

TEST_F(ShowTest, ReleasingTheObjectTakesItsDialogAwayWithoutAnEvent) {
  {
    ClsRandom released(component, host);
    released.ShowForm_Remote();
    dialog().type(L"ran_payee_city", L"X");
  }
  EXPECT_TRUE(component.forms.empty());
  EXPECT_EQ(host.events, Texts{});
}

TEST_F(ShowTest, TheHostMayReplaceTheDialogWhileItIsBeingShown) {
  widgetset.whenShown = [&] {
    random.Unload_From_Remote();
    random.Get_hWnd();
  };
  EXPECT_EQ(random.ShowForm_Remote(), 0);
  EXPECT_EQ(component.forms.all().size(), 1U);
}

TEST_F(ShowTest, ClosingRaisesOneCancelWhateverHappensMeanwhile) {
  struct Case {
    const char* what;
    std::function<void(User&)> meanwhile;
    Texts events;
  };
  std::unique_ptr<ClsRandom> shown;
  const Case cases[] = {
      {"nothing", [](User&) {}, {L"Cancel"}},
      {"the close box again", [](User& user) { user.closeBox(); }, {L"Cancel"}},
      {"unloaded from outside", [&](User&) { shown->Unload_From_Remote(); }, {L"Cancel"}},
      {"released", [&](User&) { shown.reset(); }, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    host.events.clear();
    shown = std::make_unique<ClsRandom>(component, host);
    shown->ShowForm_Remote();
    User user = dialog();
    widgetset.pending.push_back([&] { c.meanwhile(user); });
    user.closeBox();
    EXPECT_FALSE(user.open());
    EXPECT_TRUE(widgetset.pending.empty()) << "pending events ran";
    EXPECT_EQ(host.events, c.events);
  }
}

TEST_F(ShowTest, TheTraceFollowsAWholeShow) {
  startTrace();
  whenModal([](User& user) { user.closeBox(); });
  random.ShowForm();
  const Texts trace = traced();
  const Texts procedures = {L"ClsRandom - ShowForm",
                            L"RandomInfo - Form_Load",
                            L"RandomInfo - SetupForm",
                            L"Random - Get_Windows_Dir",
                            L"RandomInfo - LoadCountries",
                            L"Random - Fileexists",
                            L"RandomInfo - LoadCurrencyCodes",
                            L"RandomInfo - LoadProvinces",
                            L"RandomInfo - SetFXPhoneNumber",
                            L"RandomInfo - SetupBusinessForm",
                            L"RandomInfo - Form_Activate",
                            L"modFormController - reStyleForm",
                            L"modFormController - installSystemFont",
                            L"RandomInfo - ran_payee_street_GotFocus",
                            L"RandomInfo - Form_QueryUnload",
                            L"RandomInfo - Form_QueryUnload"};
  EXPECT_TRUE(inOrder(trace, procedures)) << testing::PrintToString(trace);

  random.ShowForm_Remote();
  traced();
  dialog().click(L"cmd_cancel");
  EXPECT_EQ(traced(), (Texts{L"RandomInfo - cmd_cancel_Click", L"RandomInfo - Form_QueryUnload",
                             L"ClsRandom - frmRandomInfo_Cancel"}));
  random.ShowForm_Remote();
  traced();
  dialog().click(L"cmd_ok");
  EXPECT_EQ(traced(),
            (Texts{L"RandomInfo - cmd_ok_Click", L"Random - IsAlpha", L"Random - IsAlpha", L"Random - lookupProvince",
                   L"Random - LookupPostcode", L"RandomInfo - ValidateEmailAddress", L"RandomInfo - ValidateWebsite",
                   L"ClsRandom - frmRandomInfo_CSBOK", L"RandomInfo - Form_QueryUnload"}));
  random.Unload_From_Remote();
  random.Get_Height();
  EXPECT_EQ(traced().front(), L"ClsRandom - Unload_From_Remote");
}

}  // namespace
}  // namespace nv::test
