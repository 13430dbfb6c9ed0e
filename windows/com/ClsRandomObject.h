// The COM object behind the class: it marshals and decides nothing.
#pragma once

#include <atomic>
#include <memory>

#include "component/ClsRandom.h"
#include "windows/SystemHeaders.h"
#include "windows/com/ConnectionPoint.h"
#include "windows/com/Interfaces.h"
#include "windows/com/Marshal.h"
#include "windows/com/Module.h"

namespace nv::windows {

class ClsRandomObject final : public NewestInterface,
                              public ISupportErrorInfo,
                              public IProvideClassInfo2,
                              public IConnectionPointContainer,
                              private ClsRandomEvents {
 public:
  /// Makes an object and hands out one reference to the interface asked for.
  static HRESULT create(REFIID iid, void** object);

  // IUnknown
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

  // IDispatch, on the embedded type library
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  STDMETHODIMP Invoke(DISPID member, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* badArgument) override;

  // _ClsRandom and what extends it: put_<Name>, get_<Name> and the methods
#define NV_COM_Integer short
#define NV_COM_Flag short
#define NV_COM_String BSTR
#define NV_COM_Folder BSTR
#define NV_COM_StringList SAFEARRAY**
#define NV_COM_VariantText VARIANT
#define NV_COM_VariantTruth VARIANT
#define NV_COM_VariantArray VARIANT
#define NV_COM_ProvinceTable VARIANT
#define NV_COM_Let(Name, Type) STDMETHODIMP put_##Name(NV_COM_##Type value) override;
#define NV_COM_LetGet(Name, Type) NV_COM_Let(Name, Type) STDMETHODIMP get_##Name(NV_COM_##Type* value) override;
#define NV_COM_Long(Name) STDMETHODIMP Name(long* result) override;
#define NV_COM_Nothing(Name) STDMETHODIMP Name() override;
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_COM_##Access(Name, Type)
#define NV_METHOD(id, Name, Result) NV_COM_##Result(Name)
#include "component/core/properties.def"
#undef NV_COM_Let
#undef NV_COM_LetGet
#undef NV_COM_Long
#undef NV_COM_Nothing

  // ISupportErrorInfo
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override;

  // IProvideClassInfo2
  STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;

  // IConnectionPointContainer
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
  STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

 private:
  ClsRandomObject();
  ~ClsRandomObject() override = default;

  // ClsRandomEvents
#define NV_VALUE(Type, name) eventArgument(name)
#define NV_EVENT(id, Name, ...)                               \
  void Name(__VA_OPT__(NV_PARAMETER(__VA_ARGS__))) override { \
    events_.raise(id, {__VA_OPT__(NV_VALUE(__VA_ARGS__))});   \
  }
#include "component/core/properties.def"
#undef NV_VALUE

  HRESULT ownTypeInfo(ComPtr<ITypeInfo>& info);

  ModuleReference module_;
  std::atomic<long> references_ = 1;
  std::shared_ptr<Component> component_;
  ComPtr<ITypeInfo> typeInfo_;  // read when first needed
  ConnectionPoint events_;
  ClsRandom rules_;
};

}  // namespace nv::windows
