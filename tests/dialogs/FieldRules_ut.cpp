// Which characters appear in the fields of the biller dialog. What else becomes of typing is in scenarios.
#include <algorithm>

#include "forms/TextField.h"
#include "tests/support/BillerTest.h"

namespace nv::test {
namespace {

std::wstring range(wchar_t from, wchar_t to) {
  std::wstring characters;
  for (wchar_t c = from; c <= to; ++c) characters += c;
  return characters;
}

const std::wstring digits = range(L'0', L'9'), capitals = range(L'A', L'Z'), small = range(L'a', L'z');
/// What cleansing leaves.
const std::wstring clean = range(32, 33) + range(35, 125);
const std::wstring cleanCapitals = range(32, 33) + range(35, L'`') + range(L'{', 125);

class FieldRulesTest : public BillerTest {
 protected:
  FieldRulesTest() {
    component.store.NVMemberType = L"B";
    component.store.PayeeBusinessNum = L"100000009";
  }

  static forms::TextField& field(User& user, const wchar_t* name) {
    return dynamic_cast<forms::TextField&>(user.control(name));
  }
  /// Brings the field to light, if it is one that only shows at times, and empties it with the focus in it.
  static void begin(User& user, const wchar_t* name) {
    field(user, name).setVisible(true);
    field(user, name).setFocus();
    field(user, name).setText({});
  }
};

TEST_F(FieldRulesTest, NothingAppearsButWhatTheRuleAllows) {
  struct Field {
    const wchar_t* name;
    std::wstring appears;
    bool capitalises = false;
  };
  struct Group {
    const char* what;
    std::function<void()> record;
    std::vector<Field> fields;
  };
  const Group groups[] = {
      {"in Canada",
       nullptr,
       {{L"ran_payee_street", cleanCapitals, true},
        {L"ran_payee_city", cleanCapitals, true},
        {L"ran_payee_prov", capitals, true},
        {L"ran_payee_country", capitals, true},
        {L"ran_payee_postal", capitals, true},  // at the first position
        {L"cmbCurrencyCode", capitals, true},
        {L"txtPhoneCountryCode", digits},
        {L"ran_payee_ph_area", digits},
        {L"ran_payee_phone", digits},
        {L"txtFaxCountryCode", digits},
        {L"ran_payee_fax_area", digits},
        {L"ran_payee_faxnumber", digits},
        {L"ran_payee_email", clean},
        {L"ran_payee_www", clean},
        {L"ran_payee_contact", cleanCapitals, true},
        {L"txtBusinessNum", capitals + digits, true},
        {L"txtTransit", digits},
        {L"txtBankID", digits},
        {L"txtAccount", digits},
        {L"txtTransitConf", digits},
        {L"txtBankIDConf", digits},
        {L"txtAccountConf", digits}}},
      {"abroad",
       [this] { international(); },
       {{L"ran_Inter_payee_phone", digits},
        {L"ran_inter_payee_faxnumber", digits},
        {L"ran_payee_postal", capitals + digits + L" -", true}}},
      {"in the United States",
       [this] { unitedStates(); },
       {{L"ran_payee_postal", digits}, {L"txtBankAccountNumber", range(33, 33) + cleanCapitals.substr(2), true}}},
  };
  for (const Group& group : groups) {
    if (group.record) group.record();
    User user = shown();
    for (const Field& field : group.fields) {
      std::wstring wrong;
      for (int code = 1; code <= 255 + 3; ++code) {
        constexpr wchar_t beyond[] = {0x0152, 0x0410, 0x20AC};
        const wchar_t c = code <= 255 ? static_cast<wchar_t>(code) : beyond[code - 256];
        if (c == forms::keys::tab || c == forms::keys::enter || c == forms::keys::escape) continue;  // they lead away
        begin(user, field.name);
        user.type(std::wstring(1, c));
        const wchar_t shaped = field.capitalises && small.find(c) != small.npos ? static_cast<wchar_t>(c - 32) : c;
        const bool appears = field.appears.find(shaped) != std::wstring::npos;
        if (user.text(field.name) != (appears ? std::wstring(1, shaped) : L"")) wrong += L" " + std::to_wstring(c);
      }
      EXPECT_EQ(wrong, L"") << field.name << L" " << group.what;
      // Leaving the lists is to decide nothing.
      FieldRulesTest::field(user, L"ran_payee_country").setText(component.store.PayeeCountry);
      FieldRulesTest::field(user, L"cmbCurrencyCode").setText(component.store.PayeeCurrency);
    }
    random.Unload_From_Remote();
  }
}

}  // namespace
}  // namespace nv::test
