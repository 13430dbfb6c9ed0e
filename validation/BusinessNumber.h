// The business number check of module Random.
#pragma once

#include <string_view>

#include "component/core/Component.h"

namespace nv::Random {

/// Whether a business number is acceptable: 9 digits that are not made up, and the verifier accepts them. What follows
/// the ninth character does not count. A run-time error is reported under "Random.VerifyBusinessNumber".
bool VerifyBusinessNumber(Component& component, std::wstring_view businessNumber);

}  // namespace nv::Random
