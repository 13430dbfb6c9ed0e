// Late binding, as script hosts do it: properties of an automation object by name, values as variants.
#pragma once

#include <windows.h>
// after <windows.h>
#include <comutil.h>
#include <oaidl.h>

#include <string>
#include <vector>

#include "host/base/Text.h"

namespace nv::host {

/// What a call failed with, as a script sees it: the number of a run-time error is the classic one.
CallError callError(HRESULT result, std::wstring description);

/// Fails with the error information that the called object left, or with the system's text for `result`.
void check(HRESULT result);

void putProperty(IDispatch& object, const std::wstring& name, const Value& value);

/// Reads a property. A value of another type than a text or a 16-bit number is a Failure: the component has none.
Value getProperty(IDispatch& object, const std::wstring& name);

/// The names of the properties that can be read, in the order of the interface.
std::vector<std::wstring> readableProperties(IDispatch& object);

}  // namespace nv::host
