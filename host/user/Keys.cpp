#include "host/user/Keys.h"

#include <algorithm>
#include <string>

namespace nv::host {

namespace {

struct NamedKey {
  const wchar_t* name;
  WORD code;
};

constexpr NamedKey modifiers[] = {{L"Shift+", VK_SHIFT}, {L"Control+", VK_CONTROL}, {L"Alt+", VK_MENU}};

constexpr NamedKey namedKeys[] = {
    {L"Tab", VK_TAB},        {L"Enter", VK_RETURN},  {L"Escape", VK_ESCAPE}, {L"Space", VK_SPACE},
    {L"Backspace", VK_BACK}, {L"Delete", VK_DELETE}, {L"Insert", VK_INSERT}, {L"Home", VK_HOME},
    {L"End", VK_END},        {L"Left", VK_LEFT},     {L"Right", VK_RIGHT},   {L"Up", VK_UP},
    {L"Down", VK_DOWN},      {L"PageUp", VK_PRIOR},  {L"PageDown", VK_NEXT},
};

/// Keys of the block between letters and number pad, which the number pad has a second time.
constexpr WORD extendedKeys[] = {VK_DELETE, VK_INSERT, VK_HOME, VK_END,   VK_LEFT,
                                 VK_RIGHT,  VK_UP,     VK_DOWN, VK_PRIOR, VK_NEXT};

std::optional<WORD> keyOf(std::wstring_view name) {
  const auto* const named = std::ranges::find(namedKeys, name, &NamedKey::name);
  if (named != std::end(namedKeys)) return named->code;
  for (WORD number = 1; number <= 12; ++number) {
    if (name == L"F" + std::to_wstring(number)) return static_cast<WORD>(VK_F1 + number - 1);
  }
  if (name.size() != 1) return std::nullopt;
  const wchar_t c = name.front();
  // Letters and digits have the code of their (upper-case) character.
  if (c >= L'a' && c <= L'z') return static_cast<WORD>(c - L'a' + L'A');
  if ((c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9')) return static_cast<WORD>(c);
  return std::nullopt;
}

INPUT keyEvent(WORD code, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = code;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(code, MAPVK_VK_TO_VSC));
  if (std::ranges::find(extendedKeys, code) != std::end(extendedKeys)) input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
  if (up) input.ki.dwFlags |= KEYEVENTF_KEYUP;
  return input;
}

INPUT characterEvent(wchar_t character, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = character;
  input.ki.dwFlags = KEYEVENTF_UNICODE | (up ? KEYEVENTF_KEYUP : 0U);
  return input;
}

}  // namespace

std::optional<Chord> chordOf(std::wstring_view name) {
  Chord chord;
  for (bool found = true; found;) {
    found = false;
    for (const NamedKey& modifier : modifiers) {
      if (!name.starts_with(modifier.name)) continue;
      chord.push_back(modifier.code);
      name.remove_prefix(std::wstring_view(modifier.name).size());
      found = true;
    }
  }
  const auto key = keyOf(name);
  if (!key) return std::nullopt;
  chord.push_back(*key);
  return chord;
}

std::vector<INPUT> strokesOf(const Chord& chord) {
  std::vector<INPUT> strokes;
  for (const WORD code : chord) strokes.push_back(keyEvent(code, false));
  for (auto code = chord.rbegin(); code != chord.rend(); ++code) strokes.push_back(keyEvent(*code, true));
  return strokes;
}

std::vector<INPUT> strokesOf(wchar_t character) {
  constexpr int plain = 0;
  constexpr int shifted = 1;
  const SHORT key = VkKeyScanW(character);
  const int state = HIBYTE(key);
  const auto code = static_cast<WORD>(LOBYTE(key));
  if (key != -1 && state == plain) return strokesOf(Chord{code});
  if (key != -1 && state == shifted) return strokesOf(Chord{VK_SHIFT, code});
  return {characterEvent(character, false), characterEvent(character, true)};
}

}  // namespace nv::host
