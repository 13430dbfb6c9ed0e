// The component-wide values: the biller record, the context that the host gives, and the few values that the class and
// the dialogs keep between them. One store per thread; every instance of the class and every dialog works on it.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "component/core/PropertyTypes.h"

namespace nv {

struct Store {
  // One member per property, named like it.
#define NV_PROPERTY_AS(id, Name, Type, Access, Tracing, Label) property::Type::Stored Name{};
#include "component/core/properties.def"

  /// Passed to the account checks; each new instance clears it.
  Flag16 verifyBusinessNumberFlag = flagFalse;

  /// How a post-office box begins, in the order in which an address is compared with them. Views of a constant.
  std::vector<std::wstring_view> postOfficeBoxWords;

  /// The Windows and the system directory, each with a trailing backslash; empty until asked for.
  std::wstring windowsDirectory;
  std::wstring systemDirectory;

  /// The fonts that could not be copied to the machine, by the path that they were added from instead, and whether that
  /// worked.
  std::map<std::wstring, bool> uncopiedFonts;

  /// The root of the host installation: DLLPath up to and including the backslash before its first "NORVIK", compared
  /// to the letter; empty when there is none.
  std::wstring gstrInstallRoot() const;
};

}  // namespace nv
