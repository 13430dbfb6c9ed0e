// The account verifier and the closed libraries of the host installation, as they really are.
#pragma once

#include "platform/HostInstallation.h"

namespace nv::windows {

class HostInstallation : public platform::HostInstallation {
 public:
  std::unique_ptr<platform::AccountVerifier> createVerifier() override;
  std::int16_t checkBankId(const std::wstring& folder, const std::wstring& bankId) override;
  std::int16_t checkBankAccount(const std::wstring& folder, const std::wstring& bankId, const std::wstring& transit,
                                const std::wstring& account, std::wstring& message) override;
  bool decipherFile(const std::wstring& folder, const std::wstring& from, const std::wstring& to) override;
};

}  // namespace nv::windows
