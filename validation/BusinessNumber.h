// The business number check of module Random.
#pragma once

#include <string_view>

#include "component/core/Component.h"

namespace nv::Random {

/// Whether a business number is acceptable: 9 digits, not an obvious placeholder, and accepted by the verifier.
/// Characters after the ninth are ignored. A run-time error is reported under "Random.VerifyBusinessNumber".
bool VerifyBusinessNumber(Component& component, std::wstring_view businessNumber);

}  // namespace nv::Random
