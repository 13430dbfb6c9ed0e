// What the component asks of the host installation: the account verifier and two closed libraries. Interfaces only;
// `windows/services` binds the real ones when they are first needed. Whatever they fail with is a RuntimeError: 429
// when the verifier cannot be created, 48 when a library cannot be loaded, 453 when it lacks an entry point, and the
// HRESULT of a failing automation call.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace nv::platform {

/// A session of the account verifier, an automation component of the host installation. Members are named as its
/// interface names them.
class AccountVerifier {
 public:
  virtual ~AccountVerifier() = default;

  virtual void putPlayByPlay(bool enabled) = 0;
  virtual void putDataPath(const std::wstring& path) = 0;
  virtual void putBusinessPIN(const std::wstring& pin) = 0;
  virtual void putBillerSearchID(const std::wstring& id) = 0;
  virtual std::wstring getBillerSearchID() = 0;
  virtual void putAccessNumber(const std::wstring& number) = 0;
  virtual void putProgramVersion(const std::wstring& version) = 0;
  virtual void putBillerSearchURL(const std::wstring& url) = 0;
  virtual void putSessionNumber(const std::wstring& number) = 0;
  virtual void putRequestSourceCode(const std::wstring& code) = 0;
  virtual void putBankIdLength(std::int16_t length) = 0;
  virtual void putAccountLength(std::int16_t length) = 0;

  /// @return the verifier's result; 1 means valid. `errorMessage` is handed in and out.
  virtual std::int16_t VerifyAccount(const std::wstring& bankId, const std::wstring& account, bool flag,
                                     std::wstring& errorMessage, std::int16_t& secondResult) = 0;
  virtual std::int16_t ValidateBankId(const std::wstring& bankId, bool flag, std::wstring& errorMessage,
                                      std::int16_t& errorLength) = 0;
  virtual std::int16_t ValidateBankAccount(const std::wstring& bankId, const std::wstring& transit,
                                           const std::wstring& account, std::wstring& errorMessage,
                                           std::int16_t& errorLength, bool flag) = 0;
};

class HostInstallation {
 public:
  virtual ~HostInstallation() = default;

  /// A new session of the account verifier.
  virtual std::unique_ptr<AccountVerifier> createVerifier() = 0;

  /// `_Check_bank_id@4` of Acctvfy.dll: 0 means that the bank id is not valid.
  /// @param folder the installation's folder of libraries, looked into first.
  virtual std::int16_t checkBankId(const std::wstring& folder, const std::wstring& bankId) = 0;

  /// `_Check_bank_account2@24` of Acctvfy.dll: 1 valid, 2 doubtful, anything else rejected.
  /// @param message the library's message, trimmed.
  virtual std::int16_t checkBankAccount(const std::wstring& folder, const std::wstring& bankId,
                                        const std::wstring& transit, const std::wstring& account,
                                        std::wstring& message) = 0;

  /// `_DES_decrypt_file@8` of kvd8rq3x.dll: deciphers one file into another.
  /// @return whether it says that it has: every result but 0. What it leaves otherwise is not to be used.
  virtual bool decipherFile(const std::wstring& folder, const std::wstring& from, const std::wstring& to) = 0;
};

}  // namespace nv::platform
