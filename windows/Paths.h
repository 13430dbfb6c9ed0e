// Conversion to and from the ANSI code page, and paths.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "windows/Handles.h"

namespace nv::windows {

/// The system's conversions. Tests put others in their place, which refuse what systems of other languages do.
struct Conversions {
  decltype(&WideCharToMultiByte) toBytes = WideCharToMultiByte;
  decltype(&MultiByteToWideChar) toText = MultiByteToWideChar;
};

// Each fails with "Invalid procedure call or argument" when the system does not convert the text.

/// The text in the ANSI code page; characters that it lacks become "?".
std::string inAnsiCodePage(std::wstring_view text, const Conversions& system = {});

/// The text in the ANSI code page, or nothing when that lacks one of its characters.
std::optional<std::string> exactlyInAnsiCodePage(std::wstring_view text, const Conversions& system = {});

/// The text of bytes in the ANSI code page. Bytes that mean nothing there become a character of the system's choice.
std::wstring fromAnsiCodePage(std::string_view bytes, const Conversions& system = {});

/// The path of a module; of the program for nullptr.
std::wstring modulePath(HMODULE module);

/// What GetSystemDirectoryW or GetWindowsDirectoryW answers.
std::wstring directory(UINT(WINAPI* ask)(LPWSTR, UINT));

/// Whether the path begins with a drive or a share, and does not depend on the current directory.
bool isFullPath(std::wstring_view path);

/// `folder` and `name` with one backslash between them.
std::wstring joined(std::wstring_view folder, std::wstring_view name);

}  // namespace nv::windows
