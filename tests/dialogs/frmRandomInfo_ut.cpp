// The biller dialog: what it shows of the record, what comes back, and its procedures for the host.
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

constexpr const wchar_t* helpFile = L"C:\\Apps\\NORVIK.CHM>ShowTopic";

class BillerDialogTest : public BillerTest {};

TEST_F(BillerDialogTest, ShowsTheRecordInFull) {
  Store& store = component.store;
  store.PayeeStreet = L" 1 Main St " + std::wstring(60, L'x');
  store.PayeeWeb = L"Www.Acme.example " + std::wstring(50, L'y');
  User user = shown();
  EXPECT_EQ(user.title(), title);
  EXPECT_EQ(user.caption(L"Frame1"), L"Please enter the following information about this Biller/Fund Transfer");
  EXPECT_EQ(user.text(L"ran_payee_street"), L" 1 MAIN ST " + std::wstring(60, L'X'));
  EXPECT_EQ(user.text(L"ran_payee_www"), store.PayeeWeb);
  const std::pair<const wchar_t*, const wchar_t*> shown[] = {
      {L"ran_payee_name", L"ACME HYDRO"},   {L"ran_payee_account", L"12-345"},
      {L"ran_payee_city", L"OTTAWA"},       {L"ran_payee_prov", L"ON"},
      {L"ran_payee_country", L"CA"},        {L"ran_payee_postal", L"K1A0B1"},
      {L"cmbCurrencyCode", L"CAD"},         {L"ran_payee_email", L"pay@acme.example"},
      {L"ran_payee_contact", L"JANE DOE"},  {L"ran_payee_ph_area", L"613"},
      {L"ran_payee_phone", L"5551234"},     {L"ran_payee_fax_area", L"613"},
      {L"ran_payee_faxnumber", L"5559876"},
  };
  for (const auto& [control, text] : shown) EXPECT_EQ(user.text(control), text) << std::wstring(control);
  EXPECT_EQ(user.focus(), L"ran_payee_street");
}

TEST_F(BillerDialogTest, CancelLeavesTheRecord) {
  component.store.PayeeCity = L" OTTAWA ";
  User user = shown();
  user.type(L"ran_payee_city", L"X");
  user.key(forms::keys::escape);
  EXPECT_EQ(component.store.PayeeCity, L" OTTAWA ");
}

TEST_F(BillerDialogTest, ClosingIsNotUndoneByAnOKThatWasStillQueued) {
  const Texts before = texts(component.store);
  for (const bool byKey : {false, true}) {
    User user = shown();
    put(user, L"ran_payee_city", L"KENORA");
    widgetset.pending.push_back([&] { byKey ? static_cast<void>(user.altKey(L'O')) : user.click(L"cmd_ok"); });
    user.closeBox();
    EXPECT_EQ(texts(component.store), before);
    EXPECT_EQ(std::exchange(host.events, {}), Texts{L"Cancel"});
  }
}

TEST_F(BillerDialogTest, TheResultTellsAnExistingBillerThatDidNotChange) {
  struct Case {
    std::int16_t add;
    const wchar_t* control;
    const wchar_t* typed;
    std::int32_t result;
  };
  const Case cases[] = {
      {0, L"ran_payee_city", L"", 50000}, {0, L"ran_payee_city", L" ", 50000},  // blanks at the ends do not count
      {0, L"ran_payee_city", L"X", 0},    {0, L"ran_payee_contact", L"X", 0},  {0, L"ran_payee_city", L"\b", 0},
      {1, L"ran_payee_city", L"", 0},     {-1, L"ran_payee_city", L"", 0},     {-1, L"ran_payee_city", L"X", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.add << ": " << c.typed);
    component.store.PayeeCity = L"  OTTAWA";
    random.letAdd(c.add);
    widgetset.whenModal([&](User& user) {
      user.type(c.control, c.typed);
      user.click(L"cmd_ok");
    });
    EXPECT_EQ(random.ShowForm(), c.result);
  }
}

TEST_F(BillerDialogTest, EnterTypesANineWhereItLeads) {
  component.store.PayeeCity.clear();
  User user = shown();
  user.type(L"ran_payee_street", L"a\rb");
  EXPECT_EQ(user.text(L"ran_payee_street"), L"1 MAIN STREETA");
  EXPECT_EQ(user.text(L"ran_payee_city"), L"9B");
}

TEST_F(BillerDialogTest, EnterPressesTheButtonThatItIsOn) {
  User user = shown();
  user.control(L"cmd_ok").setFocus();
  user.key(forms::keys::enter);
  EXPECT_EQ(host.events, Texts{L"CSBOK"});
}

