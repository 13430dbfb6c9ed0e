// Last words of a process that crashes, in the component or in nvhost itself.
#pragma once

#include <functional>
#include <string>

namespace nv::host {

/// From now on a crash prints one line, which `introduction` begins, and ends the process with exit code 1. Nobody is
/// asked whether to debug it.
void reportCrashes(std::function<std::wstring()> introduction);

}  // namespace nv::host
