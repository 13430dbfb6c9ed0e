// The biller dialog: how it closes, what its result tells the host, and what happens in it all at once.
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;
using BillerDialogTest = BillerTest;

TEST_F(BillerDialogTest, ClosingIsNotUndoneByAnOKThatWasStillQueued) {
  const Record before = recordOf(component.store);
  for (const bool byKey : {false, true}) {
    User user = shown();
    put(user, L"ran_payee_city", L"KENORA");
    widgetset.pending.push_back([&] { byKey ? static_cast<void>(user.altKey(L'O')) : user.click(L"cmd_ok"); });
    user.closeBox();
    EXPECT_EQ(recordOf(component.store), before);
    EXPECT_EQ(std::exchange(host.events, {}), Texts{L"Cancel"});
  }
}

TEST_F(BillerDialogTest, MayBeUnloadedWhileAnErrorIsTold) {
  host.whenTold = [] { throw RuntimeError(ErrorNumber::typeMismatch); };
  for (const wchar_t* procedure :
       {L"RandomInfo - cmd_ok_Click", L"RandomInfo"}) {  // the second in the form's own event
    User user = shown();
    messages.expect({.text = std::wstring(L"The following error: 'Type mismatch (Error 13)' occurred in procedure '") +
                             procedure + L"'.",
                     .icon = MessageBoxes::Icon::critical,
                     .whileOpen = [&] { random.Unload_From_Remote(); }});
    procedure == std::wstring(L"RandomInfo") ? user.closeBox() : user.click(L"cmd_ok");
    EXPECT_FALSE(user.open());
  }
}

}  // namespace
}  // namespace nv::test
