#include "scenario/Keys.h"

#include <algorithm>
#include <optional>
#include <string>

#include "scenario/Failure.h"
#include "scenario/Text.h"

namespace nv::scenario {

namespace {

struct NamedKey {
  const wchar_t* name;
  int code;
};

constexpr NamedKey modifiers[] = {{L"Shift+", keys::shift}, {L"Control+", keys::control}, {L"Alt+", keys::alt}};

constexpr NamedKey namedKeys[] = {
    {L"Tab", 0x09},    {L"Enter", 0x0D},  {L"Escape", 0x1B}, {L"Space", 0x20},  {L"Backspace", 0x08},
    {L"Delete", 0x2E}, {L"Insert", 0x2D}, {L"Home", 0x24},   {L"End", 0x23},    {L"Left", 0x25},
    {L"Right", 0x27},  {L"Up", 0x26},     {L"Down", 0x28},   {L"PageUp", 0x21}, {L"PageDown", 0x22},
};
constexpr int f1 = 0x70;

std::optional<int> keyOf(std::wstring_view name) {
  const auto* const named = std::ranges::find(namedKeys, name, &NamedKey::name);
  if (named != std::end(namedKeys)) return named->code;
  for (int number = 1; number <= 12; ++number) {
    if (name == L"F" + std::to_wstring(number)) return f1 + number - 1;
  }
  if (name.size() != 1) return std::nullopt;
  const wchar_t c = name.front();
  // Letters and digits have the code of their (upper-case) character.
  if (c >= L'a' && c <= L'z') return c - L'a' + L'A';
  if ((c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9')) return c;
  return std::nullopt;
}

}  // namespace

Chord chordOf(std::wstring_view name) {
  Chord chord;
  std::wstring_view key = name;
  for (bool found = true; found;) {
    found = false;
    for (const NamedKey& modifier : modifiers) {
      if (!key.starts_with(modifier.name)) continue;
      chord.push_back(modifier.code);
      key.remove_prefix(std::wstring_view(modifier.name).size());
      found = true;
    }
  }
  const auto code = keyOf(key);
  if (!code) {
    std::vector<std::wstring> names;
    for (const NamedKey& known : namedKeys) names.emplace_back(known.name);
    throw Failure(L"there is no key " + std::wstring(name) + didYouMean(key, names));
  }
  chord.push_back(*code);
  return chord;
}

}  // namespace nv::scenario
