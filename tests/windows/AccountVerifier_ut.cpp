// The account verifier through COM, as far as no scenario comes there: what it is asked and answers is in
// verifier.scenario.
#include "windows/services/AccountVerifier.h"

#include <tuple>

#include "tests/support/Expect.h"
#include "tests/windows/StandIns.h"

namespace nv::windows::test {

namespace {

using AccountVerifierTest = StandInsTest;

/// An error object of whoever used the thread before.
void leaveError(std::wstring description) {
  ComPtr<ICreateErrorInfo> error;
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(S_OK, CreateErrorInfo(&error));
  ASSERT_EQ(S_OK, error->SetDescription(description.data()));
  ASSERT_EQ(S_OK, error->QueryInterface(IID_IErrorInfo, &info));
  ASSERT_EQ(S_OK, SetErrorInfo(0, info.Get()));
}

TEST_F(AccountVerifierTest, AFailureBringsItsOwnDescriptionOrNone) {
  const auto verifier = createAccountVerifier();
  const std::tuple<const wchar_t*, std::int32_t, const wchar_t*> failures[] = {
      {L"put BusinessPIN fails 0x80070057", E_INVALIDARG, L"Automation error"},
      {L"put BusinessPIN fails 0x8007000E", 7, L"Out of memory"},
      {L"put BusinessPIN fails 0x80004005 \"No such PIN\"", E_FAIL, L"No such PIN"},
  };
  for (const auto& [answer, number, description] : failures) {
    tell(answer);
    leaveError(L"Somebody else's failure");
    try {
      verifier->putBusinessPIN(L"1");
      ADD_FAILURE() << answer << ": no failure";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), number) << answer;
      EXPECT_EQ(error.description(), description) << answer;
    }
  }
}

TEST_F(AccountVerifierTest, WhatCannotBeCreatedOrIsNoVerifierIsError429) {
  EXPECT_EQ(nv::test::errorOf(createAccountVerifier), 0);
  tell(L"create fails 0x80040111");
  EXPECT_EQ(nv::test::errorOf(createAccountVerifier), 429);
  if (verifierIsSideBySide()) GTEST_SKIP() << "what follows changes the machine's registry";
  host::withdrawVerifier();
  EXPECT_EQ(nv::test::errorOf(createAccountVerifier), 429);
  host::registerVerifier(L"C:\\nowhere\\NVHostVerifier.dll");
  EXPECT_EQ(nv::test::errorOf(createAccountVerifier), 429);

  // A dual interface with as many slots as a verifier's, of quite another kind; and no automation object at all.
  for (const wchar_t* other : {L"{EE09B103-97E0-11CF-978F-00A02463E06F}", L"{00021401-0000-0000-C000-000000000046}"}) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\AccountVerifier.AccountVerifier\\CLSID", nullptr, REG_SZ,
                    other, 39 * sizeof(wchar_t));
    EXPECT_EQ(nv::test::errorOf(createAccountVerifier), 429);
  }
  registerVerifier();
}

}  // namespace

}  // namespace nv::windows::test
