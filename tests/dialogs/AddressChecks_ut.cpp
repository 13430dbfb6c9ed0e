// What the biller dialog accepts as an e-mail address and as a web site. With NVRANDOM_SECONDS in the environment a
// million texts are held against the patterns.
#include <cstdlib>
#include <random>
#include <regex>

#include "dialogs/biller/frmRandomInfo.h"
#include "platform/Text.h"
#include "tests/support/ComponentTest.h"

namespace nv::test {
namespace {

class AddressChecksTest : public ComponentTest {
 protected:
  std::shared_ptr<frmRandomInfo> form = std::make_shared<frmRandomInfo>(component, forms::Border::dialog);
};

TEST_F(AddressChecksTest, ARefusalSaysWhatIsWanted) {
  const std::wstring complete = L"Please enter a complete e-mail address with the form 'name@example.com'.";
  const std::wstring valid = L"Please enter a valid e-mail address with the form 'name@example.com'.";
  const std::wstring none = L"untouched";  // accepted
  const std::wstring longest(1'000'000, L'a');
  struct Case {
    std::wstring address;
    bool allowEmpty;
    std::wstring message;
  };
  const Case cases[] = {
      {L"a@b.c", false, none},
      {L"", false, complete},
      {L"    ", false, complete},
      {L"", true, none},
      {L"   ", true, none},
      {L"abc", true, complete},
      {L" a@b  ", false, complete},
      {L"@@@@", false, complete},
      {L"abcde", false, valid},
      {L" a@b.c", false, valid},
      {L"a@b.c ", false, valid},
      {longest + L"@example.com", false, none},
      {L"a@" + longest + L".", false, valid},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.address.substr(0, 40));
    std::wstring message = none;
    EXPECT_EQ(form->ValidateEmailAddress(c.address, message, c.allowEmpty), c.message == none);
    EXPECT_EQ(message, c.message);
  }
  std::wstring message = none;
  EXPECT_EQ(form->ValidateWebsite(longest + L".", message), true);
  EXPECT_EQ(message, none);
  EXPECT_EQ(form->ValidateWebsite(L"abc", message), false);
  EXPECT_EQ(message, L"Please enter a valid website with the form\r\n'www.example.com'.");
}

TEST_F(AddressChecksTest, GeneratedTextsAreJudgedAsByThePatterns) {
  constexpr auto syntax = std::regex::ECMAScript | std::regex::icase;
  const std::wregex email(
      L"^[a-z0-9!#$%&'*+/=?^_`{|}~-]+(?:\\.[a-z0-9!#$%&'*+/=?^_`{|}~-]+)*@(?:[a-z0-9](?:[a-z0-9-]*[a-z0-9])?\\.)+"
      L"[a-z0-9](?:[a-z0-9-]*[a-z0-9])?$",
      syntax);
  const std::wregex website(L"(www\\.)?.+\\.", syntax);
  const wchar_t* const pieces[] = {L"a",   L"Zz",     L"09",           L".",           L".",         L"-",
                                   L"@",   L"@b.",    L"x-1",          L"www.",        L"!#$%&'*+/", L"=?^_`{|}~",
                                   L".ca", L" ",      L"\"",           L"(),:;<>[\\]", L"\r",        L"\n",
                                   L"\t",  L"\u00e9", L"\u0130\u212a", L"\u2028",      L"\u2029",    L"\x7f"};
  std::mt19937 random(1);
  const auto upTo = [&random](std::size_t most) { return random() % (most + 1); };
  int accepted = 0;
  const int texts = std::getenv("NVRANDOM_SECONDS") != nullptr ? 1'000'000 : 5'000;
  for (int i = 0; i < texts && !HasFailure(); ++i) {
    // Half of them are made like addresses, then perhaps spoilt.
    std::wstring text = upTo(1) == 0 ? L"" : L"name.a@sub-1.b.example";
    for (std::size_t more = upTo(text.empty() ? 7 : 2); more > 0; --more) {
      text.insert(upTo(text.size()), pieces[upTo(std::size(pieces) - 1)]);
    }
    std::wstring message;
    const bool isEmail = trimmed(text).size() >= 5 && std::regex_search(text, email);
    EXPECT_EQ(form->ValidateEmailAddress(text, message, false), isEmail) << text;
    EXPECT_EQ(form->ValidateWebsite(text, message), std::regex_search(text, website)) << text;
    accepted += isEmail ? 1 : 0;
  }
  EXPECT_GT(accepted, texts / 10);
}

TEST_F(AddressChecksTest, IsEmailValidJudgesCharacterByCharacter) {
  struct Case {
    const wchar_t* address;
    bool valid;
  };
  const Case cases[] = {
      {L"a@b.ca", true},       {L"A_1-x.y@B.COM", true}, {L"a@b.info", true},  {L"1@2.34", true},
      {L"a@b.c", false},       {L"a@b.museum", false},   {L"a@b.", false},     {L"a@b", false},
      {L"ab.ca", false},       {L"a@b@c.ca", false},     {L"@b.ca", false},    {L"a@", false},
      {L".a@b.ca", false},     {L"a.@b.ca", false},      {L"a@.b.ca", false},  {L"a..b@c.ca", false},
      {L"a@b..ca", false},     {L"a+b@c.ca", false},     {L"a b@c.ca", false}, {L"", false},
      {L"\u00e9@b.ca", false},
  };
  for (const Case& c : cases) EXPECT_EQ(form->IsEmailValid(c.address), c.valid) << c.address;
}

TEST_F(AddressChecksTest, EachIsTraced) {
  startTrace();
  std::wstring message;
  form->ValidateEmailAddress(L"a@b.ca", message, false);
  form->ValidateWebsite(L"www.b.ca", message);
  form->IsEmailValid(L"a@b.ca");
  EXPECT_EQ(traced(), (Texts{L"RandomInfo - ValidateEmailAddress", L"RandomInfo - ValidateWebsite",
                             L"RandomInfo - IsEmailValid"}));
}

}  // namespace
}  // namespace nv::test