TEST_F(BillerDialogTest, HelpOpensTheTopicOfItsImage) {
  User user = shown();
  user.click(L"cmd_help");
  for (int i = 0; i <= 5; ++i) user.click(L"imgHelpCSFTInfo(" + std::to_wstring(i) + L")");
  std::vector<FakeShell::Help> helps;
  for (const std::uint32_t topic :
       {506000012U, 506000012U, 506000014U, 506000014U, 506000013U, 506000018U, 506000019U}) {
    helps.push_back({helpFile, topic, user.form().handle()});
  }
  EXPECT_EQ(shell.helps, helps);
  EXPECT_TRUE(user.altKey(L'h'));
  EXPECT_EQ(shell.helps.back().topic, 506000012U);
}

TEST_F(BillerDialogTest, TheLinkOpensTheHostsAddress) {
  unitedStates();
  component.store.USBillPaymentURL = L"  http://payments.example/us ";
  User user = shown();
  user.click(L"ctHyperLink1");
  user.control(L"ctHyperLink1").setFocus();
  user.key(forms::keys::enter);
  EXPECT_EQ(shell.opened, (Texts{L"http://payments.example/us", L"http://payments.example/us"}));
}

TEST_F(BillerDialogTest, AnErrorInAProcedureIsReportedAndLeavesTheDialogOpen) {
  files.makeFolder(L"C:\\Apps");
  host.whenTold = [] { throw RuntimeError(ErrorNumber::typeMismatch); };
  User user = shown();
  messages.expect(
      {.text = L"The following error: 'Type mismatch (Error 13)' occurred in procedure 'RandomInfo - cmd_ok_Click'.",
       .icon = platform::MessageBoxes::Icon::critical});
  user.click(L"cmd_ok");
  EXPECT_TRUE(user.open());
  EXPECT_EQ(files.text(errorLog),
            L"15/11/2026 1:58:04 PM,NVRandom, , ,13,\"Type mismatch\",\"RandomInfo - cmd_ok_Click\"\r\n");

  messages.expect(
      {.text = L"The following error: 'Type mismatch (Error 13)' occurred in procedure 'RandomInfo - cmd_ok_Click'.",
       .icon = platform::MessageBoxes::Icon::critical,
       .whileOpen = [&] { random.Unload_From_Remote(); }});
  user.click(L"cmd_ok");
  EXPECT_FALSE(user.open()) << "unloaded from outside while the box was open";
}

TEST_F(BillerDialogTest, ANameIsShownAsItIsAndClaimsNoKey) {
  component.store.PayeeName = L"AT&T";
  User user = shown();
  EXPECT_FALSE(user.altKey(L't'));
}

TEST_F(BillerDialogTest, TheSampleChequeIsShownOverTheDialog) {
  individual();
  startTrace();
  User user = shown();
  for (const int time : {1, 2}) {
    SCOPED_TRACE(time);
    traced();
    widgetset.whenModal([&](User& cheque) {
      EXPECT_EQ(cheque.title(), L"Sample Cheque");
      EXPECT_EQ(cheque.text(L"cmbBankName"), L"001 - Bank of Montreal");
      EXPECT_EQ(cheque.row(L"cmbBankName"), L"") << "which is none of the rows";
      const Texts& rows = cheque.rows(L"cmbBankName");
      ASSERT_EQ(rows.size(), 17U);
      EXPECT_EQ(rows.front(), L"001;Bank of Montreal");
      EXPECT_EQ(rows[5], L"010;Canadian Imperial Bank of Comm");
      EXPECT_EQ(rows.back(), L"899;Alberta Credit Unions");
      EXPECT_FALSE(widgetset.takesInput(*widgetset.window(user.form())));
      cheque.choose(L"cmbBankName", L"003");
      EXPECT_EQ(cheque.text(L"cmbBankName"), L"Royal Bank");
      cheque.closeBox();
    });
    user.click(L"cmdCheque");
    EXPECT_EQ(user.focus(), L"cmdCheque");
    EXPECT_TRUE(inOrder(traced(), {L"RandomInfo - cmdCheque_Click", L"frmCheque - Form_Load",
                                   L"frmCheque - LoadBankList", L"RandomInfo - Form_Activate"}));
  }
  EXPECT_EQ(host.events, Texts{});
}

TEST_F(BillerDialogTest, EscapeClosesTheSampleChequeAlone) {
  individual();
  User user = shown();
  widgetset.whenModal([](User& cheque) { cheque.key(forms::keys::escape); });
  user.click(L"cmdCheque");
  EXPECT_TRUE(user.open());
}

}  // namespace
}  // namespace nv::test
