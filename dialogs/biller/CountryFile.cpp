#include "dialogs/biller/CountryFile.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "platform/Text.h"

namespace nv {

namespace {

constexpr std::wstring_view canada[] = {L"Canada", L"CA", L"1"};
constexpr std::wstring_view unitedStates[] = {L"United States", L"US", L"1"};

std::wstring_view withoutBlanks(std::wstring_view text) {
  const auto isBlank = [](wchar_t c) { return c == L' ' || c == L'\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// Takes the next line and its end: CR, LF or both.
std::wstring_view takenLine(std::wstring_view& text) {
  const auto ends = [](wchar_t c) { return c == L'\r' || c == L'\n'; };  // a search for two calls a function for each
  const std::wstring_view line(text.begin(), std::ranges::find_if(text, ends));
  text.remove_prefix(line.size());
  text.remove_prefix(text.starts_with(L"\r\n") ? 2 : std::min<std::size_t>(text.size(), 1));
  return line;
}

/// The comma-separated fields of a line, without the blanks and tabs around them.
class Fields {
 public:
  /// The line's fields, until the next call.
  std::span<const std::wstring_view> of(std::wstring_view line) {
    fields_.clear();
    unquoted_.clear();
    unquoted_.reserve(line.size());  // fields refer to it
    for (bool more = true; more;) {
      line = withoutBlanks(line);
      const bool quoted = line.starts_with(L'"');
      const std::wstring_view inQuotes = quoted ? takenQuoted(line) : std::wstring_view();
      more = line.find(L',') != line.npos;
      const std::wstring_view bare = taken(line, L',');
      fields_.push_back(withoutBlanks(quoted ? inQuotes : bare));
    }
    return fields_;
  }

 private:
  /// What stands between the quote that the line begins with and the one that closes it, or the line's end. A doubled
  /// quote stands for one.
  std::wstring_view takenQuoted(std::wstring_view& line) {
    const std::size_t start = unquoted_.size();
    for (;;) {
      line.remove_prefix(1);
      unquoted_ += taken(line, L'"');
      if (!line.starts_with(L'"')) return std::wstring_view(unquoted_).substr(start);
      unquoted_ += L'"';
    }
  }

  std::vector<std::wstring_view> fields_;
  std::wstring unquoted_;
};

bool isCode(std::wstring_view code) {
  const auto isLetter = [](wchar_t c) { return asciiUpper(c) >= L'A' && asciiUpper(c) <= L'Z'; };
  return code.size() == 2 && isLetter(code[0]) && isLetter(code[1]);
}

}  // namespace

forms::RowTable countryRows(std::wstring_view text, const std::function<bool(std::wstring_view)>& offered) {
  constexpr wchar_t controlZ = 0x1A;
  text = text.substr(0, std::min(text.find(L'\0'), text.find(controlZ)));
  forms::RowTable rows(countryColumns);
  rows.reserve(text.size() / 16, text.size());
  rows.add(canada);
  rows.add(unitedStates);

  Fields fields;
  std::wstring name;
  for (bool heading = true; !text.empty(); heading = false) {
    const auto values = fields.of(takenLine(text)).subspan(heading ? 1 : 0);
    if (values.size() < 2) continue;
    const bool withPhone = values.size() > 2;
    const std::size_t codeAt = values.size() - (withPhone ? 2 : 1);
    const std::wstring_view given = values[codeAt];
    if (!isCode(given)) continue;
    const wchar_t letters[] = {asciiUpper(given[0]), asciiUpper(given[1])};
    const std::wstring_view code(letters, std::size(letters));
    if (code == canada[countryCode] || code == unitedStates[countryCode] || !offered(code)) continue;
    name = values.front();  // with the commas that took it apart
    for (const std::wstring_view more : values.subspan(1, codeAt - 1)) name.append(L", ").append(more);
    rows.add({withoutBlanks(name), code, withPhone ? values.back() : std::wstring_view()});
  }
  return rows;
}

}  // namespace nv
