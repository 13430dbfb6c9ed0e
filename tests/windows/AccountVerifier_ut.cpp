// The account verifier through COM: what reaches it, what comes back, and what becomes of its failures.
#include "windows/services/AccountVerifier.h"

#include <functional>
#include <optional>

#include "platform/RuntimeError.h"
#include "tests/support/FakeServices.h"
#include "tests/support/Windowless.h"
#include "tests/windows/StandIns.h"
#include "validation/BankChecks.h"
#include "validation/BusinessNumber.h"
#include "windows/services/HostInstallation.h"

namespace nv::windows::test {

namespace {

using Lines = std::vector<std::wstring>;

class AccountVerifierTest : public StandInsTest {
 protected:
  static std::int16_t validateBankId(platform::AccountVerifier& verifier, std::wstring& message, std::int16_t& length) {
    return verifier.ValidateBankId(L"000999", false, message, length);
  }
};

TEST_F(AccountVerifierTest, HearsPropertiesInTheirOrderAndEveryArgument) {
  const auto verifier = createAccountVerifier();
  verifier->putPlayByPlay(true);
  verifier->putDataPath(L"C:\\Apps");
  verifier->putBusinessPIN(L"1234");
  verifier->putBillerSearchID(L"S1");
  verifier->putAccessNumber(L"4500 \"7\"");
  verifier->putProgramVersion(L"0705");
  verifier->putBillerSearchURL(L"https://search.example/");
  verifier->putSessionNumber(L"99");
  verifier->putRequestSourceCode(L"");
  verifier->putBankIdLength(6);
  verifier->putAccountLength(30);
  const std::wstring puts =
      L" with PlayByPlay true DataPath \"C:\\\\Apps\" BusinessPIN \"1234\" BillerSearchID \"S1\" AccessNumber "
      L"\"4500 \\\"7\\\"\" ProgramVersion \"0705\" BillerSearchURL \"https://search.example/\" SessionNumber \"99\" "
      L"RequestSourceCode \"\" BankIdLength 6 AccountLength 30";

  std::wstring message = L"before";
  std::int16_t number = 7;
  EXPECT_EQ(verifier->VerifyAccount(L"   003", L"123456   ", false, message, number), 1);
  EXPECT_EQ(verifier->ValidateBankId(L"003", true, message, number), 1);
  EXPECT_EQ(verifier->ValidateBankAccount(L"003", L"12345", L"ÉÜ 77", message, number, true), 1);
  EXPECT_EQ(message, L"before");
  EXPECT_EQ(number, 7);
  EXPECT_EQ(verifier->getBillerSearchID(), L"S1");
  EXPECT_EQ(asked(), (Lines{L"create", L"VerifyAccount \"   003\" \"123456   \" false \"before\" 7" + puts,
                            L"ValidateBankId \"003\" true \"before\" 7" + puts,
                            L"ValidateBankAccount \"003\" \"12345\" \"ÉÜ 77\" \"before\" 7 true" + puts,
                            L"BillerSearchID" + puts}));
}

TEST_F(AccountVerifierTest, BringsBackWhateverTheVerifierAnswers) {
  struct Case {
    const wchar_t* answer;
    std::int16_t result;
    std::wstring message;
    std::int16_t number;
  };
  const Case cases[] = {
      {L"1", 1, L"before", 7},
      {L"0 \"Bank 999 is not known.\"", 0, L"Bank 999 is not known.", 22},
      {L"2 \"\"", 2, L"", 0},
      {L"-32768 null", -32768, L"", 7},
      {L"32767 null length -1", 32767, L"", -1},
      {L"0 length 300", 0, L"before", 300},
      {L"0 \"Line\\r\\n\" times 10000 length 5", 0, L"", 5},
  };
  const auto verifier = createAccountVerifier();
  const std::function<std::int16_t(std::wstring&, std::int16_t&)> methods[] = {
      [&](auto& message, auto& number) { return verifier->VerifyAccount(L"1", L"2", false, message, number); },
      [&](auto& message, auto& number) { return verifier->ValidateBankId(L"1", false, message, number); },
      [&](auto& message, auto& number) {
        return verifier->ValidateBankAccount(L"1", L"2", L"3", message, number, false);
      },
  };
  const wchar_t* const names[] = {L"VerifyAccount ", L"ValidateBankId ", L"ValidateBankAccount "};
  for (std::size_t method = 0; method < std::size(methods); ++method) {
    for (const Case& c : cases) {
      tell(std::wstring(names[method]) + c.answer);
      std::wstring message = L"before";
      std::int16_t number = 7;
      EXPECT_EQ(methods[method](message, number), c.result) << c.answer;
      if (&c == &cases[6]) {
        EXPECT_EQ(message.size(), 60000U);
      } else {
        EXPECT_EQ(message, c.message) << c.answer;
      }
      EXPECT_EQ(number, c.number) << c.answer;
    }
  }
}

TEST_F(AccountVerifierTest, HandsOutTheSearchIdOfItsOwnChoice) {
  const auto verifier = createAccountVerifier();
  EXPECT_EQ(verifier->getBillerSearchID(), L"");
  verifier->putBillerSearchID(L"S1");
  EXPECT_EQ(verifier->getBillerSearchID(), L"S1");
  tell(L"BillerSearchID \"S2 \"");
  EXPECT_EQ(verifier->getBillerSearchID(), L"S2 ");
  tell(L"BillerSearchID null");
  EXPECT_EQ(verifier->getBillerSearchID(), L"");
}

/// An error object of whoever used the thread before.
void leaveError(std::wstring description) {
  ComPtr<ICreateErrorInfo> error;
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(S_OK, CreateErrorInfo(&error));
  ASSERT_EQ(S_OK, error->SetDescription(description.data()));
  ASSERT_EQ(S_OK, error->QueryInterface(IID_IErrorInfo, &info));
  ASSERT_EQ(S_OK, SetErrorInfo(0, info.Get()));
}

TEST_F(AccountVerifierTest, FailuresKeepTheirNumberAndDescription) {
  struct Case {
    const wchar_t* answer;
    std::int32_t number;
    const wchar_t* description;
    std::function<void(platform::AccountVerifier&)> act;
  };
  const auto putPin = [](auto& verifier) { verifier.putBusinessPIN(L"1"); };
  const auto putLength = [](auto& verifier) { verifier.putBankIdLength(6); };
  const auto putTrace = [](auto& verifier) { verifier.putPlayByPlay(true); };
  const auto getId = [](auto& verifier) { verifier.getBillerSearchID(); };
  const auto ask = [](auto& verifier) {
    std::wstring message = L"before";
    std::int16_t length = 7;
    validateBankId(verifier, message, length);
  };
  const Case cases[] = {
      {L"put BusinessPIN fails 0x80070057", E_INVALIDARG, L"Automation error", putPin},
      {L"put BankIdLength fails 0x80004005 \"No such length\"", E_FAIL, L"No such length", putLength},
      {L"put PlayByPlay fails 0x80004001", E_NOTIMPL, L"Automation error", putTrace},
      {L"BillerSearchID fails 0x80010105", static_cast<std::int32_t>(0x80010105), L"Automation error", getId},
      {L"ValidateBankId fails 0x800A0035 \"ACCOUNT3.VLD is missing\"", 53, L"ACCOUNT3.VLD is missing", ask},
      {L"ValidateBankId fails 0x8007000E", 7, L"Out of memory", ask},
  };
  const auto verifier = createAccountVerifier();
  for (const Case& c : cases) {
    tell(c.answer);
    leaveError(L"Somebody else's failure");
    try {
      c.act(*verifier);
      ADD_FAILURE() << c.answer << ": no failure";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), c.number) << c.answer;
      EXPECT_EQ(error.description(), c.description) << c.answer;
    }
  }
}

