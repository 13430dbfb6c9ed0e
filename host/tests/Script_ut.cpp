// The scenario language: what is said of a line that cannot be understood.
#include "host/scenario/Script.h"

#include <gtest/gtest.h>

#include "host/base/Failure.h"
#include "host/base/Text.h"

namespace nv::host {

namespace {

const std::vector<Substitution> substitutions = {{L"root", L"C:\\Apps\\"}};

std::string complaintAbout(std::wstring_view script) {
  try {
    parseScript(script, L"a.scenario", substitutions);
    return "none";
  } catch (const ScriptError& error) {
    return std::to_string(error.line) + ": " + narrow(error.text);
  }
}

}  // namespace

TEST(Script, SaysWhatIsWrongWithALine) {
  const struct {
    const wchar_t* script;
    const char* complaint;
  } cases[] = {
      {L"lett PayeeName \"A\"", "1: there is no command lett"},
      {L"\nlet PayeeName", "2: a word is missing; it is written: let PROPERTY VALUE"},
      {L"let PayeeName \"A", "1: the closing quote of a text is missing"},
      {L"let PayeeName \"A\" \"B\"", "1: there is more on the line than the command takes"},
      {L"let FormStyle 32768", "1: 32768 is no 16-bit number"},
      {L"let IPCurrencyList [[\"A\"] [\"B\" \"C\"]]", "1: the rows of an array differ in length"},
      {L"press cmd_ok", "1: press acts on a dialog: it belongs between a show and its end"},
      {L"show modal\n  key Shft+Tab\nend", "2: there is no key Shft+Tab"},
      {L"show modal\n  press cmd_ok", "2: the end of a show is missing"},
      {L"result 0\nend", "2: there is no show that this end could belong to"},
      {L"error 9", "1: there is no line before that could fail"},
      {L"verifier put Nickname fails 0x80004005", "1: nothing that a stand-in is asked is called put Nickname"},
      {L"asked ValidateBankID never", "1: nothing that a stand-in is asked is called ValidateBankID"},
  };
  for (const auto& [script, complaint] : cases) {
    EXPECT_TRUE(complaintAbout(script).starts_with(complaint)) << narrow(script) << ": " << complaintAbout(script);
  }
}

}  // namespace nv::host
