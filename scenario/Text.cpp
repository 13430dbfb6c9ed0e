#include "scenario/Text.h"

#include <algorithm>
#include <codecvt>
#include <cwchar>
#include <locale>
#include <stdexcept>
#include <utility>

#include "scenario/Failure.h"

namespace nv::scenario {

namespace {

/// How many letters must be put in, left out or replaced to make one word the other, whatever their case.
std::size_t slips(std::wstring_view one, std::wstring_view other) {
  const auto lower = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; };
  std::vector<std::size_t> row(other.size() + 1);
  for (std::size_t j = 0; j < row.size(); ++j) row[j] = j;
  for (std::size_t i = 0; i < one.size(); ++i) {
    std::size_t corner = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < other.size(); ++j) {
      const std::size_t replacing = corner + (lower(one[i]) == lower(other[j]) ? 0 : 1);
      corner = row[j + 1];
      row[j + 1] = std::min({replacing, row[j] + 1, corner + 1});
    }
  }
  return row.back();
}

}  // namespace

std::wstring fromUtf8(const std::string& bytes) {
  try {
    return std::wstring_convert<std::codecvt_utf8<wchar_t>>().from_bytes(bytes);
  } catch (const std::range_error&) {
    throw Failure(L"the text is not in UTF-8");
  }
}

std::wstring inQuotes(std::wstring_view text) {
  std::wstring result = L"\"";
  for (const wchar_t c : text) {
    switch (c) {
      case L'"':
        result += L"\\\"";
        break;
      case L'\\':
        result += L"\\\\";
        break;
      case L'\r':
        result += L"\\r";
        break;
      case L'\n':
        result += L"\\n";
        break;
      case L'\t':
        result += L"\\t";
        break;
      default:
        result += c;
    }
  }
  return result += L'"';
}

std::wstring replaced(std::wstring text, std::wstring_view from, std::wstring_view to) {
  for (std::size_t at = text.find(from); at != std::wstring::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::vector<std::wstring> splitLines(std::wstring_view text) {
  std::vector<std::wstring> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L'\n'), text.size());
    std::wstring_view line = text.substr(0, end);
    if (line.ends_with(L'\r')) line.remove_suffix(1);
    lines.emplace_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::wstring joined(std::span<const std::wstring> words) {
  std::wstring text;
  for (const std::wstring& word : words) text.append(text.empty() ? L"" : L" ").append(word);
  return text;
}

std::wstring didYouMean(std::wstring_view word, std::span<const std::wstring> names) {
  const auto nearest = std::ranges::min_element(names, {}, [word](const auto& name) { return slips(word, name); });
  if (nearest == names.end() || slips(word, *nearest) > word.size() / 3) return {};
  return L"; did you mean " + *nearest + L"?";
}

std::wstring CallError::shown() const {
  return L"error " + shownNumber(number_) + L" " + inQuotes(description_);
}

std::wstring shownNumber(std::int32_t number) {
  if (number >= 0) return std::to_wstring(number);
  wchar_t text[16];
  std::swprintf(text, std::size(text), L"0x%08X", static_cast<unsigned>(number));
  return text;
}

}  // namespace nv::scenario
