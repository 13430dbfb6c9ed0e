#include "windows/com/Module.h"

#include <atomic>
#include <mutex>
#include <utility>

#include "platform/RuntimeError.h"
#include "windows/Instance.h"
#include "windows/Paths.h"
#include "windows/forms/WindowsWidgetset.h"
#include "windows/services/WindowsServices.h"

namespace nv::windows {

namespace {

std::atomic<long> references;

/// A thread's component and its widgetset. Keeps the DLL loaded, so that it keeps what the host has set.
struct ThreadState {
  ModuleReference module;
  WindowsWidgetset widgetset;
  Component component{windowsServices(), widgetset};
};

/// Where the state of a thread is kept. Places are never given back: that of a thread that has ended is taken by
/// another. So no thread waits for another here, least of all one that ends, which it does under the loader lock.
struct Place {
  std::atomic<bool> taken = true;
  std::shared_ptr<ThreadState> state;
  Place* next = nullptr;
};

std::atomic<Place*> places;
DWORD threadSlot = TLS_OUT_OF_INDEXES;  // holds a Place*

Place& takePlace() {
  for (Place* place = places; place != nullptr; place = place->next) {
    if (!place->taken.exchange(true)) return *place;
  }
  auto* const made = new Place;
  made->next = places;
  while (!places.compare_exchange_weak(made->next, made)) continue;
  return *made;
}

void leavePlace(Place& place) {
  place.state.reset();
  place.taken = false;
}

void threadEnds() {
  auto* const place = static_cast<Place*>(TlsGetValue(threadSlot));
  // This runs under the loader lock, where windows cannot be destroyed. The component of a thread that ends with a
  // dialog open is therefore kept until the DLL is unloaded.
  if (place == nullptr || !place->state->component.forms.empty()) return;
  TlsSetValue(threadSlot, nullptr);
  leavePlace(*place);
}

/// When the DLL is unloaded; not when the process ends: by then, other threads have been stopped anywhere and other
/// libraries may be unloaded.
void removePlaces() {
  Place* place = places.exchange(nullptr);
  while (place != nullptr) delete std::exchange(place, place->next);
}

ITypeLib* typeLibrary = nullptr;
std::mutex typeLibraryMutex;  // held while the pointer changes, never while the library is read, asked or let go of

/// The type library as it was read before; else, from now on, `read`, which may be null.
ComPtr<ITypeLib> keptTypeLibrary(ITypeLib* read) {
  const std::lock_guard lock(typeLibraryMutex);
  if (typeLibrary == nullptr && read != nullptr) {
    typeLibrary = read;
    typeLibrary->AddRef();
  }
  return typeLibrary;
}

void letGoOfTypeLibrary() {
  ITypeLib* library = nullptr;
  {
    const std::lock_guard lock(typeLibraryMutex);
    library = std::exchange(typeLibrary, nullptr);
  }
  if (library != nullptr) library->Release();
}

}  // namespace

std::wstring modulePath() {
  return modulePath(moduleInstance());
}

ModuleReference::ModuleReference() {
  ++references;
}
ModuleReference::~ModuleReference() {
  --references;
}

void lockModule(bool lock) {
  references += lock ? 1 : -1;
}

bool mayUnloadModule() {
  if (references != 0) return false;
  letGoOfTypeLibrary();
  return true;
}

HRESULT typeInfo(REFGUID guid, ComPtr<ITypeInfo>& info) {
  ComPtr<ITypeLib> library = keptTypeLibrary(nullptr);
  if (!library) {
    ComPtr<ITypeLib> read;
    const HRESULT result = LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, &read);
    if (FAILED(result)) return result;
    library = keptTypeLibrary(read.Get());
  }
  return library->GetTypeInfoOfGuid(guid, &info);
}

std::shared_ptr<Component> componentOfThisThread() {
  auto* place = static_cast<Place*>(TlsGetValue(threadSlot));
  if (place == nullptr) {
    auto state = std::make_shared<ThreadState>();
    place = &takePlace();
    place->state = std::move(state);
    if (!TlsSetValue(threadSlot, place)) {
      leavePlace(*place);
      throw RuntimeError(ErrorNumber::outOfMemory);
    }
  }
  return {place->state, &place->state->component};
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
      removePlaces();
      break;
    default:
      break;
  }
  return TRUE;
}
