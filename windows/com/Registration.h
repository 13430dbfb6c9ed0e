// The class's entries in the registry, for the machine or for the current user.
#pragma once

#include "windows/Handles.h"

namespace nv::windows {

enum class Scope { machine, user };

/// Writes all entries; on failure removes what was written.
HRESULT registerClass(Scope scope);

/// Removes all entries; of a user also the groups that are empty afterwards. Missing ones are no failure. What the
/// other word size needs, too, stays: the type library's key and the program identifier.
HRESULT unregisterClass(Scope scope);

}  // namespace nv::windows
