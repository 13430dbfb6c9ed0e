// The DLL that this code is linked into.
#pragma once

#include "windows/SystemHeaders.h"

extern "C" IMAGE_DOS_HEADER
    __ImageBase;  // NOLINT(bugprone-reserved-identifier): the linker's name for the module's start

namespace nv::windows {

/// The module's handle, for its resources, its window classes and its path.
inline HINSTANCE moduleInstance() {
  return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

}  // namespace nv::windows
