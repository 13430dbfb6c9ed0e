// Late binding, as script hosts do it: properties of an automation object by name, values as variants.
#pragma once

#include <windows.h>
// after <windows.h>
#include <comutil.h>
#include <oaidl.h>

#include <string>

#include "host/base/Value.h"

namespace nv::host {

/// A call that the component, or COM on its way there, failed.
class HostError {
 public:
  HostError(HRESULT result, std::wstring description);

  /// What a script sees as Err.Number: the classic number of a run-time error, else the HRESULT.
  LONG number() const { return number_; }
  const std::wstring& description() const { return description_; }

  /// "error 9 "Subscript out of range"", as one would write it in a scenario.
  std::wstring shown() const;

 private:
  LONG number_;
  std::wstring description_;
};

/// The number as one would write it in a scenario: an HRESULT in hexadecimal.
std::wstring shownNumber(LONG number);

/// Fails with the error information that the called object left, or with the system's text for `result`.
void check(HRESULT result);

void putProperty(IDispatch& object, const std::wstring& name, const Value& value);

/// Reads a property. A value of another type than a text or a 16-bit number is a Failure: the component has none.
Value getProperty(IDispatch& object, const std::wstring& name);

}  // namespace nv::host
