// A COM object with one interface.
#pragma once

#include <atomic>

#include "windows/com/Module.h"

namespace nv::windows {

/// Begins with one reference, belongs to whoever holds references to it, and keeps the DLL loaded.
template <class Interface>
class ComObject : public Interface {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (iid != IID_IUnknown && iid != __uuidof(Interface)) return E_NOINTERFACE;
    *object = static_cast<Interface*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++references_); }
  STDMETHODIMP_(ULONG) Release() override {
    const long left = --references_;
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

 protected:
  virtual ~ComObject() = default;

 private:
  ModuleReference module_;
  std::atomic<long> references_ = 1;
};

}  // namespace nv::windows
