// OK in the biller dialog, as far as no user comes there: values in fields out of sight. The rest is in scenarios.
#include "forms/Label.h"
#include "forms/Toggle.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

using AcceptanceTest = BillerTest;

TEST_F(AcceptanceTest, ValuesOutOfSightStopTheAttempt) {
  const struct {
    const char* what;
    std::function<void(User&)> act;
    const wchar_t* focus;
    const wchar_t* message;  // none when null
  } cases[] = {
      {"telephone too long together",
       [](User& user) {
         put(user, L"ran_payee_ph_area", L"613");
         put(user, L"ran_payee_phone", L"555123456789");
         for (const wchar_t* later : {L"ran_payee_email", L"ran_payee_fax_area", L"ran_payee_faxnumber"})
           put(user, later, L"");
       },
       L"cmd_ok", L"The combined phone area code and phone number cannot exceed 14 digits."},
      {"fax too long together",
       [](User& user) {
         for (const wchar_t* name : {L"ran_payee_fax_area", L"ran_payee_faxnumber"}) {
           user.control(name).setVisible(true);
           user.control(name).setEnabled(true);
         }
         put(user, L"ran_payee_fax_area", L"613");
         put(user, L"ran_payee_faxnumber", L"555123456789");
       },
       L"ran_payee_fax_area", L"The combined fax area code and fax number cannot exceed 14 digits."},
      {"no kind",
       [](User& user) { dynamic_cast<forms::OptionButton&>(user.control(L"optCBusiness")).setSelected(false); },
       L"optCBusiness", nullptr},
  };
  const Store business = component.store;
  for (const auto& [what, act, focus, message] : cases) {
    SCOPED_TRACE(what);
    component.store = business;
    if (message != nullptr) international();  // its telephone numbers are others
    const Record record = recordOf(component.store);
    {
      User user = shown();
      act(user);
      if (message != nullptr) messages.expect({.text = message, .caption = title});
      user.click(L"cmd_ok");
      EXPECT_TRUE(user.open());
      EXPECT_EQ(user.focus(), focus);
      EXPECT_EQ(recordOf(component.store), record);
      EXPECT_EQ(host.events, Texts{});
    }
    random.Unload_From_Remote();
  }
}

TEST_F(AcceptanceTest, ALabelOutOfSightSaysWhichAccountWasAccepted) {
  bankAccount();
  User user = shown();
  user.click(L"cmd_ok");
  EXPECT_EQ(host.events, Texts{L"CSBOK"});
  EXPECT_EQ(dynamic_cast<forms::Label&>(user.control(L"lblbankaccount")).caption(), L"001-12345-1234567");
}

}  // namespace
}  // namespace nv::test
