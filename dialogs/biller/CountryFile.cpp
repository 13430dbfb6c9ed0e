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

  /// The next value, trimmed, and whether it was the last one of its line. The value is good until the next call.
  std::wstring_view next(bool& endsLine) {
    skipBlanks();
    if (!rest_.empty() && rest_.front() == L'"') return quoted(endsLine);
    const std::size_t end = std::min(rest_.find_first_of(L",\r\n"), rest_.size());
    const std::wstring_view value = trimmed(rest_.substr(0, end));
    rest_.remove_prefix(end);
    endsLine = passSeparator();
    return value;
  }

 private:
  std::wstring_view quoted(bool& endsLine) {
    rest_.remove_prefix(1);
    quoted_.clear();
    for (;;) {
      const std::size_t end = std::min(rest_.find(L'"'), rest_.size());
      quoted_ += rest_.substr(0, end);
      rest_.remove_prefix(std::min(end + 1, rest_.size()));
      if (rest_.empty() || rest_.front() != L'"') break;
      quoted_ += L'"';  // a doubled quote stands for one
      rest_.remove_prefix(1);
    }
    rest_.remove_prefix(std::min(rest_.find_first_of(L",\r\n"), rest_.size()));
    endsLine = passSeparator();
    return trimmed(quoted_);
  }

  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(L' '), rest_.size())); }

  /// Passes a comma or the end of a line. Returns whether it was the latter.
  bool passSeparator() {
    if (rest_.empty()) return true;
    const bool comma = rest_.front() == L',';
    const bool twoCharacters = rest_.starts_with(L"\r\n");
    rest_.remove_prefix(twoCharacters ? 2 : 1);
    return !comma;
  }

  std::wstring_view rest_;
  std::wstring quoted_;
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
  if (!values.atEnd()) values.next(endsLine);
  std::wstring cells[countryColumns];
  while (!values.atEnd()) {
    std::size_t count = 0;
    do {
      const std::wstring_view value = values.next(endsLine);
      if (count < countryColumns) cells[count] = value;
      ++count;
    } while (!endsLine);
    std::wstring& code = cells[countryCode];
    std::ranges::transform(code, code.begin(), asciiUpper);
    if (count < countryColumns || !isCode(code)) continue;
    if (code == canada[countryCode] || code == unitedStates[countryCode] || !offered(code)) continue;
    rows.add({cells[countryName], code, cells[countryPhone]});
  }
  return rows;
}

}  // namespace nv
