// The top-level windows of the calling thread, the host's and the component's.
#pragma once

#include "windows/SystemHeaders.h"

namespace nv::windows {

/// Calls `body(window)` for each, from the topmost down, until it returns false.
template <class Body>
void forEachThreadWindow(Body&& body) {
  struct Visitor {
    static BOOL CALLBACK visit(HWND window, LPARAM body) {
      return (*reinterpret_cast<Body*>(body))(window) ? TRUE : FALSE;
    }
  };
  EnumThreadWindows(GetCurrentThreadId(), Visitor::visit, reinterpret_cast<LPARAM>(&body));
}

}  // namespace nv::windows