std::int32_t errorOfCreating() {
  try {
    createAccountVerifier();
    return 0;
  } catch (const RuntimeError& error) {
    return error.number();
  }
}

TEST_F(AccountVerifierTest, WhatCannotBeCreatedOrIsNoVerifierIsError429) {
  EXPECT_EQ(errorOfCreating(), 0);
  tell(L"create fails 0x80040111");
  EXPECT_EQ(errorOfCreating(), 429);
  host::withdrawVerifier();
  EXPECT_EQ(errorOfCreating(), 429);
  host::registerVerifier(L"C:\\nowhere\\NVHostVerifier.dll");
  EXPECT_EQ(errorOfCreating(), 429);

  // A dual interface with as many slots as a verifier's, of quite another kind; and no automation object at all.
  for (const wchar_t* other : {L"{EE09B103-97E0-11CF-978F-00A02463E06F}", L"{00021401-0000-0000-C000-000000000046}"}) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\AccountVerifier.AccountVerifier\\CLSID", nullptr, REG_SZ,
                    other, 39 * sizeof(wchar_t));
    EXPECT_EQ(errorOfCreating(), 429);
  }
}

/// The checks of module Random over the real verifier.
class VerifierFaultsTest : public AccountVerifierTest {
 protected:
  VerifierFaultsTest() {
    files.makeFolder(L"C:\\Apps\\NORVIK");
    component.store.DLLPath = L"C:\\Apps\\NORVIK";
  }

