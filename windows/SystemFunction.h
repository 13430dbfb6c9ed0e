// Functions of user32 that are newer than the oldest supported system.
#pragma once

#include "windows/SystemHeaders.h"

namespace nv::windows {

/// The function of that name, or nullptr where the system does not have it.
template <class Function>
Function systemFunction(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

}  // namespace nv::windows
