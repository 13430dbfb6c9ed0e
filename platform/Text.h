// Text rules that depend on no locale: they compare code units.
#pragma once

#include <string_view>
#include <vector>

namespace nv {

/// Upper case of the letters a to z; every other character as it is.
constexpr wchar_t asciiUpper(wchar_t c) {
  return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
}

/// Whether the character is one of the letters A to Z.
constexpr bool isCapital(wchar_t c) {
  return c >= L'A' && c <= L'Z';
}

/// Whether the character is one of the digits 0 to 9.
constexpr bool isDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

/// The text without the blanks (code 32, no other) at its ends.
constexpr std::wstring_view trimmed(std::wstring_view text) {
  const auto first = text.find_first_not_of(L' ');
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

/// The parts of a text between separators, empty ones included. Views of `text`.
/// @param separators each of these characters separates.
std::vector<std::wstring_view> split(std::wstring_view text, std::wstring_view separators);

/// Takes from a text what stands before its first separator, or all of it, and the separator.
constexpr std::wstring_view taken(std::wstring_view& text, wchar_t separator) {
  const std::wstring_view part = text.substr(0, text.find(separator));
  text.remove_prefix(part.size() == text.size() ? part.size() : part.size() + 1);
  return part;
}

}  // namespace nv
