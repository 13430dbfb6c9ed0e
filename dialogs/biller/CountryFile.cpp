#include "dialogs/biller/CountryFile.h"

#include <algorithm>
#include <string>

#include "platform/Text.h"

namespace nv {

namespace {

constexpr std::wstring_view canada[] = {L"Canada", L"CA", L"1"};
constexpr std::wstring_view unitedStates[] = {L"United States", L"US", L"1"};

/// Takes comma-separated values from a text, one after the other.
class Values {
 public:
  explicit Values(std::wstring_view text) : rest_(text) {}

  bool atEnd() const { return rest_.empty(); }

  /// The next value, trimmed, and whether it was the last one of its line. A value in quotes lies in the buffer.
  std::wstring_view next(std::wstring& buffer, bool& endsLine) {
    skipBlanks();
    if (!rest_.empty() && rest_.front() == L'"') return quoted(buffer, endsLine);
    const std::size_t end = endOfValue();
    const std::wstring_view value = trimmed(rest_.substr(0, end));
    rest_.remove_prefix(end);
    endsLine = passSeparator();
    return value;
  }

 private:
  std::wstring_view quoted(std::wstring& buffer, bool& endsLine) {
    rest_.remove_prefix(1);
    buffer.clear();
    for (;;) {
      const std::size_t end = std::min(rest_.find(L'"'), rest_.size());
      buffer += rest_.substr(0, end);
      rest_.remove_prefix(std::min(end + 1, rest_.size()));
      if (rest_.empty() || rest_.front() != L'"') break;
      buffer += L'"';  // a doubled quote stands for one
      rest_.remove_prefix(1);
    }
    rest_.remove_prefix(endOfValue());
    endsLine = passSeparator();
    return trimmed(buffer);
  }

  /// Position of the next separator. A plain loop: the search for one of several characters calls a function for each.
  std::size_t endOfValue() const {
    const auto separates = [](wchar_t c) {
      return c <= L',' && (c == L',' || c == L'\r' || c == L'\n');  // nearly all are beyond the comma
    };
    return static_cast<std::size_t>(std::ranges::find_if(rest_, separates) - rest_.begin());
  }

  void skipBlanks() {
    while (!rest_.empty() && rest_.front() == L' ') rest_.remove_prefix(1);
  }

  /// Passes a comma or the end of a line. Returns whether it was the latter.
  bool passSeparator() {
    if (rest_.empty()) return true;
    const bool comma = rest_.front() == L',';
    const bool twoCharacters = rest_.starts_with(L"\r\n");
    rest_.remove_prefix(twoCharacters ? 2 : 1);
    return !comma;
  }

  std::wstring_view rest_;
};

bool isCode(std::wstring_view code) {
  const auto isLetter = [](wchar_t c) { return asciiUpper(c) >= L'A' && asciiUpper(c) <= L'Z'; };
  return code.size() == 2 && isLetter(code[0]) && isLetter(code[1]);
}

}  // namespace

forms::RowTable countryRows(std::wstring_view text, const std::function<bool(std::wstring_view)>& offered) {
  forms::RowTable rows(countryColumns);
  rows.reserve(text.size() / 16, text.size());
  rows.add(canada);
  rows.add(unitedStates);

  Values values(text);
  bool endsLine = false;
  std::wstring_view cells[countryColumns + 1];  // what lies beyond the columns comes last
  std::wstring buffers[countryColumns + 1];
  if (!values.atEnd()) values.next(buffers[0], endsLine);
  while (!values.atEnd()) {
    std::size_t count = 0;
    do {
      const std::size_t column = std::min<std::size_t>(count, countryColumns);
      cells[column] = values.next(buffers[column], endsLine);
      ++count;
    } while (!endsLine);
    if (count < countryColumns || !isCode(cells[countryCode])) continue;
    const wchar_t letters[] = {asciiUpper(cells[countryCode][0]), asciiUpper(cells[countryCode][1])};
    const std::wstring_view code(letters, std::size(letters));
    if (code == canada[countryCode] || code == unitedStates[countryCode] || !offered(code)) continue;
    rows.add({cells[countryName], code, cells[countryPhone]});
  }
  return rows;
}

}  // namespace nv
