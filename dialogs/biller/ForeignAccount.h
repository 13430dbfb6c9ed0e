// The two numbers of a foreign bank account as the record keeps them.
#pragma once

#include <algorithm>
#include <string>

#include "component/core/Store.h"
#include "platform/Text.h"

namespace nv {

struct ForeignAccount {
  std::wstring number;  // routing number, or SWIFT code
  std::wstring account;
};

/// Of a bank of the United States the account field holds the 9-digit routing number followed by the account, unless
/// the routing number stands in the field for the SWIFT code, where accepting such a biller puts it. Otherwise the two
/// are kept apart.
inline ForeignAccount foreignAccount(const Store& store) {
  constexpr std::size_t routingNumberLength = 9;
  const std::wstring& account = store.PayeeFXBankAccount;
  const std::wstring& swift = store.PayeeFXBankSwift;
  const bool joined = store.PayeeFXBankCountry == L"US" && trimmed(swift).empty();
  if (!joined) return {swift, account};
  return {account.substr(0, routingNumberLength),
          account.size() > routingNumberLength ? account.substr(routingNumberLength) : std::wstring()};
}

}  // namespace nv
