// The bank and business number checks of module Random, against a verifier that answers as it is told.
#include <optional>

#include "tests/support/ComponentTest.h"
#include "validation/BankChecks.h"
#include "validation/BusinessNumber.h"

namespace nv::test {
namespace {

using platform::MessageBoxes;

class BankChecksTest : public ComponentTest {
 protected:
  std::int16_t verifyAccount(std::wstring_view bankId, std::wstring_view account) {
    return Random::VerifyAccount(component, bankId, account, message, 0, false);
  }
  std::optional<std::int16_t> validateBankId(std::wstring_view bankId) {
    return Random::ValidateBankId(component, bankId, message, errorLength, false);
  }
  std::optional<std::int16_t> validateBankAccount(std::wstring_view bankId, std::wstring_view transit,
                                                  std::wstring_view account) {
    return Random::ValidateBankAccount(component, bankId, transit, account, message, errorLength, false);
  }
  /// What the verifier was asked since the last call.
  Texts asked() { return std::exchange(installation.asked, {}); }

  std::wstring message = L"untouched";
  std::int16_t errorLength = -5;
};

TEST_F(BankChecksTest, HostValuesAreShapedForTheVerifier) {
  struct Case {
    const wchar_t* dllPath;
    const wchar_t* version;
    const wchar_t* dataPath;
    const wchar_t* programVersion;
  };
  const Case cases[] = {
      {L"", L"", L"DataPath=", L"ProgramVersion="},
      {L"C:\\norvik\\x", L"01.02.03", L"DataPath=", L"ProgramVersion=10203"},
      {L"D:\\A\\NORVIK", L"007.05", L"DataPath=D:\\A", L"ProgramVersion=0705"},
      {L"E:\\NORVIK", L"0.0", L"DataPath=E:", L"ProgramVersion=0000"},
      {L"\\NORVIK\\x", L"...", L"DataPath=", L"ProgramVersion="},
      {L"C:\\NORVIKS\\NORVIK", L"7.5b", L"DataPath=C:", L"ProgramVersion=75b"},
  };
  for (const Case& c : cases) {
    component.store.DLLPath = c.dllPath;
    component.store.NorvikProgramVersion = c.version;
    validateBankId(L"001");
    const Texts seen = asked();
    EXPECT_EQ(seen.at(2), c.dataPath);
    EXPECT_EQ(seen.at(6), c.programVersion);
  }
}

TEST_F(BankChecksTest, AccountsAreJudgedHereFirst) {
  const std::wstring tooShort = L"Account number should not be less than four characters.";
  const std::wstring badCharacters =
      L"The account entered contains invalid characters.  Valid accounts uppercase alpha and/or numeric characters.";
  struct Case {
    const wchar_t* bankId;
    const wchar_t* account;
    std::int16_t result;
    std::optional<std::wstring> message{};  // none: a message box about blanks
    const wchar_t* askedFor = nullptr;
  };
  const Case cases[] = {
      {L"001", L"12 34", 0},
      {L"001", L" 1234", 0},
      {L"001", L"1 ", 0},  // the blank is found before the length is looked at
      {L"001", L"123", 0, tooShort},
      {L"001", L"", 0, tooShort},
      {L"001", L"abc1", 0, badCharacters},
      {L"001", L"12-34", 0, badCharacters},
      {L"001", L"\u00c9ABC", 0, badCharacters},
      {L"", L"1234", 2, L"untouched"},
      {L"      ", L"1234", 2, L"untouched"},
      {L"0010039", L"AB12", 1, L"", L"VerifyAccount(001003, AB12                          , False)"},
      {L" 0010039 ", L"AB12", 1, L"", L"VerifyAccount(001003, AB12                          , False)"},
      {L"12345678", L"AB12", 1, L"", L"VerifyAccount(345678, AB12                          , False)"},
      {L"1", L"1234567890123456789012345678901", 1, L"",
       L"VerifyAccount(     1, 123456789012345678901234567890, False)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << "'" << c.bankId << "' '" << c.account << "'");
    message = L"untouched";
    if (!c.message) {
      messages.expect({.text = L"Please do not enter any blank characters in the account number.",
                       .icon = MessageBoxes::Icon::critical});
    }
    EXPECT_EQ(verifyAccount(c.bankId, c.account), c.result);
    EXPECT_EQ(message, c.message.value_or(L"untouched"));
    const Texts seen = asked();
    EXPECT_EQ(c.askedFor == nullptr ? std::wstring() : c.askedFor, seen.empty() ? std::wstring() : seen.back());
  }
}

TEST_F(BankChecksTest, BlankNumbersAreRefusedWithoutAsking) {
  EXPECT_EQ(validateBankId(L"  "), 0);
  EXPECT_EQ(message, L"Invalid bank id");
  EXPECT_EQ(errorLength, 15);
  EXPECT_EQ(validateBankAccount(L"", L"1", L"1").value() + validateBankAccount(L"1", L" ", L"1").value(), 0);
  EXPECT_EQ(message, L"Invalid bank account");
  EXPECT_EQ(errorLength, 20);
  EXPECT_TRUE(asked().empty());
}

TEST_F(BankChecksTest, RoutingNumbersHaveNineDigitsAChecksumAndAPrefix) {
  struct Case {
    const wchar_t* number;
    bool domestic;
    bool unitedStates;
  };
  const Case cases[] = {
      {L"123456780", true, true},   {L"131000021", true, false},  // 13 is no prefix, though the checksum passes
      {L"123456781", false, false}, {L"02100002", false, false}, {L"0210000210", false, false}, {L"", false, false},
      {L" 021000021", true, false}, {L"021000021 ", true, true},  // the prefix is looked for before trimming
      {L"021Z00021", true, true},                                 // what is no digit counts nothing
      {L"0:0000000", true, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.number);
    EXPECT_EQ(Random::ValidateABANumber(component, c.number, true), c.domestic);
    EXPECT_EQ(Random::ValidateABANumber(component, c.number, false), c.unitedStates);
  }
  std::wstring prefixes;
  for (int number = 0; number < 1000; ++number) {  // two digits, and one for the checksum
    const std::wstring text = std::to_wstring(1000 + number).substr(1);
    const bool valid = Random::ValidateABANumber(component, text.substr(0, 2) + L"100002" + text.back(), false);
    if (valid) prefixes += L" " + text.substr(0, 2);
  }
  EXPECT_EQ(prefixes,
            L" 01 02 03 04 05 06 07 08 09 10 11 12 21 22 23 24 25 26 27 28 29 30 31 32"
            L" 61 62 63 64 65 66 67 68 69 70 71 72");
}

TEST_F(BankChecksTest, BusinessNumbersAreJudgedByTheirFirstNineCharacters) {
  // Made up, of other characters, a blank among the first nine, or numbers only in the general sense.
  for (const wchar_t* number :
       {L"",          L"         ", L"11111111",  L"12345678 ",  L"123456789", L"111111112", L"222222229",
        L"333333330", L"444444441", L"555555552", L"666666663",  L"777777774", L"888888885", L"999999996",
        L"000000007", L"12345A782", L"123 56782", L" 100200308", L"1234567.8", L"-12345678", L"1,234,567",
        L"12345E+10", L".12345678", L"1234567..", L"13345678E",  L"+-1234567", L",12345678"}) {
    EXPECT_FALSE(Random::VerifyBusinessNumber(component, number)) << number;
    EXPECT_EQ(asked(), Texts()) << number;
  }
  for (const std::wstring number : {L"100200308", L"100200308RT0009", L"100200308 and more", L"1335E5678"}) {
    EXPECT_TRUE(Random::VerifyBusinessNumber(component, number)) << number;
    EXPECT_EQ(asked().back(), L"VerifyAccount(001003, " + number.substr(0, 9) + L"RT0001               , False)");
  }
  installation.answers[L"VerifyAccount"] = {2, L"discarded"};
  EXPECT_TRUE(Random::VerifyBusinessNumber(component, L"100200308")) << "anything but zero accepts";
  installation.answers[L"VerifyAccount"] = {0, L"discarded"};
  EXPECT_FALSE(Random::VerifyBusinessNumber(component, L"100200308"));
}

}  // namespace
}  // namespace nv::test
