// A host installation that answers as it is told and writes down what it was asked. For tests only.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/HostInstallation.h"

namespace nv::test {

class FakeInstallation : public platform::HostInstallation {
 public:
  struct Answer {
    std::int16_t result = 1;
    std::wstring message{};
    std::int16_t errorLength = 0;
  };

  /// Answers by the method's or entry point's name; without one, valid and no message.
  std::map<std::wstring, Answer> answers;
  /// What the verifier hands out as its session id once asked; empty: the one it was given.
  std::wstring newSearchId;
  /// Runs at each property put, call or creation with its name; what it throws, that fails with.
  std::function<void(const std::wstring& name)> whenAsked;
  /// What was asked since, a line each: "create", "DataPath=C:\Apps", "ValidateBankId(001, False)".
  std::vector<std::wstring> asked;
  /// What deciphering does; by default nothing, as a library that fails without saying so.
  std::function<void(const std::wstring& from, const std::wstring& to)> decipher;

  std::unique_ptr<platform::AccountVerifier> createVerifier() override;
  std::int16_t checkBankId(const std::wstring& folder, const std::wstring& bankId) override;
  std::int16_t checkBankAccount(const std::wstring& folder, const std::wstring& bankId, const std::wstring& transit,
                                const std::wstring& account, std::wstring& message) override;
  bool decipherFile(const std::wstring& folder, const std::wstring& from, const std::wstring& to) override;

  /// Notes a question; fails when it is to fail.
  void note(const std::wstring& name, const std::wstring& rest);
};

}  // namespace nv::test
