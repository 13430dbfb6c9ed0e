// Texts on their way in and out: UTF-8 and ANSI files, the console, and values as a message shows them.
// nvhost is a program of its own: nothing in host/ includes a header of the component but the generated interface.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace nv::host {

/// The text behind bytes of a code page, and back. What cannot be converted becomes the system's replacement character.
std::wstring wide(std::string_view bytes, UINT codePage = CP_UTF8);
std::string narrow(std::wstring_view text, UINT codePage = CP_UTF8);

/// The text in double quotes, as one would write it in a scenario.
std::wstring inQuotes(std::wstring_view text);

/// `text` with every `from` (not empty) replaced.
std::wstring replaced(std::wstring text, std::wstring_view from, std::wstring_view to);

/// The lines of a text, whose ends are CR LF or LF; the end of the last line may be missing.
std::vector<std::wstring> splitLines(std::wstring_view text);

/// Writes a line to the standard output at once, in UTF-8.
void printLine(std::wstring_view line);

}  // namespace nv::host
