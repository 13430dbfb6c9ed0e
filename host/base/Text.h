// Texts on their way in and out: UTF-8 and ANSI files, and the console. nvhost speaks of values and failures as the
// scenario language does. It is a program of its own: nothing in host/ includes a header of the component but the
// generated interface.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "scenario/Failure.h"
#include "scenario/Text.h"
#include "scenario/Value.h"

namespace nv::host {

using scenario::CallError;
using scenario::Failure;
using scenario::inQuotes;
using scenario::replaced;
using scenario::splitLines;
using scenario::TextList;
using scenario::TextTable;
using scenario::Value;

/// The text behind bytes of a code page, and back. What cannot be converted becomes the system's replacement character.
std::wstring wide(std::string_view bytes, UINT codePage = CP_UTF8);
std::string narrow(std::wstring_view text, UINT codePage = CP_UTF8);

/// Writes a line to the standard output at once, in UTF-8.
void printLine(std::wstring_view line);

}  // namespace nv::host
