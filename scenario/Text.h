// Texts as scenarios and what is said about them have them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nv::scenario {

/// The text behind UTF-8. Fails with Failure when that is none.
std::wstring fromUtf8(const std::string& bytes);

/// The text in double quotes, as one would write it in a scenario.
std::wstring inQuotes(std::wstring_view text);

/// `text` with every `from` (not empty) replaced.
std::wstring replaced(std::wstring text, std::wstring_view from, std::wstring_view to);

/// The lines of a text, whose ends are CR LF or LF; the end of the last line may be missing.
std::vector<std::wstring> splitLines(std::wstring_view text);

/// The words in a row, separated by blanks.
std::wstring joined(std::span<const std::wstring> words);

/// "; did you mean ...?" with that of the names which a slip of the fingers makes `word`; empty when there is none.
std::wstring didYouMean(std::wstring_view word, std::span<const std::wstring> names);

}  // namespace nv::scenario
