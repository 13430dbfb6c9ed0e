// Between COM's types and the component's: values in, values out, and failures as hosts expect them.
#pragma once

#include <string_view>

#include "component/core/PropertyTypes.h"
#include "platform/RuntimeError.h"
#include "windows/Handles.h"

namespace nv::windows {

/// Reports a run-time error to the caller: sets the thread's error info (source "NVRandom") and returns the HRESULT,
/// which is that of an automation failure, else the classic number in the control facility (0x800A0000).
HRESULT failure(const RuntimeError& error) noexcept;

/// Runs the body of a COM method. Exceptions become an HRESULT and error info.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (...) {
    return failure(RuntimeError::current());
  }
}

/// A variant handed in by the host. Refers to it: valid during the call.
class VariantValue : public HostValue {
 public:
  explicit VariantValue(const VARIANT& value) : value_(value) {}
  bool isObject() const;
  std::wstring text() const override;
  bool truth() const override;
  StringArray array() const override;
  std::int32_t upperBound(std::size_t dimension) const override;
  std::wstring element(std::int32_t row, std::int32_t column) const override;

 private:
  SAFEARRAY* safeArray() const;

  const VARIANT& value_;
};

/// The elements of an array of strings or of variants; each element becomes a text. Fails with "Type mismatch" for
/// arrays of anything else. A null array has no dimensions.
StringArray stringArray(SAFEARRAY* array);

/// A copy of the array as an array of strings, with the same bounds.
SafeArray safeArray(const StringArray& array);

// What the host hands in, one overload per type of the interface.

inline std::int16_t fromHost(short value) {
  return value;
}
inline std::wstring_view fromHost(BSTR value) {
  return view(value);
}
inline StringArray fromHost(SAFEARRAY** value) {
  return stringArray(value == nullptr ? nullptr : *value);
}
inline VariantValue fromHost(const VARIANT& value) {
  return VariantValue(value);
}

// What the host gets.

inline void toHost(std::int16_t value, short* result) {
  *result = value;
}
void toHost(const std::wstring& value, BSTR* result);

/// What a listener gets as an event's argument.
inline VARIANT eventArgument(std::int16_t value) {
  VARIANT argument;
  argument.vt = VT_I2;
  argument.iVal = value;
  return argument;
}

}  // namespace nv::windows
