// The two numbers of a foreign bank account as the record keeps them.
#pragma once

#include <string>

#include "component/Store.h"

namespace nv {

struct ForeignAccount {
  std::wstring number;  // routing number, or SWIFT code
  std::wstring account;
};

/// Of a bank of the United States the account field holds the 9-digit routing number followed by the account, while the
/// field for the SWIFT code is empty; otherwise the two are kept apart.
inline ForeignAccount foreignAccount(const Store& store) {
  constexpr std::size_t routingNumberLength = 9;
  const std::wstring& account = store.PayeeFXBankAccount;
  const bool joined = store.PayeeFXBankCountry == L"US" && store.PayeeFXBankSwift.empty();
  if (!joined) return {store.PayeeFXBankSwift, account};
  return {account.substr(0, routingNumberLength),
          account.size() > routingNumberLength ? account.substr(routingNumberLength) : std::wstring()};
}

}  // namespace nv
