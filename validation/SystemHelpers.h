// The helpers of module Random that ask the machine: files, directories and the browser. Each writes its label to the
// trace.
#pragma once

#include <string>
#include <string_view>

#include "component/core/Component.h"

namespace nv::Random {

/// The maker's web site, which OpenBrowser opens when no other address is handed in.
inline constexpr std::wstring_view makersWebSite = L"https://www.norvik.example/";

/// Whether there is a file at the path.
bool Fileexists(Component& component, const std::wstring& path);

/// Stores the Windows and the system directory, each with a trailing backslash.
void Get_Windows_Dir(Component& component);

/// Opens a web page in the user's browser, maximised. Tells the user when that did not work; a run-time error is
/// reported under "Random.OpenBrowser".
/// @param address of http or https, or without a scheme. Anything else, such as a path or a program, opens nothing and
/// is reported as an error, but not to the user.
void OpenBrowser(Component& component, std::wstring_view address = makersWebSite);

}  // namespace nv::Random
