// Captions and codes that several files of the biller dialog speak of.
#pragma once

#include <cstddef>

#include "dialogs/support/CountryColumn.h"

namespace nv {

inline constexpr const wchar_t* domesticTitle = L"Norvik - Biller / Funds Transfer Information";
inline constexpr const wchar_t* accountCaption = L"Bank Account Number to be Credited";
inline constexpr const wchar_t* optionalAccountCaption = L"Bank Account Number to be Credited (Optional)";

inline constexpr const wchar_t* foreignBankExplained =
    L"Payments in currencies other than \"CAD\" (Canadian Dollars) must include specific information about the bank "
    L"account being transferred to.";

inline constexpr const wchar_t* invalidMail = L"Please enter a valid e-mail address with the form 'name@example.com'.";
inline constexpr const wchar_t* invalidWebsite = L"Please enter a valid website with the form\r\n'www.example.com'.";

inline constexpr const wchar_t* helpImage = L"HELPIMAGE";
inline constexpr const wchar_t* helpImageCaption = L"Help";
inline constexpr const wchar_t* requiredMark = L"*";

/// The columns of the currency list.
enum CurrencyColumn : std::size_t { currencyDescription, currencyCode, currencyColumns };

inline constexpr const wchar_t* canadianDollar = L"CAD";
/// The row between the common currencies and the host's others; never a currency.
inline constexpr const wchar_t* separatorCode = L"---";

inline constexpr const wchar_t* canadaCode = L"CA";
inline constexpr const wchar_t* unitedStatesCode = L"US";

/// PayeeIndBusnTag.
inline constexpr const wchar_t* individualTag = L"1";
inline constexpr const wchar_t* businessTag = L"2";
/// PayeeIndBussFlg.
inline constexpr const wchar_t* individualFlag = L"I";
inline constexpr const wchar_t* businessFlag = L" ";

}  // namespace nv