  nv::test::FakeMessageBoxes messages;
  nv::test::FakeFiles files;
  nv::test::FakeMachine machine;
  nv::test::FakeShell shell;
  HostInstallation hostInstallation;
  const platform::Services services{messages, files, machine, shell, hostInstallation};
  nv::test::WindowlessWidgetset widgetset;
  Component component{services, widgetset};
};

TEST_F(VerifierFaultsTest, AreToldAndLoggedOnceAndTheNextQuestionIsAnswered) {
  struct Check {
    const wchar_t* member;
    const wchar_t* label;
    std::function<std::optional<std::int16_t>()> ask;
  };
  std::wstring message;
  std::int16_t length = 0;
  const Check checks[] = {
      {L"VerifyAccount", L"Random.VerifyAccount",
       [&] { return Random::VerifyAccount(component, L"003", L"123456", message, 0, false); }},
      {L"ValidateBankId", L"Random.ValidateBankId",
       [&] { return Random::ValidateBankId(component, L"003", message, length, false).value_or(0); }},
      {L"ValidateBankAccount", L"Random.ValidateBankAccount",
       [&] {
         return Random::ValidateBankAccount(component, L"003", L"12345", L"77", message, length, false).value_or(0);
       }},
      {L"VerifyAccount", L"Random.VerifyAccount",
       [&] { return Random::VerifyBusinessNumber(component, L"815739254"); }},
  };
  struct Fault {
    std::function<void(const std::wstring& member)> begin;
    const wchar_t* description;
    const wchar_t* number;
  };
  const Fault faults[] = {
      {[](auto&) { host::withdrawVerifier(); }, L"ActiveX component can't create object", L"429"},
      {[](auto&) { tell(L"create fails 0x80004005"); }, L"ActiveX component can't create object", L"429"},
      {[](auto&) { tell(L"put SessionNumber fails 0x80004005"); }, L"Automation error", L"-2147467259"},
      {[](auto& member) { tell(member + L" fails 0x8002000A"); }, L"Automation error", L"-2147352566"},
      {[](auto& member) { tell(member + L" fails 0x800A0005 \"No \\\"rules\\\"\""); }, L"No \"rules\"", L"5"},
  };
  for (const Check& check : checks) {
    for (const Fault& fault : faults) {
      fault.begin(check.member);
      messages.expect({std::wstring(L"The following error: '") + fault.description + L" (Error " + fault.number +
                           L")' occurred in procedure '" + check.label + L"'.",
                       L"NVRandom", platform::MessageBoxes::Icon::critical});
      EXPECT_FALSE(check.ask().value_or(0));
      EXPECT_EQ(files.text(L"C:\\Apps\\error.log"), machine.clock + L",NVRandom, , ," + fault.number + L",\"" +
                                                        fault.description + L"\",\"" + check.label + L"\"\r\n");
      files.put(L"C:\\Apps\\error.log", {});
      host::restoreVerifier();
      installation.write(host::answersFile, L"");
      EXPECT_EQ(check.ask(), 1);
    }
  }
}

TEST_F(VerifierFaultsTest, OnlyAnAcceptedQuestionBringsANewSearchId) {
  std::wstring message;
  std::int16_t length = 0;
  component.store.BillerSearchNorvikID = L"S1";
  tell(L"BillerSearchID \"S2\"");
  for (const wchar_t* refusal : {L"0", L"2", L"-1"}) {
    tell(std::wstring(L"ValidateBankId ") + refusal);
    Random::ValidateBankId(component, L"003", message, length, false);
    EXPECT_EQ(component.store.BillerSearchNorvikID, L"S1") << refusal;
  }
  tell(L"ValidateBankId 1");
  EXPECT_EQ(Random::ValidateBankId(component, L"003", message, length, false), 1);
  EXPECT_EQ(component.store.BillerSearchNorvikID, L"S2");
  tell(L"BillerSearchID \"S3\"");
  EXPECT_EQ(Random::ValidateBankAccount(component, L"003", L"1", L"2", message, length, false), 1);
  EXPECT_EQ(component.store.BillerSearchNorvikID, L"S3");
  Random::VerifyAccount(component, L"003", L"123456", message, 0, false);
  EXPECT_TRUE(asked().back().starts_with(L"VerifyAccount ")) << "VerifyAccount hands out no search id";
}

}  // namespace

}  // namespace nv::windows::test
