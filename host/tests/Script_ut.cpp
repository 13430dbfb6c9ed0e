// The scenario language: what a line means, and what is said of one that cannot be understood.
#include "host/scenario/Script.h"

#include <gtest/gtest.h>

#include "host/base/Failure.h"
#include "host/base/Text.h"

namespace nv::host {

namespace {

const std::vector<Substitution> substitutions = {{L"root", L"C:\\Apps\\"}};

Tokens tokensOf(std::wstring_view line) {
  return {line, substitutions};
}

Value valueOf(std::wstring_view text) {
  Tokens tokens = tokensOf(text);
  Value value = tokens.value();
  tokens.end();
  return value;
}

std::string complaintAbout(std::wstring_view script) {
  try {
    parseScript(script, L"a.scenario", substitutions);
    return "none";
  } catch (const ScriptError& error) {
    return std::to_string(error.line) + ": " + narrow(error.text);
  }
}

}  // namespace

TEST(Tokens, ReadValuesOfEveryType) {
  EXPECT_EQ(valueOf(L"\"a \\\"b\\\" \\\\ \\r\\n\\t#\"  # comment"), Value(L"a \"b\" \\ \r\n\t#"));
  EXPECT_EQ(valueOf(L"\"{root}NORVIK {other}\""), Value(L"C:\\Apps\\NORVIK {other}"));
  EXPECT_EQ(valueOf(L"-32768"), Value(std::int16_t{-32768}));
  EXPECT_EQ(valueOf(L"0x7FFF"), Value(std::int16_t{32767}));
  EXPECT_EQ(valueOf(L"true"), Value(true));
  EXPECT_EQ(valueOf(L"[]"), Value(TextList()));
  EXPECT_EQ(valueOf(L"[\"a\"\"b\" \"\"]"), Value(TextList{L"a", L"b", L""}));
  EXPECT_EQ(valueOf(L"[[\"a\" \"b\"] [\"c\" \"d\"]]"), Value(TextTable{{L"a", L"b"}, {L"c", L"d"}}));
  EXPECT_EQ(tokensOf(L"0x80020003").number(), static_cast<long>(0x80020003));
}

TEST(Script, GroupsTheLinesOfAShow) {
  const auto script = parseScript(
      L"\xFEFF# a comment\r\n"
      L"let PayeeName \"A\"\n"
      L"error 9\n"
      L"show remote after\n"
      L"  type ran_payee_city \"B\"\n"
      L"  show modal\n"
      L"    key Shift+Tab F12 a\n"
      L"  end\n"
      L"end\n"
      L"result 0",
      L"a.scenario", substitutions);
  ASSERT_EQ(script.size(), 3U);
  EXPECT_EQ(script[0].file, L"a.scenario");
  EXPECT_EQ(script[0].line, 2);
  EXPECT_EQ(script[0].error->number, 9);
  EXPECT_FALSE(script[0].error->description);
  EXPECT_EQ(script[1].line, 4);
  EXPECT_EQ(script[1].endLine, 9);
  ASSERT_EQ(script[1].block.size(), 2U);
  EXPECT_EQ(script[1].block[0].source, L"type ran_payee_city \"B\"");
  EXPECT_EQ(script[1].block[1].endLine, 8);
  EXPECT_EQ(script[1].block[1].block.size(), 1U);
  EXPECT_EQ(script[2].line, 10);
}

TEST(Script, SaysWhatIsWrongWithALine) {
  const struct {
    const wchar_t* script;
    const char* complaint;
  } cases[] = {
      {L"lett PayeeName \"A\"", "1: there is no command lett"},
      {L"\nlet PayeeName", "2: a word is missing; it is written: let PROPERTY VALUE"},
      {L"let PayeeName \"A", "1: the closing quote of a text is missing"},
      {L"let PayeeName \"\\x\"", "1: a text has no escape \\x"},
      {L"let PayeeName \"A\" \"B\"", "1: there is more on the line than the command takes"},
      {L"let FormStyle 32768", "1: 32768 is no 16-bit number"},
      {L"let FormStyle 1x", "1: 1x is no number"},
      {L"let IPCurrencyList [[\"A\"] [\"B\" \"C\"]]", "1: the rows of an array differ in length"},
      {L"let IPCurrencyList [\"A\"", "1: the closing bracket of an array is missing"},
      {L"press cmd_ok", "1: press acts on a dialog: it belongs between a show and its end"},
      {L"show modal\n  key Shft+Tab\nend", "2: there is no key Shft+Tab"},
      {L"show modal\n  is form colour 1\nend", "2: nothing is known of colour"},
      {L"show modal\n  press cmd_ok", "2: the end of a show is missing"},
      {L"show dialog\nend", "1: it is not said how to show the dialog"},
      {L"result 0\nend", "2: there is no show that this end could belong to"},
      {L"error 9", "1: there is no line before that could fail"},
      {L"result 99999999999", "1: 99999999999 is no number"},
      {L"verifier ValidateBankID 1",
       "1: nothing that a stand-in is asked is called ValidateBankID; it is written: ver"},
      {L"verifier put Nickname fails 0x80004005", "1: nothing that a stand-in is asked is called put Nickname"},
      {L"verifier put BusinessPIN 1", "1: put BusinessPIN can be told to fail, and nothing else"},
      {L"verifier Check_bank_id fails 0x80004005", "1: fails is no number"},
      {L"verifier Check_bank_id 0 \"text\"", "1: there is more on the line than the command takes"},
      {L"verifier Check_bank_account2 0 null", "1: there is more on the line than the command takes"},
      {L"verifier ValidateBankId 40000", "1: 40000 is no 16-bit number"},
      {L"verifier BillerSearchID 1", "1: a text in double quotes is missing"},
      {L"asked ValidateBankID never", "1: nothing that a stand-in is asked is called ValidateBankID"},
      {L"asked put BusinessPIN \"1\"", "1: what was put is written behind the call that it was put for"},
      {L"countries all", "1: a text in double quotes is missing; it is written: countries sample"},
  };
  for (const auto& [script, complaint] : cases) {
    EXPECT_TRUE(complaintAbout(script).starts_with(complaint)) << narrow(script) << ": " << complaintAbout(script);
  }
}

}  // namespace nv::host
