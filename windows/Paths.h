// Conversion to and from the ANSI code page, and paths.
#pragma once

#include <string>
#include <string_view>

#include "windows/Handles.h"

namespace nv::windows {

/// The text in the ANSI code page; characters that it lacks become "?".
std::string inAnsiCodePage(std::wstring_view text);

/// The text of bytes in the ANSI code page.
std::wstring fromAnsiCodePage(std::string_view bytes);

/// The path of a module; of the program for nullptr.
std::wstring modulePath(HMODULE module);

/// What GetSystemDirectoryW or GetWindowsDirectoryW answers.
std::wstring directory(UINT(WINAPI* ask)(LPWSTR, UINT));

/// Whether the path begins with a drive or a share, and does not depend on the current directory.
bool isFullPath(std::wstring_view path);

/// `folder` and `name` with one backslash between them.
std::wstring joined(std::wstring_view folder, std::wstring_view name);

}  // namespace nv::windows
