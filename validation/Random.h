// Module Random: the stateless helpers and checks that the dialogs share. Every procedure writes its label to the trace
// and works on the component that it is handed. None raises a run-time error to its caller unless it says so.
#pragma once

#include <string>
#include <string_view>

#include "component/Component.h"
#include "forms/ComboBox.h"

namespace nv::Random {

/// The maker's web site, which OpenBrowser opens when no other address is handed in.
inline constexpr std::wstring_view makersWebSite = L"https://www.norvik.example/";

// Text

/// Keeps the characters with the codes 32, 33 and 35 to 125, in order, and drops every other one: the double quote, the
/// tilde, control characters and everything beyond ASCII. Does not trim.
std::wstring CleanseCharacters(Component& component, std::wstring_view text);

/// The rightmost `length` characters of the text, a shorter text with blanks put in front. A negative length counts as
/// 0.
std::wstring PadLeft(Component& component, std::wstring_view text, int length);

/// The leftmost `length` characters of the text, a shorter text with blanks put behind. A negative length counts as 0.
std::wstring PadRight(Component& component, std::wstring_view text, int length);

/// Whether the text holds at least one letter A to Z once it is in upper case. (The name says more than the rule.)
Flag16 IsAlpha(Component& component, std::wstring_view text);

// Files and machine

/// Whether there is a file at the path.
Flag16 Fileexists(Component& component, const std::wstring& path);

/// Stores the Windows and the system directory, each with a trailing backslash.
void Get_Windows_Dir(Component& component);

// User interface

/// Completes what is typed in a combo box from its entries, whatever the case: the first that begins so becomes the
/// text, with the completed part selected, so that further typing replaces it. Without one nothing changes.
void ComboBoxAutoComplete(Component& component, forms::ComboBox& comboBox);

/// Opens a web page in the user's browser, maximised. Tells the user when that did not work; a run-time error is
/// reported under "Random.OpenBrowser".
/// @param address of http or https, or without a scheme. Anything else, as a path or a program, opens nothing and is
/// reported as an error, but not to the user.
void OpenBrowser(Component& component, std::wstring_view address = makersWebSite);

// Address

/// Whether the host's province/postal-code text has the province.
/// @param province two letters; compared to the letter.
Flag16 lookupProvince(Component& component, std::wstring_view province);

/// Whether postal codes of a province may begin with a letter.
/// @param code the province's two letters and the postal code's first.
Flag16 LookupPostcode(Component& component, std::wstring_view code);

/// 1 when the street address begins as a post-office box does, else 0. A run-time error is reported under
/// "Random.Has_PO_Box_Address".
std::int16_t Has_PO_Box_Address(Component& component, std::wstring_view street);

// Bank numbers. The checks that ask the account verifier report run-time errors under their own names; the result is 0
// then. Results of the verifier: 1 valid, 2 doubtful where a caller distinguishes it, anything else not valid.

/// Has the verifier check an account of a bank.
/// @param bankId brought to 6 characters; of 7, the first 6 count. Blank: the result is 2 and nobody is asked.
/// @param account at least 4 capital letters and digits; with a blank in it the user is told and the result is 0.
/// @param errorMessage set when a rule here refuses the account, else the verifier's.
/// @param ignored kept for the callers' sake.
std::int16_t VerifyAccount(Component& component, std::wstring_view bankId, std::wstring_view account,
                           std::wstring& errorMessage, std::int16_t ignored, bool flag);

/// Has the verifier check a bank id. A session id that the verifier hands out with a valid result is kept.
/// @param errorLength length of `errorMessage`, as the verifier gives it.
std::int16_t ValidateBankId(Component& component, std::wstring_view bankId, std::wstring& errorMessage,
                            std::int16_t& errorLength, bool flag);

/// Has the verifier check an account with its bank id and transit. Else as ValidateBankId.
std::int16_t ValidateBankAccount(Component& component, std::wstring_view bankId, std::wstring_view transit,
                                 std::wstring_view account, std::wstring& errorMessage, std::int16_t& errorLength,
                                 bool flag);

/// Whether a United States routing number has 9 digits and the right checksum and, unless the biller is a domestic one,
/// an assigned prefix.
Flag16 ValidateABANumber(Component& component, std::wstring_view routingNumber);

/// Whether a business number is acceptable: 9 digits that are not made up, and the verifier accepts them. What follows
/// the ninth character does not count. A run-time error is reported under "Random.VerifyBusinessNumber".
Flag16 VerifyBusinessNumber(Component& component, std::wstring_view businessNumber);

}  // namespace nv::Random
