// The entry points of the in-process server, and the class factory that they hand out.
#include <cwchar>

#include "windows/com/ClsRandomObject.h"
#include "windows/com/ComObject.h"
#include "windows/com/Marshal.h"
#include "windows/com/Module.h"
#include "windows/com/Registration.h"

namespace nv::windows {

namespace {

class ClassFactory final : public ComObject<IClassFactory> {
 public:
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return ClsRandomObject::create(iid, object);
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    lockModule(lock != FALSE);
    return S_OK;
  }
};

}  // namespace

}  // namespace nv::windows

using namespace nv::windows;

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, LPVOID* object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (classId != CLSID_ClsRandom) return CLASS_E_CLASSNOTAVAILABLE;
  ComPtr<IClassFactory> factory;
  const HRESULT made = guarded([&factory] { *factory.GetAddressOf() = new ClassFactory; });
  return FAILED(made) ? made : factory->QueryInterface(iid, object);
}

STDAPI DllCanUnloadNow() {
  return mayUnloadModule() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
  return registerClass(Scope::machine);
}

STDAPI DllUnregisterServer() {
  return unregisterClass(Scope::machine);
}

/// `regsvr32 /n /i:user` registers for the current user alone, `regsvr32 /u /n /i:user` takes that back; without "user"
/// the machine is meant.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  const bool user = commandLine != nullptr && _wcsicmp(commandLine, L"user") == 0;
  const Scope scope = user ? Scope::user : Scope::machine;
  return install != FALSE ? registerClass(scope) : unregisterClass(scope);
}
