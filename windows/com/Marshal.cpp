#include "windows/com/Marshal.h"

#include <vector>

namespace nv::windows {

namespace {

/// The variant that a variant refers to in the end. Fails with "Type mismatch" where there is no end to it.
const VARIANT& resolved(const VARIANT& value) {
  constexpr int longestChain = 16;  // hosts are known to build chains of two
  const VARIANT* at = &value;
  for (int step = 0; step < longestChain; ++step) {
    if (at->vt != (VT_VARIANT | VT_BYREF) || at->pvarVal == nullptr) return *at;
    at = at->pvarVal;
  }
  throw RuntimeError(ErrorNumber::typeMismatch);
}

[[noreturn]] void throwFailure(HRESULT result) {
  switch (result) {
    case E_OUTOFMEMORY:
      throw RuntimeError(ErrorNumber::outOfMemory);
    case DISP_E_BADINDEX:
      throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    default:
      throw RuntimeError(ErrorNumber::typeMismatch);
  }
}

void check(HRESULT result) {
  if (FAILED(result)) throwFailure(result);
}

/// The value as another type, as the platform converts it for the user's locale.
void convert(const VARIANT& value, VARTYPE type, Variant& result) {
  if (value.vt == VT_NULL) throw RuntimeError(ErrorNumber::invalidUseOfNull);
  check(VariantChangeTypeEx(&result, const_cast<VARIANT*>(&value), LOCALE_USER_DEFAULT, 0, type));
}

std::wstring textOf(const VARIANT& value) {
  Variant text;
  convert(resolved(value), VT_BSTR, text);
  return std::wstring(view(text.bstrVal));
}

/// What the array's elements are: BSTR or VARIANT. Fails with "Type mismatch" for others.
VARTYPE elementType(SAFEARRAY* array) {
  VARTYPE type = VT_EMPTY;
  check(SafeArrayGetVartype(array, &type));
  if (type != VT_BSTR && type != VT_VARIANT) throw RuntimeError(ErrorNumber::typeMismatch);
  return type;
}

std::wstring textOf(VARTYPE type, const void* element) {
  return type == VT_BSTR ? std::wstring(view(*static_cast<const BSTR*>(element)))
                         : textOf(*static_cast<const VARIANT*>(element));
}

/// Gives access to the elements of an array for as long as it lives.
class ArrayAccess {
 public:
  explicit ArrayAccess(SAFEARRAY* array) : array_(array) { check(SafeArrayAccessData(array, &data_)); }
  ~ArrayAccess() { SafeArrayUnaccessData(array_); }
  ArrayAccess(const ArrayAccess&) = delete;
  ArrayAccess& operator=(const ArrayAccess&) = delete;

  template <class Element>
  Element& element(std::size_t index) const {
    return static_cast<Element*>(data_)[index];
  }

 private:
  SAFEARRAY* array_;
  void* data_ = nullptr;
};

}  // namespace

HRESULT failure(const RuntimeError& error) noexcept {
  ComPtr<ICreateErrorInfo> create;
  if (SUCCEEDED(CreateErrorInfo(&create))) {
    const Bstr description = Bstr::copyOf(error.description());
    wchar_t source[] = L"NVRandom";
    create->SetSource(source);
    create->SetDescription(description.get());
    ComPtr<IErrorInfo> info;
    if (SUCCEEDED(create->QueryInterface(IID_IErrorInfo, &info))) SetErrorInfo(0, info.Get());
  }
  return error.number() < 0 ? error.number() : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, error.number());
}

bool VariantValue::isObject() const {
  const int type = resolved(value_).vt & ~VT_BYREF;
  return type == VT_DISPATCH || type == VT_UNKNOWN;
}

std::wstring VariantValue::text() const {
  return textOf(value_);
}

bool VariantValue::truth() const {
  Variant truth;
  convert(resolved(value_), VT_BOOL, truth);
  return truth.boolVal != VARIANT_FALSE;
}

SAFEARRAY* VariantValue::safeArray() const {
  const VARIANT& value = resolved(value_);
  if ((value.vt & VT_ARRAY) == 0) throw RuntimeError(ErrorNumber::typeMismatch);
  return (value.vt & VT_BYREF) != 0 ? *value.pparray : value.parray;
}

StringArray VariantValue::array() const {
  return stringArray(safeArray());
}

std::int32_t VariantValue::upperBound(std::size_t dimension) const {
  SAFEARRAY* const array = safeArray();
  LONG upper = 0;
  if (array == nullptr) throw RuntimeError(ErrorNumber::subscriptOutOfRange);
  check(SafeArrayGetUBound(array, static_cast<UINT>(dimension + 1), &upper));
  return upper;
}

std::wstring VariantValue::element(std::int32_t row, std::int32_t column) const {
  SAFEARRAY* const array = safeArray();
  if (SafeArrayGetDim(array) != 2) throw RuntimeError(ErrorNumber::subscriptOutOfRange);
  LONG subscripts[] = {row, column};
  void* element = nullptr;
  const VARTYPE type = elementType(array);
  check(SafeArrayPtrOfIndex(array, subscripts, &element));
  return textOf(type, element);
}

StringArray stringArray(SAFEARRAY* array) {
  if (array == nullptr) return {};
  std::vector<StringArray::Bounds> bounds;
  for (UINT dimension = 1; dimension <= SafeArrayGetDim(array); ++dimension) {
    LONG lower = 0;
    LONG upper = -1;
    check(SafeArrayGetLBound(array, dimension, &lower));
    check(SafeArrayGetUBound(array, dimension, &upper));
    bounds.push_back({lower, upper});
  }
  const VARTYPE type = elementType(array);
  StringArray result(std::move(bounds));
  std::vector<std::wstring>& elements = result.elements();
  if (elements.empty()) return result;
  const ArrayAccess access(array);
  for (std::size_t i = 0; i < elements.size(); ++i) {
    elements[i] = type == VT_BSTR ? textOf(type, &access.element<BSTR>(i)) : textOf(type, &access.element<VARIANT>(i));
  }
  return result;
}

SafeArray safeArray(const StringArray& array) {
  if (array.dimensions() == 0) return {};
  std::vector<SAFEARRAYBOUND> bounds;
  for (std::size_t dimension = 0; dimension < array.dimensions(); ++dimension) {
    bounds.push_back({static_cast<ULONG>(array.bounds(dimension).size()), array.bounds(dimension).lower});
  }
  SafeArray result(SafeArrayCreate(VT_BSTR, static_cast<UINT>(bounds.size()), bounds.data()));
  if (!result) throw RuntimeError(ErrorNumber::outOfMemory);
  const ArrayAccess access(result.get());
  for (std::size_t i = 0; i < array.elements().size(); ++i) {
    Bstr text = Bstr::copyOf(array.elements()[i]);
    if (!text) throw RuntimeError(ErrorNumber::outOfMemory);
    access.element<BSTR>(i) = text.release();
  }
  return result;
}

void toHost(const std::wstring& value, BSTR* result) {
  *result = SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
  if (*result == nullptr) throw RuntimeError(ErrorNumber::outOfMemory);
}

}  // namespace nv::windows
