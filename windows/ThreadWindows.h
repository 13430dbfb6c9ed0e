// The top-level windows of the calling thread, the host's and the component's, and its keyboard focus.
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

/// The thread's window that a new one belongs to: the active one or, while another program is in front, the topmost
/// that accepts input; nullptr when there is none.
inline HWND frontWindow() {
  HWND window = GetActiveWindow();
  if (window != nullptr) return window;
  forEachThreadWindow([&window](HWND candidate) {
    if (IsWindowVisible(candidate) && IsWindowEnabled(candidate)) window = candidate;
    return window == nullptr;
  });
  return window;
}

/// Returns the keyboard focus, after a window in front of the host's has closed, to the control that had it. A host
/// with an embedded dialog rarely does, and its top-level window would keep the focus.
class FocusRestorer {
 public:
  FocusRestorer() : window_(GetFocus()) { ++count_; }
  ~FocusRestorer() {
    if (!IsWindow(window_)) return;
    const HWND top = GetAncestor(window_, GA_ROOT);
    const HWND focus = GetFocus();
    if (GetActiveWindow() == top && (focus == top || focus == nullptr)) SetFocus(window_);
  }
  FocusRestorer(const FocusRestorer&) = delete;
  FocusRestorer& operator=(const FocusRestorer&) = delete;

  /// How many windows the component has put in front in this thread: message boxes and modal dialogs.
  static unsigned count() { return count_; }

 private:
  inline static thread_local unsigned count_ = 0;
  HWND window_;
};

}  // namespace nv::windows
