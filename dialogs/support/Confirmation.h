// Bank numbers that are entered a second time.
#pragma once

#include "forms/TextField.h"
#include "platform/Text.h"

namespace nv {

/// What is shown for each character of a number that is to be confirmed.
inline constexpr wchar_t maskCharacter = L'*';

inline bool sameTrimmed(const forms::TextField& a, const forms::TextField& b) {
  return trimmed(a.text()) == trimmed(b.text());
}

}  // namespace nv
