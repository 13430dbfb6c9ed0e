// Taking from everybody the right to write to a file or folder, giving it back, and deleting what nobody may write.
#pragma once

#include <filesystem>

namespace nv::host {

/// Fails with Failure when the system does not go along.
void denyWriting(const std::filesystem::path& path);
/// Lets everybody do everything. Never fails: what could not be freed will show when it is used.
void allowEverything(const std::filesystem::path& path) noexcept;
/// Deletes a folder with all that is in it, what nobody may write, too. What a virus scanner or a program that is
/// ending still holds is waited for, three seconds at most. Never fails: what stays will show when it is used.
void removeFolder(const std::filesystem::path& folder) noexcept;

}  // namespace nv::host
