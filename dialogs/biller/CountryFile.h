// The country file, once deciphered: comma-separated values behind a heading.
#pragma once

#include <functional>
#include <string_view>

#include "dialogs/support/CountryColumn.h"
#include "forms/RowTable.h"

namespace nv {

/// Country rows of the file's text that `offered` accepts by their code, behind Canada and the United States, which
/// come first, once, whatever the file holds. The text ends at its first NUL or Ctrl-Z. Its first value is a heading. A
/// record is a line: a name, a two-letter code and a telephone code, which may be missing, each without blanks and tabs
/// around it. A field in double quotes may hold commas; of more than three fields the last two are the codes, the
/// others the name. Lines with fewer than two fields, or whose code is not two letters, are passed over.
forms::RowTable countryRows(std::wstring_view text, const std::function<bool(std::wstring_view code)>& offered);

}  // namespace nv
