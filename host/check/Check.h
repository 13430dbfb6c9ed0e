// The acceptance check: everything that can be proven of the component on the machine at hand, in both word sizes,
// without installing anything and without rights.
#pragma once

#include <filesystem>

namespace nv::host {

/// Plays all scenarios, the pictures of all layouts and the DLL's tests, says what comes of each, and writes
/// report.html and the folder "pictures" into the kit. What is made besides goes again, also when it is stopped in the
/// middle.
/// @param kit its folder: programs in x86 and x64, the rest as in the sources.
/// @return the exit code of nvhost: 0 when nothing failed, else 1. Fails with Failure.
int checkMachine(const std::filesystem::path& kit);

}  // namespace nv::host
