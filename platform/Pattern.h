// Regular expressions over the texts of the forms.
#pragma once

#include <regex>
#include <string_view>

namespace nv {

/// The standard traits, except for the value of a digit: theirs reads it through a string stream, and streams would
/// make up a tenth of the DLL.
struct PatternTraits : std::regex_traits<wchar_t> {
  /// The value of a digit in radix 8, 10 or 16; -1 when it is none.
  static int value(wchar_t digit, int radix) {
    const int number = digit >= L'0' && digit <= L'9'   ? digit - L'0'
                       : digit >= L'a' && digit <= L'f' ? digit - L'a' + 10
                       : digit >= L'A' && digit <= L'F' ? digit - L'A' + 10
                                                        : radix;
    return number < radix ? number : -1;
  }
};

using Pattern = std::basic_regex<wchar_t, PatternTraits>;

}  // namespace nv
