#include "windows/com/ClsRandomObject.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

#include "platform/Text.h"

namespace nv::windows {

HRESULT ClsRandomObject::create(REFIID iid, void** object) {
  ComPtr<_ClsRandom> made;
  const HRESULT result = guarded([&made] { *made.GetAddressOf() = new ClsRandomObject; });
  return FAILED(result) ? result : made->QueryInterface(iid, object);
}

ClsRandomObject::ClsRandomObject()
    : component_(componentOfThisThread()), events_(*this, DIID___ClsRandom), rules_(*component_, *this) {}

// IUnknown

STDMETHODIMP ClsRandomObject::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  if (iid == IID_IUnknown || iid == IID_IDispatch || isHostInterface(iid)) {
    *object = static_cast<NewestInterface*>(this);
  } else if (iid == IID_ISupportErrorInfo) {
    *object = static_cast<ISupportErrorInfo*>(this);
  } else if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) {
    *object = static_cast<IProvideClassInfo2*>(this);
  } else if (iid == IID_IConnectionPointContainer) {
    *object = static_cast<IConnectionPointContainer*>(this);
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) ClsRandomObject::AddRef() {
  return static_cast<ULONG>(++references_);
}

STDMETHODIMP_(ULONG) ClsRandomObject::Release() {
  const long left = --references_;
  if (left != 0) return static_cast<ULONG>(left);
  // While the destructor unloads the dialog, the host may run, take another reference and release it: destroy only
  // once.
  references_ = 1L << 30;
  delete this;
  return 0;
}

// IDispatch

HRESULT ClsRandomObject::ownTypeInfo(ComPtr<ITypeInfo>& info) {
  if (!typeInfo_) {
    const HRESULT result = typeInfo(__uuidof(NewestInterface), typeInfo_);
    if (FAILED(result)) return result;
  }
  info = typeInfo_;
  return S_OK;
}

STDMETHODIMP ClsRandomObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

STDMETHODIMP ClsRandomObject::GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  ComPtr<ITypeInfo> own;
  const HRESULT result = ownTypeInfo(own);
  return FAILED(result) ? result : own.CopyTo(info);
}

namespace {

struct Member {
  std::wstring_view name;
  DISPID id;
  bool isStringArray;
};

constexpr Member members[] = {
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) \
  {L"" #Name, id, std::is_same_v<property::Type, property::StringList>},
#define NV_METHOD(id, Name, Result) {L"" #Name, id, false},
#include "component/core/properties.def"
};
static_assert(std::ranges::is_sorted(members, std::ranges::less_equal{}, &Member::id), "identifiers rise by rows");

}  // namespace

STDMETHODIMP ClsRandomObject::GetIDsOfNames(REFIID /*iid*/, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) {
  // Scripts ask at every statement. The type library is slow: it compares name by name, by the rules of a locale. It is
  // left with the names that are not in the table.
  if (count == 1 && names != nullptr && names[0] != nullptr && ids != nullptr) {
    const auto* const known = std::ranges::find_if(members, [name = std::wstring_view(names[0])](const Member& member) {
      return std::ranges::equal(member.name, name, {}, asciiUpper, asciiUpper);
    });
    if (known != std::end(members)) {
      *ids = known->id;
      return S_OK;
    }
  }
  ComPtr<ITypeInfo> own;
  const HRESULT result = ownTypeInfo(own);
  return FAILED(result) ? result : DispGetIDsOfNames(own.Get(), names, count, ids);
}

namespace {

/// Hands a failure of `guarded` to a late-bound caller, as the platform does with those of the members themselves.
HRESULT asException(HRESULT failure, EXCEPINFO* exception) {
  ComPtr<IErrorInfo> info;
  const bool described = GetErrorInfo(0, &info) == S_OK;
  if (exception == nullptr) return DISP_E_EXCEPTION;
  *exception = {};
  exception->scode = failure;
  if (described) {
    info->GetSource(&exception->bstrSource);
    info->GetDescription(&exception->bstrDescription);
  }
  return DISP_E_EXCEPTION;
}

}  // namespace

