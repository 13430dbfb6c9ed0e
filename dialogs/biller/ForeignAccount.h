// The two numbers of a foreign bank account as the record keeps them.
#pragma once

#include <string>

#include "component/core/Store.h"
#include "platform/Text.h"

namespace nv {

struct ForeignAccount {
  std::wstring number;  // routing number, or SWIFT code
  std::wstring account;
};

/// The record joins the two only for a bank of the United States: the account field holds the 9-digit routing number,
/// directly followed by the account, and the SWIFT code is empty. A biller accepted in US mode keeps them apart, with
/// the routing number in place of the SWIFT code.
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
