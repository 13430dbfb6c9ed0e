// Texts on their way to the 8-bit side of the system, and the places that libraries are loaded from.
#pragma once

#include <string>
#include <string_view>

#include "windows/Handles.h"

namespace nv::windows {

/// The text in the ANSI code page; characters that it does not have become "?".
std::string inAnsiCodePage(std::wstring_view text);

/// The text that bytes in the ANSI code page stand for.
std::wstring fromAnsiCodePage(std::string_view bytes);

/// The path of a module; of the program for nullptr.
std::wstring modulePath(HMODULE module);

/// What GetSystemDirectoryW or GetWindowsDirectoryW answers.
std::wstring directory(UINT(WINAPI* ask)(LPWSTR, UINT));

/// Whether the path begins with a drive or a share, so that no current directory takes part in it.
bool isFullPath(std::wstring_view path);

/// `folder` and `name` with one backslash between them.
std::wstring joined(std::wstring_view folder, std::wstring_view name);

}  // namespace nv::windows
