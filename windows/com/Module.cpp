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

/// A thread's component and what it works with.
struct ThreadState {
  WindowsWidgetset widgetset;
  Component component{windowsServices(), widgetset};
};

/// What is shared by all threads. Never destroyed by the run-time's clean-up: when the process ends, other threads have
/// been stopped at any point and other libraries may be gone.
struct Shared {
  std::mutex mutex;
  ITypeLib* typeLibrary = nullptr;  // loaded on demand, released when the module falls out of use
  std::list<std::shared_ptr<ThreadState>> threads;
};

Shared& shared() {
  static Shared& shared = *new Shared;
  return shared;
}

DWORD threadSlot = TLS_OUT_OF_INDEXES;  // holds a ThreadState*, owned by Shared::threads

void threadEnds() {
  const auto* const state = static_cast<ThreadState*>(TlsGetValue(threadSlot));
  // Windows go with their thread and must not be touched in the loader's hands: a thread that ends with a dialog up
  // keeps its component until the DLL is unloaded.
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
  return library->GetTypeInfoOfGuid(guid, info.out());
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
