#include "host/user/Keys.h"

#include <algorithm>
#include <iterator>

namespace nv::host {

namespace {

/// Keys of the block between letters and number pad, which the number pad has a second time.
constexpr WORD extendedKeys[] = {VK_DELETE, VK_INSERT, VK_HOME, VK_END,   VK_LEFT,
                                 VK_RIGHT,  VK_UP,     VK_DOWN, VK_PRIOR, VK_NEXT};

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

std::vector<INPUT> strokesOf(const scenario::Chord& chord) {
  std::vector<INPUT> strokes;
  for (const int code : chord) strokes.push_back(keyEvent(static_cast<WORD>(code), false));
  for (auto code = chord.rbegin(); code != chord.rend(); ++code) {
    strokes.push_back(keyEvent(static_cast<WORD>(*code), true));
  }
  return strokes;
}

std::vector<INPUT> strokesOf(wchar_t character) {
  constexpr int plain = 0;
  constexpr int shifted = 1;
  const SHORT key = VkKeyScanW(character);
  const int state = HIBYTE(key);
  const auto code = static_cast<WORD>(LOBYTE(key));
  constexpr UINT dead = 0x80000000;  // waits for the letter that its accent goes on
  const bool typed = key != -1 && (MapVirtualKeyW(code, MAPVK_VK_TO_CHAR) & dead) == 0;
  if (typed && state == plain) return strokesOf(scenario::Chord{code});
  if (typed && state == shifted) return strokesOf(scenario::Chord{VK_SHIFT, code});
  return {characterEvent(character, false), characterEvent(character, true)};
}

}  // namespace nv::host
