// The component's properties by name, as a host uses them late bound.
#pragma once

#include <string>
#include <vector>

#include "component/ClsRandom.h"
#include "scenario/Value.h"

namespace nv::scenario {

/// Both fail with CallError, for a member that is missing or refuses with the numbers of automation.
void putProperty(ClsRandom& object, const std::wstring& name, const Value& value);
Value getProperty(ClsRandom& object, const std::wstring& name);

/// The properties that can be read, in the order of the interface.
const std::vector<std::wstring>& readableProperties();

}  // namespace nv::scenario
