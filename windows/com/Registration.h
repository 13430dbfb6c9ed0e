// The class's entries in the registry, for the machine or for the current user.
#pragma once

#include "windows/Handles.h"

namespace nv::windows {

enum class Scope { machine, user };

/// Writes all entries; on failure removes what was written.
HRESULT registerClass(Scope scope);

/// Removes all entries, and the keys above them that are empty afterwards. Missing ones are no failure. Entries of the
/// type library for the other word size stay.
HRESULT unregisterClass(Scope scope);

}  // namespace nv::windows
