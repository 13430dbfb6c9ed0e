// The scenario language: what is said of a line that cannot be understood.
#include "scenario/Script.h"

#include <gtest/gtest.h>

#include "scenario/Failure.h"

namespace nv::test {
namespace {

using scenario::ScriptError;

std::wstring complaintAbout(std::wstring_view script) {
  try {
    scenario::parseScript(script, L"a.scenario", {{L"root", L"C:\\Apps\\"}});
    return L"none";
  } catch (const ScriptError& error) {
    return std::to_wstring(error.line) + L": " + error.text;
  }
}

TEST(Script, SaysWhatIsWrongWithALine) {
  const struct {
    const wchar_t* script;
    const wchar_t* complaint;
  } cases[] = {
      {L"lett PayeeName \"A\"", L"1: there is no command lett; did you mean let?"},
      {L"\nlet PayeeName", L"2: a word is missing; it is written: let PROPERTY VALUE [filling | beyond FIELD]..."},
      {L"let PayeeName \"A", L"1: the closing quote of a text is missing"},
      {L"result 0 1", L"1: there is more on the line than the command takes"},
      {L"let FormStyle 32768", L"1: 32768 is no 16-bit number"},
      {L"let IPCurrencyList [[\"A\"] [\"B\" \"C\"]]", L"1: the rows of an array differ in length"},
      {L"press cmd_ok", L"1: press acts on a dialog: it belongs between a show and its end"},
      {L"show modal\n  key Shift+Tabb\nend", L"2: there is no key Shift+Tabb; did you mean Tab?"},
      {L"show modal\n  is a visble true\nend", L"2: nothing is known of visble, but of text"},
      {L"show modal\n  press cmd_ok", L"2: the end of a show is missing"},
      {L"result 0\nend", L"2: there is nothing that this end could belong to"},
      {L"for X in 1 2\n  result {X}", L"2: the end of a for is missing"},
      {L"for X Y in 1 2 3\nend", L"1: the values are not as many for each name"},
      {L"changed none", L"1: changed speaks of the show before it, and there is none"},
      {L"error 9", L"1: there is no line before that could fail"},
      {L"verifier put Nickname fails 0x80004005", L"1: nothing that a stand-in is asked is called put Nickname"},
      {L"asked ValidateBankID never",
       L"1: nothing that a stand-in is asked is called ValidateBankID; did you mean ValidateBankId?"},
  };
  for (const auto& [script, complaint] : cases) {
    EXPECT_TRUE(complaintAbout(script).starts_with(complaint)) << script << ": " << complaintAbout(script);
  }
}

}  // namespace
}  // namespace nv::test
