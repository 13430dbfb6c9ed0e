// Bank numbers that are entered a second time.
#pragma once

#include <algorithm>

#include "forms/TextField.h"
#include "platform/Text.h"

namespace nv {

/// Masks a number and makes room for its confirmation: a number of the record may be longer than can be typed.
inline void maskAndConfirm(forms::TextBox& number, forms::TextBox& confirmation) {
  constexpr wchar_t maskCharacter = L'*';
  number.setPasswordChar(maskCharacter);
  confirmation.setMaxLength(std::max(number.maxLength(), static_cast<int>(number.text().size())));
}

inline bool sameTrimmed(const forms::TextField& a, const forms::TextField& b) {
  return trimmed(a.text()) == trimmed(b.text());
}

}  // namespace nv
