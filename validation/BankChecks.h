// The bank checks of module Random. Each writes its label to the trace. Those that ask the account verifier report
// run-time errors under their own names; the result is 0 then. Results of the verifier: 1 valid, 2 doubtful where a
// caller distinguishes it, anything else not valid.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "component/core/Component.h"

namespace nv::Random {

/// Has the verifier check an account of a bank.
/// @param bankId brought to 6 characters; of 7, the first 6 count. Blank: the result is 2 and nobody is asked.
/// @param account at least 4 capital letters and digits; if it contains a blank, the user is told and the result is 0.
/// @param errorMessage set when a rule here refuses the account, else the verifier's.
/// @param ignored has no effect.
std::int16_t VerifyAccount(Component& component, std::wstring_view bankId, std::wstring_view account,
                           std::wstring& errorMessage, std::int16_t ignored, bool flag);

/// The reason for a refused bank id or account for which nobody gives one.
inline constexpr const wchar_t* invalidBankId = L"Invalid bank id";
inline constexpr const wchar_t* invalidBankAccount = L"Invalid bank account";

/// Has the verifier check a bank id. The session id that it returns with a valid result is stored.
/// @param errorLength length of `errorMessage`, as the verifier gives it.
/// @return nothing when a run-time error ended the check, which has been reported then.
std::optional<std::int16_t> ValidateBankId(Component& component, std::wstring_view bankId, std::wstring& errorMessage,
                                           std::int16_t& errorLength, bool flag);

/// Has the verifier check an account with its bank id and transit. Else as ValidateBankId.
std::optional<std::int16_t> ValidateBankAccount(Component& component, std::wstring_view bankId,
                                                std::wstring_view transit, std::wstring_view account,
                                                std::wstring& errorMessage, std::int16_t& errorLength, bool flag);

/// Whether a United States routing number has 9 digits and the right checksum and, unless the biller is a domestic one,
/// an assigned prefix.
/// @param domestic the biller's mode: in the dialog, that of its set-up.
bool ValidateABANumber(Component& component, std::wstring_view routingNumber, bool domestic);

}  // namespace nv::Random
