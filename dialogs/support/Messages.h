// Texts that more than one dialog shows.
#pragma once

namespace nv {

inline constexpr const wchar_t* postOfficeBoxMessage =
    L"Post Office Box address cannot be used.  Please enter physical street address.";

}  // namespace nv
