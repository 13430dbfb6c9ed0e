#include "windows/Scopes.h"

#include "windows/Handles.h"
#include "windows/Instance.h"
#include "windows/SystemFunction.h"

namespace nv::windows {

namespace {

struct ActivationTraits {
  using Value = HANDLE;
  static Value invalid() { return INVALID_HANDLE_VALUE; }
  static void close(Value value) { ReleaseActCtx(value); }
};

HANDLE ownContext() {
  static const Unique<ActivationTraits> context = [] {
    ACTCTXW description{};
    description.cbSize = sizeof(description);
    description.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    description.hModule = moduleInstance();
    description.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
    return Unique<ActivationTraits>(CreateActCtxW(&description));
  }();
  return context.get();
}

/// Newer than the oldest supported system, as are its values.
using SetThreadDpiAwareness = HANDLE(WINAPI*)(HANDLE);
HANDLE setAwareness(HANDLE awareness) {
  static const auto set = systemFunction<SetThreadDpiAwareness>("SetThreadDpiAwarenessContext");
  return set == nullptr ? nullptr : set(awareness);
}

/// Per-monitor awareness, newest first: DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2, then ..._AWARE.
HANDLE setScreenAwareness() {
  for (const LONG_PTR kind : {-4, -3}) {
    if (const HANDLE before = setAwareness(reinterpret_cast<HANDLE>(kind))) return before;
  }
  return nullptr;
}

}  // namespace

ActivationContextScope::ActivationContextScope() {
  const HANDLE context = ownContext();
  active_ = context != INVALID_HANDLE_VALUE && ActivateActCtx(context, &cookie_) != FALSE;
}

ActivationContextScope::~ActivationContextScope() {
  if (active_) DeactivateActCtx(0, cookie_);
}

DpiAwarenessScope::DpiAwarenessScope() : before_(setScreenAwareness()) {}

DpiAwarenessScope::~DpiAwarenessScope() {
  if (before_ != nullptr) setAwareness(before_);
}

}  // namespace nv::windows
