#include "windows/com/Module.h"

#include <algorithm>
#include <atomic>
#include <list>
#include <mutex>

#include "windows/Instance.h"
#include "windows/Paths.h"
#include "windows/forms/WindowsWidgetset.h"
#include "windows/services/WindowsServices.h"

namespace nv::windows {

namespace {

std::atomic<long> references;

/// A thread's component and its widgetset.
struct ThreadState {
  WindowsWidgetset widgetset;
  Component component{windowsServices(), widgetset};
};

/// Shared by all threads. Not destroyed when the process ends: by then, other threads have been stopped anywhere and
/// other libraries may be unloaded.
struct Shared {
  std::mutex mutex;
  ITypeLib* typeLibrary = nullptr;  // loaded on demand, released with the last reference
  std::list<std::shared_ptr<ThreadState>> threads;
};

Shared& shared() {
  static Shared& shared = *new Shared;
  return shared;
}

DWORD threadSlot = TLS_OUT_OF_INDEXES;  // holds a ThreadState*, owned by Shared::threads

void threadEnds() {
  const auto* const state = static_cast<ThreadState*>(TlsGetValue(threadSlot));
  // This runs under the loader lock, where windows cannot be destroyed. The component of a thread that ends with a
  // dialog open is therefore kept until the DLL is unloaded.
  if (state == nullptr || !state->component.forms.empty()) return;
  TlsSetValue(threadSlot, nullptr);
  const std::lock_guard lock(shared().mutex);
  shared().threads.remove_if([state](const auto& other) { return other.get() == state; });
}

void release() {
  if (--references != 0) return;
  const std::lock_guard lock(shared().mutex);
  if (references != 0) return;
  if (ITypeLib* const library = std::exchange(shared().typeLibrary, nullptr)) library->Release();
}

}  // namespace

std::wstring modulePath() {
  return modulePath(moduleInstance());
}

ModuleReference::ModuleReference() {
  ++references;
}
ModuleReference::~ModuleReference() {
  release();
}

bool moduleInUse() {
  return references != 0;
}

void lockModule(bool lock) {
  if (lock) {
    ++references;
  } else {
    release();
  }
}

HRESULT typeInfo(REFGUID guid, ComPtr<ITypeInfo>& info) {
  const std::lock_guard lock(shared().mutex);
  ITypeLib*& library = shared().typeLibrary;
  if (library == nullptr) {
    const HRESULT result = LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, &library);
    if (FAILED(result)) return result;
  }
  return library->GetTypeInfoOfGuid(guid, &info);
}

std::shared_ptr<Component> componentOfThisThread() {
  auto* state = static_cast<ThreadState*>(TlsGetValue(threadSlot));
  const std::lock_guard lock(shared().mutex);
  auto& threads = shared().threads;
  if (state == nullptr) {
    threads.push_back(std::make_shared<ThreadState>());
    state = threads.back().get();
    TlsSetValue(threadSlot, state);
  }
  const auto owner = std::ranges::find_if(threads, [state](const auto& other) { return other.get() == state; });
  return {*owner, &state->component};
}

}  // namespace nv::windows

extern "C" BOOL WINAPI DllMain(HINSTANCE /*instance*/, DWORD reason, LPVOID processEnds) {
  using namespace nv::windows;
  switch (reason) {
    case DLL_PROCESS_ATTACH:
      threadSlot = TlsAlloc();
      return threadSlot != TLS_OUT_OF_INDEXES;
    case DLL_THREAD_DETACH:
      threadEnds();
      break;
    case DLL_PROCESS_DETACH:
      if (processEnds != nullptr) break;
      WindowsWidgetset::unregisterClasses();
      TlsFree(threadSlot);
      delete &shared();
      break;
    default:
      break;
  }
  return TRUE;
}
