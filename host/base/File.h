// Files, and handles that are closed by their owner.
#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace nv::host {

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
/// Owner of a handle; null, never INVALID_HANDLE_VALUE, where there is none.
using Handle = std::unique_ptr<void, HandleCloser>;

/// CreateFileW without its rarer arguments; null when the file cannot be opened.
Handle openFile(const std::filesystem::path& file, DWORD access, DWORD sharing, DWORD disposition);

/// What the file holds, even while others write to it; nothing when there is no such file, or it cannot be read now.
std::optional<std::string> readFile(const std::filesystem::path& file);

/// Makes or replaces the file. Returns whether that was done.
bool writeFile(const std::filesystem::path& file, std::string_view bytes);

/// Writes behind the end of the file, which is made if missing. Returns whether that was done.
bool appendToFile(const std::filesystem::path& file, std::string_view bytes);

}  // namespace nv::host
