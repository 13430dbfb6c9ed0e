// The foreign bank details dialog, as far as no user comes there.
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using ForeignBankTest = BillerTest;

TEST_F(ForeignBankTest, ARunTimeErrorIsReportedAndLeavesTheDialogOpen) {
  international();
  User biller = shown();
  for (const wchar_t* greyed : {L"optCBusiness", L"optCIndividual", L"lblBN", L"chkBNNotAvailable"}) {
    EXPECT_FALSE(biller.seen(greyed).enabled) << greyed << L" is in a frame that cannot be reached, and shows it";
  }
  widgetset.whenModal([this](User& user) {
    for (const wchar_t* greyed : {L"lblUSABA", L"lblUSBankAccount"}) EXPECT_FALSE(user.seen(greyed).enabled) << greyed;
    put(user, L"txtBankName", L"");
    messages.expect(
        {.text = L"You must enter bank name.", .whileOpen = [] { throw RuntimeError(ErrorNumber::typeMismatch); }});
    messages.expect({.text = L"The following error: 'Type mismatch (Error 13)' occurred in procedure 'frmFXBankInfo - "
                             L"cmd_ok_Click'.",
                     .icon = platform::MessageBoxes::Icon::critical});
    user.click(L"cmd_ok");
    EXPECT_TRUE(user.open());
    user.click(L"cmd_cancel");
  });
  biller.click(L"cmdFXBankingInfo");
}

}  // namespace
}  // namespace nv::test
