// The interfaces that hosts call the class by.
#pragma once

#include <algorithm>

#include "NVRandom.h"
#include "windows/SystemHeaders.h"

namespace nv::windows {

struct HostInterface {
  const wchar_t* name;
  const IID* iid;
};

// The oldest first; each extends the one before it, and the object implements the newest. A further interface raises
// the version of the type library.
#ifdef ___ClsRandom2_INTERFACE_DEFINED__
using NewestInterface = _ClsRandom2;
inline constexpr HostInterface hostInterfaces[] = {{L"_ClsRandom", &IID__ClsRandom},
                                                   {L"_ClsRandom2", &IID__ClsRandom2}};
inline constexpr const wchar_t* libraryVersion = L"1.1";
#else
using NewestInterface = _ClsRandom;
inline constexpr HostInterface hostInterfaces[] = {{L"_ClsRandom", &IID__ClsRandom}};
inline constexpr const wchar_t* libraryVersion = L"1.0";
#endif

inline bool isHostInterface(REFIID iid) {
  return std::ranges::any_of(hostInterfaces, [&iid](const HostInterface& known) { return *known.iid == iid; });
}

}  // namespace nv::windows
