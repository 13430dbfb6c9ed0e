// The error reporter: one message box and one line in the error log, and the trap that leads to it.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "component/core/Trace.h"
#include "platform/RuntimeError.h"

namespace nv {

/// Reports a run-time error: traces it, tells the user (unless `silent`) and appends a line to "error.log" in the
/// installation root, or in the current directory when the root is not known. Never fails and changes nothing else.
/// @param procName name of the procedure that failed, as the user and the log see it.
/// @param title caption of the message box; blank for the application's title.
void ShowError(Component& component, std::int32_t errNumber, std::wstring_view description, std::wstring_view procName,
               bool silent, std::wstring_view title) noexcept;

/// Reports the exception being handled, but not to the user: to the trace and the error log alone.
inline void reportSilently(Component& component, std::wstring_view procName) noexcept {
  const RuntimeError error = RuntimeError::current();
  ShowError(component, error.number(), error.description(), procName, true, {});
}

/// Runs `body`. A run-time error in it is reported under `procName`, and `atFailure` is returned.
template <class Result, class Body>
Result reportedTrap(Component& component, std::wstring_view procName, Result atFailure, Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    const RuntimeError error = RuntimeError::current();
    ShowError(component, error.number(), error.description(), procName, false, {});
    return atFailure;
  }
}

/// The same for procedures without a result.
template <class Body>
void reportedTrap(Component& component, std::wstring_view procName, Body&& body) {
  reportedTrap(component, procName, 0, [&body] {
    body();
    return 0;
  });
}

}  // namespace nv
