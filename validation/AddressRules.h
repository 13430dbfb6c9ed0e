// The address rules of module Random. Each writes its label to the trace.
#pragma once

#include <cstdint>
#include <string_view>

#include "component/core/Component.h"

namespace nv::Random {

/// Whether the host's province/postal-code text has the province.
/// @param province two letters; compared to the letter.
bool lookupProvince(Component& component, std::wstring_view province);

/// Whether postal codes of a province may begin with a letter.
/// @param code the province's two letters and the postal code's first.
bool LookupPostcode(Component& component, std::wstring_view code);

/// 1 when the street address begins as a post-office box does, else 0. A run-time error is reported under
/// "Random.Has_PO_Box_Address".
std::int16_t Has_PO_Box_Address(Component& component, std::wstring_view street);

}  // namespace nv::Random
