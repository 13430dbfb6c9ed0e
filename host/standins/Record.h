// How the stand-ins for other programs and libraries of a host's machine note what they were asked to do: a line in a
// file of the installation in use. For the stand-ins and nvhost alone.
#pragma once

#include <string>
#include <vector>

namespace nv::host {

/// Names the root of the installation in use, with a trailing backslash; nvhost sets it for itself and its children.
inline constexpr const wchar_t* installationVariable = L"NVHOST_INSTALLATION";

/// The root of the installation in use, with a trailing backslash; empty when there is none.
std::wstring installationInUse();

/// Appends the line to the file of that name in the installation root, as text in the ANSI code page. Without an
/// installation nothing is noted. Returns whether it is.
bool record(const wchar_t* file, const std::wstring& line);

/// The lines noted in the file so far.
std::vector<std::wstring> recorded(const wchar_t* file);

}  // namespace nv::host
