#include "tests/support/FakeInstallation.h"

namespace nv::test {

namespace {

std::wstring truth(bool value) {
  return value ? L"True" : L"False";
}

class FakeVerifier final : public platform::AccountVerifier {
 public:
  explicit FakeVerifier(FakeInstallation& installation) : installation_(installation) {}

  void putPlayByPlay(bool enabled) override { put(L"PlayByPlay", truth(enabled)); }
  void putDataPath(const std::wstring& path) override { put(L"DataPath", path); }
  void putBusinessPIN(const std::wstring& pin) override { put(L"BusinessPIN", pin); }
  void putBillerSearchID(const std::wstring& id) override {
    searchId_ = id;
    put(L"BillerSearchID", id);
  }
  std::wstring getBillerSearchID() override {
    installation_.note(L"get BillerSearchID", L"");
    return installation_.newSearchId.empty() ? searchId_ : installation_.newSearchId;
  }
  void putAccessNumber(const std::wstring& number) override { put(L"AccessNumber", number); }
  void putProgramVersion(const std::wstring& version) override { put(L"ProgramVersion", version); }
  void putBillerSearchURL(const std::wstring& url) override { put(L"BillerSearchURL", url); }
  void putSessionNumber(const std::wstring& number) override { put(L"SessionNumber", number); }
  void putRequestSourceCode(const std::wstring& code) override { put(L"RequestSourceCode", code); }
  void putBankIdLength(std::int16_t length) override { put(L"BankIdLength", std::to_wstring(length)); }
  void putAccountLength(std::int16_t length) override { put(L"AccountLength", std::to_wstring(length)); }

  std::int16_t VerifyAccount(const std::wstring& bankId, const std::wstring& account, bool flag, std::wstring& message,
                             std::int16_t& /*secondResult*/) override {
    std::int16_t ignored = 0;
    return call(L"VerifyAccount", bankId + L", " + account + L", " + truth(flag), message, ignored);
  }
  std::int16_t ValidateBankId(const std::wstring& bankId, bool flag, std::wstring& message,
                              std::int16_t& errorLength) override {
    return call(L"ValidateBankId", bankId + L", " + truth(flag), message, errorLength);
  }
  std::int16_t ValidateBankAccount(const std::wstring& bankId, const std::wstring& transit, const std::wstring& account,
                                   std::wstring& message, std::int16_t& errorLength, bool flag) override {
    return call(L"ValidateBankAccount", bankId + L", " + transit + L", " + account + L", " + truth(flag), message,
                errorLength);
  }

 private:
  void put(const std::wstring& name, const std::wstring& value) { installation_.note(name, L"=" + value); }

  std::int16_t call(const std::wstring& name, const std::wstring& arguments, std::wstring& message,
                    std::int16_t& errorLength) {
    installation_.note(name, L"(" + arguments + L")");
    const FakeInstallation::Answer& answer = installation_.answers[name];
    message = answer.message;
    errorLength = answer.errorLength;
    return answer.result;
  }

  FakeInstallation& installation_;
  std::wstring searchId_;
};

}  // namespace

void FakeInstallation::note(const std::wstring& name, const std::wstring& rest) {
  asked.push_back(name + rest);
  if (whenAsked) whenAsked(name);
}

std::unique_ptr<platform::AccountVerifier> FakeInstallation::createVerifier() {
  note(L"create", L"");
  return std::make_unique<FakeVerifier>(*this);
}

std::int16_t FakeInstallation::checkBankId(const std::wstring& folder, const std::wstring& bankId) {
  note(L"Check_bank_id", L"(" + folder + L", " + bankId + L")");
  return answers[L"Check_bank_id"].result;
}

std::int16_t FakeInstallation::checkBankAccount(const std::wstring& folder, const std::wstring& bankId,
                                                const std::wstring& transit, const std::wstring& account,
                                                std::wstring& message) {
  note(L"Check_bank_account2", L"(" + folder + L", " + bankId + L", " + transit + L", " + account + L")");
  message = answers[L"Check_bank_account2"].message;
  return answers[L"Check_bank_account2"].result;
}

bool FakeInstallation::decipherFile(const std::wstring& folder, const std::wstring& from, const std::wstring& to) {
  note(L"DES_decrypt_file", L"(" + folder + L", " + from + L", " + to + L")");
  if (decipher) decipher(from, to);
  return answers[L"DES_decrypt_file"].result != 0;
}

}  // namespace nv::test
