// Settings of the thread that the component's windows are created under, whatever the host's are: the common controls
// that the DLL's manifest names, and per-monitor dpi awareness. Each lasts as long as its object.
#pragma once

#include "windows/SystemHeaders.h"

namespace nv::windows {

/// Controls created meanwhile are those that the DLL's manifest names; where that is not possible, the host's.
class ActivationContextScope {
 public:
  ActivationContextScope();
  ~ActivationContextScope();
  ActivationContextScope(const ActivationContextScope&) = delete;
  ActivationContextScope& operator=(const ActivationContextScope&) = delete;

 private:
  bool active_ = false;
  ULONG_PTR cookie_ = 0;
};

/// Top-level windows created meanwhile are aware of the dpi of their screen and of changes: Windows 10 1607 and later.
/// Older systems and child windows use the host's awareness.
class DpiAwarenessScope {
 public:
  DpiAwarenessScope();
  ~DpiAwarenessScope();
  DpiAwarenessScope(const DpiAwarenessScope&) = delete;
  DpiAwarenessScope& operator=(const DpiAwarenessScope&) = delete;

 private:
  HANDLE before_ = nullptr;
};

}  // namespace nv::windows
