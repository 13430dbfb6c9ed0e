#include "host/application/Automation.h"

#include <wrl/client.h>

#include <memory>
#include <utility>

namespace nv::host {

namespace {

std::wstring trimmedLine(std::wstring text) {
  while (!text.empty() && (text.back() == L'\r' || text.back() == L'\n' || text.back() == L' ')) text.pop_back();
  return text;
}

std::wstring systemText(HRESULT result) {
  wchar_t text[512];
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, static_cast<DWORD>(result), 0,
                     text, static_cast<DWORD>(std::size(text)), nullptr);
  return trimmedLine({text, length});
}

std::wstring textOf(BSTR text) {
  return {text == nullptr ? L"" : text, SysStringLen(text)};
}

/// Owner of the texts of an EXCEPINFO.
struct Exception : EXCEPINFO {
  Exception() : EXCEPINFO{} {}
  ~Exception() {
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
  }
  Exception(const Exception&) = delete;
  Exception& operator=(const Exception&) = delete;
};

struct SafeArrayDeleter {
  void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};
using SafeArray = std::unique_ptr<SAFEARRAY, SafeArrayDeleter>;

void putElement(SAFEARRAY* array, LONG* indices, const std::wstring& text) {
  check(SafeArrayPutElement(array, indices, _bstr_t(text.c_str()).GetBSTR()));
}

/// Turns a value into the variant that a host would pass.
struct ToVariant {
  _variant_t operator()(const std::wstring& text) const { return text.c_str(); }
  _variant_t operator()(std::int16_t number) const { return short{number}; }
  _variant_t operator()(bool truth) const { return truth; }
  _variant_t operator()(const TextList& list) const {
    SafeArray array(SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(list.size())));
    for (LONG i = 0; i < static_cast<LONG>(list.size()); ++i) {
      putElement(array.get(), &i, list[static_cast<std::size_t>(i)]);
    }
    return holding(std::move(array));
  }
  _variant_t operator()(const TextTable& table) const {
    SAFEARRAYBOUND bounds[] = {{static_cast<ULONG>(table.size()), 0},
                               {static_cast<ULONG>(table.empty() ? 0 : table.front().size()), 0}};
    SafeArray array(SafeArrayCreate(VT_BSTR, 2, bounds));
    for (LONG row = 0; row < static_cast<LONG>(bounds[0].cElements); ++row) {
      for (LONG column = 0; column < static_cast<LONG>(bounds[1].cElements); ++column) {
        LONG indices[] = {row, column};
        putElement(array.get(), indices, table[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
      }
    }
    return holding(std::move(array));
  }

 private:
  static _variant_t holding(SafeArray array) {
    _variant_t result;
    result.vt = VT_ARRAY | VT_BSTR;
    result.parray = array.release();
    return result;
  }
};

DISPID idOf(IDispatch& object, const std::wstring& name) {
  std::wstring copy = name;
  LPOLESTR names[] = {copy.data()};
  DISPID id = DISPID_UNKNOWN;
  check(object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id));
  return id;
}

_variant_t invoke(IDispatch& object, const std::wstring& name, WORD kind, DISPPARAMS& parameters) {
  _variant_t result;
  Exception exception;
  const HRESULT called = object.Invoke(idOf(object, name), IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                       kind == DISPATCH_PROPERTYGET ? &result : nullptr, &exception, nullptr);
  if (called == DISP_E_EXCEPTION) {
    if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
    throw callError(exception.scode, textOf(exception.bstrDescription));
  }
  if (FAILED(called)) throw callError(called, systemText(called));
  return result;
}

}  // namespace

CallError callError(HRESULT result, std::wstring description) {
  const bool classic = HRESULT_FACILITY(result) == FACILITY_CONTROL;
  return {classic ? HRESULT_CODE(result) : result, std::move(description)};
}

void check(HRESULT result) {
  if (SUCCEEDED(result)) return;
  IErrorInfo* info = nullptr;
  BSTR description = nullptr;
  if (GetErrorInfo(0, &info) == S_OK) {
    info->GetDescription(&description);
    info->Release();
  }
  const _bstr_t owned(description, false);
  throw callError(result, description == nullptr ? systemText(result) : textOf(description));
}

void putProperty(IDispatch& object, const std::wstring& name, const Value& value) {
  _variant_t argument = std::visit(ToVariant{}, value);
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&argument, &put, 1, 1};
  invoke(object, name, DISPATCH_PROPERTYPUT, parameters);
}

Value getProperty(IDispatch& object, const std::wstring& name) {
  DISPPARAMS none{};
  const _variant_t value = invoke(object, name, DISPATCH_PROPERTYGET, none);
  switch (value.vt) {
    case VT_BSTR:
      return textOf(value.bstrVal);
    case VT_I2:
      return static_cast<std::int16_t>(value.iVal);
    default:
      throw Failure(name + L" has a value of variant type " + std::to_wstring(value.vt));
  }
}

std::vector<std::wstring> readableProperties(IDispatch& object) {
  Microsoft::WRL::ComPtr<ITypeInfo> info;
  check(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, &info));
  std::vector<std::wstring> names;
  FUNCDESC* member = nullptr;
  for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &member)); ++i) {
    _bstr_t name;
    UINT count = 0;
    const bool readable = member->invkind == INVOKE_PROPERTYGET && member->memid > 0 &&
                          SUCCEEDED(info->GetNames(member->memid, name.GetAddress(), 1, &count));
    if (readable) names.push_back(textOf(name.GetBSTR()));
    info->ReleaseFuncDesc(member);
  }
  return names;
}

}  // namespace nv::host
