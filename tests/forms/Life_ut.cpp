// A form's life: loaded, shown, asked, unloaded, and what may go wrong in between.
#include "tests/support/FormTest.h"

namespace nv::test {
namespace {

using forms::UnloadMode;
using LifeTest = FormTest;

TEST_F(LifeTest, LoadsOnceAndIsActivatedEachTime) {
  form->whenLoading = [this] { form->show(); };  // as soon as it is loaded
  form->load();
  form->load();
  EXPECT_EQ(form->journal, (Texts{L"Load", L"Activate", L"first got focus"}));

  const auto other = make(L"other");
  other->show();
  EXPECT_EQ(forms.active(), other.get());
  User(widgetset, *form).activate();
  EXPECT_EQ(forms.active(), form.get());
  EXPECT_EQ(form->journal.back(), L"Activate");

  form->unload();
  EXPECT_EQ(forms.active(), nullptr);
  EXPECT_EQ(form->handle(), 0);
  other->unload();
}

TEST_F(LifeTest, IsAskedWithTheReasonAndMayRefuse) {
  struct Case {
    std::function<void(User&)> ask;
    std::wstring mode;
  };
  const Case cases[] = {{[](User& user) { user.closeBox(); }, L"QueryUnload 0"},
                        {[](User& user) { user.form().unload(); }, L"QueryUnload 1"},
                        {[](User& user) { user.endSession(); }, L"QueryUnload 2"},
                        {[](User& user) { user.form().windowGone(); }, L""}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.mode);
    form = make(L"sample");
    User user = shown();
    form->whenAsked = [](bool& cancel, UnloadMode) { cancel = true; };
    c.ask(user);
    EXPECT_EQ(form->journal, c.mode.empty() ? Texts{} : Texts{c.mode});
    EXPECT_EQ(form->loaded(), !c.mode.empty());
    form->whenAsked = nullptr;
    if (user.open()) c.ask(user);
    EXPECT_FALSE(form->loaded());
    EXPECT_TRUE(forms.empty());
  }
}

TEST_F(LifeTest, AsksOnceAtATimeAndTakesNothingMeanwhile) {
  User user = shown();
  form->combo.add(L"One");
  form->list.addItem(L"Canada;CA");
  form->list.setFocus();
  widgetset.clipboard = L"pasted";
  form->journal.clear();
  form->whenAsked = [&](bool&, UnloadMode) {
    user.closeBox();
    user.pasteByMenu(L"first");
    EXPECT_EQ(user.text(L"first"), L"");
    user.choose(L"combo", L"One");
    user.key(forms::keys::down);
  };
  user.closeBox();
  EXPECT_EQ(form->journal, (Texts{L"QueryUnload 0"}));
  EXPECT_FALSE(user.open());
}

TEST_F(LifeTest, CanBeClosedAfterAskingFailed) {
  User user = shown();
  form->whenAsked = [](bool&, UnloadMode) { throw RuntimeError(ErrorNumber::outOfMemory); };
  user.closeBox();
  EXPECT_EQ(form->failures, (std::vector<std::int32_t>{7}));
  EXPECT_TRUE(user.open());
  form->whenAsked = nullptr;
  user.closeBox();
  EXPECT_FALSE(user.open());
  forms.unloadAll(L"Sample");
}

/// The form is released by everybody and unloads itself in one of its own events.
TEST_F(LifeTest, MayBeUnloadedInsideItsOwnEvents) {
  struct Case {
    const char* what;
    std::function<void(SampleForm&, std::function<void()> unload)> arrange;
    std::function<void(User&)> act;
  };
  const auto type = [](User& user) { user.type(L"first", L"a"); };
  const Case cases[] = {
      {"key down", [](SampleForm& f, auto unload) { f.first.keyDown = [=](forms::KeyDown&) { unload(); }; }, type},
      {"form's key press", [](SampleForm& f, auto unload) { f.whenKeyPressed = [=](wchar_t&) { unload(); }; }, type},
      {"key press", [](SampleForm& f, auto unload) { f.first.keyPress = [=](wchar_t&) { unload(); }; }, type},
      {"change", [](SampleForm& f, auto unload) { f.first.change = unload; }, type},
      {"change of a list", [](SampleForm& f, auto unload) { f.list.change = unload; },
       [](User& user) { user.type(L"list", L"c"); }},
      {"picking", [](SampleForm& f, auto unload) { f.combo.change = unload; },
       [](User& user) { user.choose(L"combo", L"ON"); }},
      {"mouse down", [](SampleForm& f, auto unload) { f.go.mouseDown = [=](const forms::MouseDown&) { unload(); }; },
       [](User& user) { user.click(L"go"); }},
      {"lost focus", [](SampleForm& f, auto unload) { f.first.lostFocus = unload; }, [](User& user) { user.tab(); }},
      {"got focus", [](SampleForm& f, auto unload) { f.second.gotFocus = unload; }, [](User& user) { user.tab(); }},
      {"option arrow", [](SampleForm& f, auto unload) { f.optA.lostFocus = unload; },
       [](User& user) {
         user.click(L"opt(0)");
         user.key(forms::keys::down);
       }},
      {"Escape", [](SampleForm& f, auto unload) { f.leave.click = unload; },
       [](User& user) { user.key(forms::keys::escape); }},
      {"mnemonic", [](SampleForm& f, auto unload) { f.go.gotFocus = unload; }, [](User& user) { user.altKey(L'g'); }},
      {"activation", [](SampleForm& f, auto unload) { f.whenActivated = unload; },
       [this](User& user) {
         make(L"other")->show();
         user.activate();
         widgetset.user(L"other").form().unload();
       }},
      {"asking",
       [](SampleForm& f, auto unload) {
         f.whenAsked = [=](bool&, UnloadMode mode) {
           if (mode == UnloadMode::user) unload();
         };
       },
       [](User& user) { user.closeBox(); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    std::weak_ptr<SampleForm> alive;
    {
      form = make(L"sample");
      form->combo.add(L"ON");
      User user = shown();
      alive = form;
      c.arrange(*form, [this, &alive] {
        form.reset();
        alive.lock()->unload();
      });
      c.act(user);
      EXPECT_FALSE(user.open());
      EXPECT_EQ(static_cast<SampleForm&>(user.form()).failures.size(), 0U);
    }
    EXPECT_TRUE(alive.expired());
    EXPECT_TRUE(forms.empty());
  }
}

TEST_F(LifeTest, AHandlerMayReplaceItselfWhileItRuns) {
  auto held = std::make_shared<int>();
  const std::weak_ptr<int> watched = held;
  form->go.click = [this, &watched, held = std::move(held)] {
    form->go.click = nullptr;
    EXPECT_FALSE(watched.expired());
  };
  form->go.press();
  EXPECT_TRUE(watched.expired());
}

TEST_F(LifeTest, AFailingLoadLeavesItUnloaded) {
  for (const bool modal : {false, true}) {
    const auto failing = make(L"failing");
    widgetset.failure = RuntimeError(ErrorNumber::pathNotFound);
    EXPECT_EQ(errorOf([&] { modal ? failing->showModal() : failing->show(); }), 76);
    widgetset.failure.reset();
    const auto fickle = make(L"fickle");  // a form may change its mind while it loads
    fickle->whenLoading = [&fickle] { fickle->unload(); };
    modal ? fickle->showModal() : fickle->show();
    EXPECT_FALSE(failing->loaded() || fickle->loaded());
    EXPECT_TRUE(forms.empty());
  }
}

TEST_F(LifeTest, AFormLivesOnce) {
  widgetset.whenModal([&](User&) {
    EXPECT_EQ(errorOf([&] { form->showModal(); }), 5) << "a form that is up already";
    form->unload();
    EXPECT_EQ(errorOf([&] { form->show(); }), 5) << "not even in its own modal loop";
  });
  form->showModal();
  EXPECT_EQ(errorOf([&] { form->load(); }), 5);
  EXPECT_TRUE(forms.empty());
}

TEST_F(LifeTest, UnloadAllTakesEveryFormOfTheNameAndNoOther) {
  struct Other : forms::Form {
    using Form::Form;
  };
  const auto twin = make(L"twin");
  const auto other = std::make_shared<Other>(widgetset, forms, L"Other", L"other", forms::Border::dialog);
  form->show();
  twin->load();
  other->show();
  twin->whenAsked = [&](bool&, UnloadMode mode) { EXPECT_EQ(mode, UnloadMode::code); };
  form->whenAsked = [&](bool&, UnloadMode) { twin->unload(); };  // one takes the other along
  forms.unloadAll(L"Sample");
  EXPECT_FALSE(form->loaded());
  EXPECT_FALSE(twin->loaded());
  EXPECT_TRUE(other->loaded());
  other->unload();
}

}  // namespace
}  // namespace nv::test
