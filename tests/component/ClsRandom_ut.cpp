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
    }
  }
  machine.whenAsked = nullptr;
  random.ShowForm_Remote();
  EXPECT_TRUE(dialog().open()) << "the next one works";
}

TEST_F(ShowTest, AnotherInstanceLeavesTheKindOfABillerThatIsShownAlone) {
  unitedStates();
  component.store.PayeeFXBankAccount = component.store.PayeeEmail = L"";
  whenModal([this](User& user) {
    const ClsRandom another(component, host);
    EXPECT_EQ(component.store.WhatKindOfBiller, L" ") << "the record's";
    messages.expect({L"An email address is required for USD payments.", user.form().caption()});
    user.click(L"cmd_ok");
    user.closeBox();
  });
  random.ShowForm();
}

TEST_F(ShowTest, TheHostMayReplaceTheDialogWhileItIsBeingShown) {
  widgetset.whenShown = [&] {
    random.Unload_From_Remote();
    random.Get_hWnd();
  };
  EXPECT_EQ(random.ShowForm_Remote(), 0);
  EXPECT_EQ(component.forms.all().size(), 1U);
}

TEST_F(ShowTest, TheHostMayReleaseTheObjectWhileItLoadsOrShows) {
  for (std::function<void()>* when : {&machine.whenAsked, &host.whenFocusMoves}) {
    auto object = std::make_unique<ClsRandom>(component, host);
    *when = [&object] { object.reset(); };
    object->ShowForm_Remote();
    *when = nullptr;
    EXPECT_EQ(object, nullptr);
    EXPECT_TRUE(component.forms.empty());
  }
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

}  // namespace
}  // namespace nv::test
