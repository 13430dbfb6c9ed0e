// What the biller dialog offers to choose from, made of what the host and the fixed tables say. The country file is in
// CountryFile.h.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "component/core/StringArray.h"
#include "forms/RowTable.h"

namespace nv {

/// The codes of the states, the District of Columbia, the territories and the freely associated states.
std::span<const wchar_t* const> unitedStatesCodes();

/// The codes of a province/postal-code text (units of two letters and a postal-code letter), sorted; one that follows
/// itself is listed once.
std::vector<std::wstring> provinceCodes(std::wstring_view provpostalstr);

/// The six common currencies, a separator row, then the host's others in its order.
/// @param offered two rows (codes, descriptions), or texts of the form "CODE", "CODE - description" or
/// "CODE;description". Blank entries are passed over, a code listed twice appears once.
forms::RowTable currencyRows(const StringArray& offered);

/// The codes in a text in which commas, semicolons, bars and blanks separate them, in capitals.
std::vector<std::wstring> countryCodes(std::wstring_view list);

}  // namespace nv
