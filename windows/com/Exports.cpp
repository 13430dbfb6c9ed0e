// The entry points of the in-process server, and the class factory that they hand out.
#include <cwchar>

#include "windows/com/ClsRandomObject.h"
#include "windows/com/Marshal.h"
#include "windows/com/Module.h"
#include "windows/com/Registration.h"

namespace nv::windows {

namespace {

class ClassFactory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
    *object = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++references_); }
  STDMETHODIMP_(ULONG) Release() override {
    const long left = --references_;
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

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

 private:
  ~ClassFactory() = default;

  ModuleReference module_;
  std::atomic<long> references_ = 1;
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
  return moduleInUse() ? S_FALSE : S_OK;
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
