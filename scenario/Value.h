// A value that a host hands to the component or reads from it, as a scenario writes it.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace nv::scenario {

using TextList = std::vector<std::wstring>;
/// A two-dimensional array, outer index first; its rows are equally long.
using TextTable = std::vector<TextList>;

using Value = std::variant<std::wstring, std::int16_t, bool, TextList, TextTable>;

/// The value as one would write it in a scenario.
std::wstring shown(const Value& value);

}  // namespace nv::scenario
