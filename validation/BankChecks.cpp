#include "validation/BankChecks.h"

#include <algorithm>
#include <utility>

#include "component/core/ShowError.h"
#include "component/core/Trace.h"
#include "platform/HostInstallation.h"
#include "platform/Text.h"
#include "validation/TextHelpers.h"

namespace nv::Random {

namespace {

using platform::AccountVerifier;
using platform::MessageBoxes;

/// The installation's root without its trailing backslash; empty when unknown.
std::wstring dataPath(const Store& store) {
  std::wstring root = store.gstrInstallRoot();
  if (!root.empty()) root.pop_back();
  return root;
}

/// The host's version as the verifier expects it: without dots and, when that is a number, as one of four digits at
/// least ("7.05" is "0705", and so is "007.05").
std::wstring programVersion(const Store& store) {
  std::wstring version = store.NorvikProgramVersion;
  std::erase(version, L'.');
  if (version.empty() || !std::ranges::all_of(version, isDigit)) return version;
  constexpr std::size_t digits = 4;
  version.erase(0, version.find_first_not_of(L'0'));
  if (version.size() < digits) version.insert(0, digits - version.size(), L'0');
  return version;
}

/// A new verifier that knows the host's session. The order of the values is the verifier's.
std::unique_ptr<AccountVerifier> createVerifier(Component& component) {
  const Store& store = component.store;
  auto verifier = component.services.installation.createVerifier();
  verifier->putPlayByPlay(store.PlayByPlayEnabled != flagFalse);
  verifier->putDataPath(dataPath(store));
  verifier->putBusinessPIN(store.BusinessPIN);
  verifier->putBillerSearchID(store.BillerSearchNorvikID);
  verifier->putAccessNumber(store.AccessNumber);
  verifier->putProgramVersion(programVersion(store));
  verifier->putBillerSearchURL(store.BillerSearchURL);
  verifier->putSessionNumber(store.SessionNumber);
  verifier->putRequestSourceCode(store.RequestSourceCode);
  return verifier;
}

constexpr std::int16_t valid = 1;
constexpr std::int16_t refused = 0;
constexpr std::int16_t notAsked = 2;

constexpr std::int16_t bankIdLength = 6;
constexpr std::int16_t accountLength = 30;

/// Asks a new verifier. When it accepts, its session id, which may be new, is stored.
template <class Ask>
std::int16_t askVerifier(Component& component, Ask&& ask) {
  const auto verifier = createVerifier(component);
  const std::int16_t result = ask(*verifier);
  if (result == valid) component.store.BillerSearchNorvikID = verifier->getBillerSearchID();
  return result;
}

std::int16_t refuse(const wchar_t* reason, std::wstring& errorMessage, std::int16_t& errorLength) {
  errorMessage = reason;
  errorLength = static_cast<std::int16_t>(errorMessage.size());
  return refused;
}

}  // namespace

std::int16_t VerifyAccount(Component& component, std::wstring_view bankId, std::wstring_view account,
                           std::wstring& errorMessage, std::int16_t /*ignored*/, bool flag) {
  trace(component, L"Random - VerifyAccount");
  return reportedTrap(component, L"Random.VerifyAccount", refused, [&]() -> std::int16_t {
    if (account.find(L' ') != std::wstring_view::npos) {
      component.services.messages.show(L"Please do not enter any blank characters in the account number.",
                                       applicationTitle, MessageBoxes::Icon::critical, MessageBoxes::Buttons::ok);
      return refused;
    }
    const std::wstring_view number = trimmed(account);
    if (number.size() < 4) {
      errorMessage = L"Account number should not be less than four characters.";
      return refused;
    }
    if (!std::ranges::all_of(number, [](wchar_t c) { return isDigit(c) || isCapital(c); })) {
      errorMessage =
          L"The account entered contains invalid characters.  Valid accounts uppercase alpha and/or numeric "
          L"characters.";
      return refused;
    }
    const bool oneTooLong = trimmed(bankId).size() == bankIdLength + 1;
    const std::wstring_view id = oneTooLong ? trimmed(bankId).substr(0, bankIdLength) : bankId;
    const std::wstring paddedId = PadLeft(component, id, bankIdLength);
    const std::wstring paddedAccount = PadRight(component, account, accountLength);
    if (trimmed(paddedId).empty()) return notAsked;

    const auto verifier = createVerifier(component);
    verifier->putBankIdLength(bankIdLength);
    verifier->putAccountLength(accountLength);
    std::int16_t secondResult = 0;
    return verifier->VerifyAccount(paddedId, paddedAccount, flag, errorMessage, secondResult);
  });
}

std::optional<std::int16_t> ValidateBankId(Component& component, std::wstring_view bankId, std::wstring& errorMessage,
                                           std::int16_t& errorLength, bool flag) {
  trace(component, L"Random - ValidateBankId");
  return reportedTrap(component, L"Random.ValidateBankId", std::optional<std::int16_t>(),
                      [&]() -> std::optional<std::int16_t> {
                        errorMessage.clear();
                        if (trimmed(bankId).empty()) return refuse(invalidBankId, errorMessage, errorLength);
                        // Copies: the verifier may let messages through before it gets them.
                        return askVerifier(component, [&, id = std::wstring(bankId)](AccountVerifier& verifier) {
                          return verifier.ValidateBankId(id, flag, errorMessage, errorLength);
                        });
                      });
}

std::optional<std::int16_t> ValidateBankAccount(Component& component, std::wstring_view bankId,
                                                std::wstring_view transit, std::wstring_view account,
                                                std::wstring& errorMessage, std::int16_t& errorLength, bool flag) {
  trace(component, L"Random - ValidateBankAccount");
  return reportedTrap(component, L"Random.ValidateBankAccount", std::optional<std::int16_t>(),
                      [&]() -> std::optional<std::int16_t> {
                        errorMessage.clear();
                        if (trimmed(bankId).empty() || trimmed(transit).empty() || trimmed(account).empty()) {
                          return refuse(invalidBankAccount, errorMessage, errorLength);
                        }
                        return askVerifier(component, [&, id = std::wstring(bankId), branch = std::wstring(transit),
                                                       number = std::wstring(account)](AccountVerifier& verifier) {
                          return verifier.ValidateBankAccount(id, branch, number, errorMessage, errorLength, flag);
                        });
                      });
}

bool ValidateABANumber(Component& component, std::wstring_view routingNumber, bool domestic) {
  trace(component, L"Random - ValidateABANumber");
  constexpr std::size_t digits = 9;
  if (!domestic) {
    const std::wstring_view prefix = routingNumber.substr(0, 2);
    if (prefix.size() < 2 || !isDigit(prefix[0]) || !isDigit(prefix[1])) return false;
    const int region = 10 * (prefix[0] - L'0') + prefix[1] - L'0';
    constexpr std::pair<int, int> assigned[] = {{1, 12}, {21, 32}, {61, 72}};
    const auto holds = [region](const auto& range) { return range.first <= region && region <= range.second; };
    if (std::ranges::none_of(assigned, holds)) return false;
  }
  const std::wstring_view number = trimmed(routingNumber);
  if (number.size() != digits) return false;
  constexpr int weights[] = {3, 7, 1};
  int sum = 0;
  for (std::size_t i = 0; i < digits; ++i) {
    if (isDigit(number[i])) sum += weights[i % std::size(weights)] * (number[i] - L'0');
  }
  return sum % 10 == 0;
}

}  // namespace nv::Random
