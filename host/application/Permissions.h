// Taking from everybody the right to write to a file or folder, and giving it back.
#pragma once

#include <filesystem>

namespace nv::host {

/// Fails with Failure when the system does not go along.
void denyWriting(const std::filesystem::path& path);
/// Lets everybody do everything. Never fails: what could not be freed will show when it is used.
void allowEverything(const std::filesystem::path& path) noexcept;

}  // namespace nv::host
