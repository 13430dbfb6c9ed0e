// The country file, once deciphered: comma-separated values behind a heading.
#pragma once

#include <functional>
#include <string_view>

#include "dialogs/support/CountryColumn.h"
#include "forms/RowTable.h"

namespace nv {

/// Country rows of the file's text that `offered` accepts by their code, behind Canada and the United States, which
/// come first, once, whatever the file holds. The first value is a heading. A record is a name, a two-letter code and a
/// telephone code, each trimmed; a field in double quotes may hold commas. Records that are cut short, or whose code is
/// not two letters, are passed over.
forms::RowTable countryRows(std::wstring_view text, const std::function<bool(std::wstring_view code)>& offered);

}  // namespace nv
