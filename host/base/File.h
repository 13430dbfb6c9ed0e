// Whole files as bytes.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace nv::host {

/// What the file holds, even while others write to it; nothing when there is no such file, or it cannot be read now.
std::optional<std::string> readFile(const std::filesystem::path& file);

/// Makes or replaces the file. Returns whether that was done.
bool writeFile(const std::filesystem::path& file, std::string_view bytes);

/// Writes behind the end of the file, which is made if missing. Returns whether that was done.
bool appendToFile(const std::filesystem::path& file, std::string_view bytes);

}  // namespace nv::host
