// Billers as scenarios include them: files of `let` lines, which may include others.
#pragma once

#include <filesystem>
#include <string>

#include "host/application/Automation.h"

namespace nv::host {

/// Sets every property that the file names, late bound. Fails with Failure and CallError.
/// @param root of the installation, with a trailing backslash: {root} in the file.
void setBiller(IDispatch& object, const std::filesystem::path& file, const std::wstring& root);

}  // namespace nv::host
