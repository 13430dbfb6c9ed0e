// What the component's windows are made in, whatever the host is like: the current common controls, which the DLL's
// manifest asks for, and awareness of the dpi of the screen that a dialog stands on. Each lasts as long as its object.
#pragma once

#include "windows/SystemHeaders.h"

namespace nv::windows {

/// Controls made meanwhile are those that the DLL's manifest names. Where that is not possible, they are the host's.
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

/// Top-level windows made meanwhile know the dpi of their screen, and are told when it changes: Windows 10 1607 and
/// later. On older systems, and for child windows, it is the host's awareness that counts.
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
