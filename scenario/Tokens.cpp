#include "scenario/Tokens.h"

#include <algorithm>
#include <cwchar>
#include <limits>
#include <optional>

#include "scenario/Failure.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

constexpr std::wstring_view blanks = L" \t";
constexpr std::wstring_view wordEnds = L" \t\"[]";

std::optional<std::int32_t> numberOf(const std::wstring& word) {
  if (word.empty()) return std::nullopt;
  const bool hexadecimal = word.starts_with(L"0x");
  wchar_t* end = nullptr;
  const long long number = std::wcstoll(word.c_str(), &end, hexadecimal ? 16 : 10);
  using Limits = std::numeric_limits<std::int32_t>;
  const bool fits = number >= Limits::min() && number <= (hexadecimal ? 0xFFFFFFFFLL : Limits::max());
  if (*end != L'\0' || !fits) return std::nullopt;
  return static_cast<std::int32_t>(number);
}

/// The character behind a backslash.
wchar_t escaped(wchar_t c) {
  switch (c) {
    case L'"':
    case L'\\':
      return c;
    case L'r':
      return L'\r';
    case L'n':
      return L'\n';
    case L't':
      return L'\t';
    default:
      throw Failure(std::wstring(L"a text has no escape \\") + c);
  }
}

std::wstring braced(const std::wstring& name) {
  return L"{" + name + L"}";
}

/// Cuts the text in quotes off the front of `rest`, its opening quote first.
std::wstring cutText(std::wstring_view& rest) {
  std::wstring text;
  for (std::size_t i = 1; i < rest.size(); ++i) {
    if (rest[i] == L'"') {
      rest.remove_prefix(i + 1);
      return text;
    }
    if (rest[i] == L'\\' && i + 1 < rest.size()) {
      text += escaped(rest[++i]);
    } else {
      text += rest[i];
    }
  }
  throw Failure(L"the closing quote of a text is missing");
}

}  // namespace

Tokens::Tokens(std::wstring_view line, const std::vector<Substitution>& substitutions) {
  for (std::wstring_view rest = line;;) {
    rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
    if (rest.empty() || rest.front() == L'#') return;
    if (rest.front() == L'"') {
      std::wstring text = cutText(rest);
      for (const auto& [name, value] : substitutions) text = replaced(std::move(text), braced(name), value);
      tokens_.push_back({Kind::text, std::move(text)});
    } else if (rest.front() == L'[' || rest.front() == L']') {
      tokens_.push_back({rest.front() == L'[' ? Kind::open : Kind::close, {}});
      rest.remove_prefix(1);
    } else {
      const std::size_t end = std::min(rest.find_first_of(wordEnds), rest.size());
      tokens_.push_back({Kind::word, std::wstring(rest.substr(0, end))});
      rest.remove_prefix(end);
    }
  }
}

bool Tokens::take(std::wstring_view word) {
  if (!nextIsWord() || tokens_[next_].text != word) return false;
  ++next_;
  return true;
}

const std::wstring& Tokens::take(Kind kind, const wchar_t* missing) {
  if (!nextIs(kind)) throw Failure(missing);
  return tokens_[next_++].text;
}

std::wstring Tokens::word() {
  return take(Kind::word, L"a word is missing");
}

std::wstring Tokens::text() {
  return take(Kind::text, L"a text in double quotes is missing");
}

std::wstring Tokens::wordOrText() {
  return nextIsWord() ? word() : text();
}

std::int32_t Tokens::number() {
  const std::wstring digits = word();
  const auto number = numberOf(digits);
  if (!number) throw Failure(digits + L" is no number");
  return *number;
}

std::int16_t Tokens::shortNumber() {
  const std::int32_t wide = number();
  const auto narrow = static_cast<std::int16_t>(wide);
  if (narrow != wide) throw Failure(std::to_wstring(wide) + L" is no 16-bit number");
  return narrow;
}

Value Tokens::value() {
  if (nextIs(Kind::text)) return text();
  if (nextIs(Kind::open)) return array();
  if (take(L"true")) return true;
  if (take(L"false")) return false;
  return shortNumber();
}

TextList Tokens::list() {
  TextList texts;
  while (nextIs(Kind::text)) texts.push_back(text());
  take(Kind::close, L"the closing bracket of an array is missing");
  return texts;
}

Value Tokens::array() {
  take(Kind::open, L"an array is missing");
  if (!nextIs(Kind::open)) return list();
  TextTable table;
  while (nextIs(Kind::open)) {
    ++next_;
    table.push_back(list());
    if (table.back().size() != table.front().size()) throw Failure(L"the rows of an array differ in length");
  }
  take(Kind::close, L"the closing bracket of an array is missing");
  return table;
}

Tokens Tokens::cutFrom(std::span<const std::wstring_view> words) {
  const auto isTruth = [this](std::size_t i) {
    return i < tokens_.size() && (tokens_[i].text == L"true" || tokens_[i].text == L"false");
  };
  std::size_t at = std::min(next_ + 1, tokens_.size());
  for (; at < tokens_.size(); ++at) {
    const auto& [kind, text] = tokens_[at];
    if (kind == Kind::word && std::ranges::find(words, text) != words.end() && !isTruth(at + 1)) break;
  }
  Tokens rest;
  rest.tokens_.assign(tokens_.begin() + static_cast<std::ptrdiff_t>(at), tokens_.end());
  tokens_.resize(at);
  return rest;
}

void Tokens::end() const {
  if (!atEnd()) throw Failure(L"there is more on the line than the command takes");
}

}  // namespace nv::scenario
