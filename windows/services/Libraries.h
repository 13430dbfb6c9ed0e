// Loading libraries that neither the component nor the system brings.
#pragma once

#include <string>

#include "windows/SystemHeaders.h"

namespace nv::windows {

/// Loads a library by its full path, without a message box about a file that is none. The libraries that it depends on
/// are looked for beside it, in the program's folder and in the system's; not in the current directory and not along
/// PATH, but on a Windows 7 without the update KB2533623, which has its own order alone.
/// @return nullptr when it cannot be loaded.
HMODULE loadLibrary(const std::wstring& path);

}  // namespace nv::windows