STDMETHODIMP ClsRandomObject::Invoke(DISPID member, REFIID /*iid*/, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
  ComPtr<ITypeInfo> own;
  const HRESULT found = ownTypeInfo(own);
  if (FAILED(found)) return found;
  const ComPtr<_ClsRandom> self(this);  // the host may release the object while a dialog is up

  DISPPARAMS passed = parameters == nullptr ? DISPPARAMS{} : *parameters;
  Variant strings;
  VARIANT reference;
  const bool put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  const auto* const known = std::ranges::find(members, member, &Member::id);
  if (put && passed.cArgs == 1) {
    const HRESULT converted = guarded([&] {
      const VariantValue value(passed.rgvarg[0]);
      if (!value.isObject()) flags = DISPATCH_PROPERTYPUT;  // by reference is by value for all that is no object
      if (known == std::end(members) || !known->isStringArray) return;  // scripts cannot build one
      strings.parray = safeArray(value.array()).release();
      strings.vt = VT_ARRAY | VT_BSTR;
      reference.vt = VT_BYREF | VT_ARRAY | VT_BSTR;
      reference.pparray = &strings.parray;
      passed.rgvarg = &reference;
    });
    if (FAILED(converted)) return asException(converted, exception);
  }
  return DispInvoke(static_cast<NewestInterface*>(this), own.Get(), member, flags, &passed, result, exception,
                    badArgument);
}

// _ClsRandom

#define NV_COM_Let(Name, Type)                                    \
  STDMETHODIMP ClsRandomObject::put_##Name(NV_COM_##Type value) { \
    return guarded([&] { rules_.let##Name(fromHost(value)); });   \
  }
#define NV_COM_LetGet(Name, Type)                                                         \
  NV_COM_Let(Name, Type) STDMETHODIMP ClsRandomObject::get_##Name(NV_COM_##Type* value) { \
    if (value == nullptr) return E_POINTER;                                               \
    *value = {};                                                                          \
    return guarded([&] { toHost(rules_.get##Name(), value); });                           \
  }
// A method may run the host while a dialog is up, and the host may release the object then.
#define NV_COM_Long(Name)                             \
  STDMETHODIMP ClsRandomObject::Name(long* result) {  \
    if (result == nullptr) return E_POINTER;          \
    *result = 0;                                      \
    const ComPtr<_ClsRandom> self(this);              \
    return guarded([&] { *result = rules_.Name(); }); \
  }
#define NV_COM_Nothing(Name)                \
  STDMETHODIMP ClsRandomObject::Name() {    \
    const ComPtr<_ClsRandom> self(this);    \
    return guarded([&] { rules_.Name(); }); \
  }
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) NV_COM_##Access(Name, Type)
#define NV_METHOD(id, Name, Result) NV_COM_##Result(Name)
#include "component/core/properties.def"

// ISupportErrorInfo

STDMETHODIMP ClsRandomObject::InterfaceSupportsErrorInfo(REFIID iid) {
  return isHostInterface(iid) || iid == IID_IDispatch ? S_OK : S_FALSE;
}

// IProvideClassInfo2

STDMETHODIMP ClsRandomObject::GetClassInfo(ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  ComPtr<ITypeInfo> own;
  const HRESULT result = typeInfo(CLSID_ClsRandom, own);
  return FAILED(result) ? result : own.CopyTo(info);
}

STDMETHODIMP ClsRandomObject::GetGUID(DWORD kind, GUID* guid) {
  if (guid == nullptr) return E_POINTER;
  *guid = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *guid = DIID___ClsRandom;
  return S_OK;
}

// IConnectionPointContainer

STDMETHODIMP ClsRandomObject::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points == nullptr) return E_POINTER;
  *points = nullptr;
  return enumerateConnectionPoints(events_, points);
}

STDMETHODIMP ClsRandomObject::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  if (iid != DIID___ClsRandom) return CONNECT_E_NOCONNECTION;
  *point = &events_;
  events_.AddRef();
  return S_OK;
}

}  // namespace nv::windows
