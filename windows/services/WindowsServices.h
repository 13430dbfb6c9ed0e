// The operating system's services behind platform/Services.h.
#pragma once

#include "platform/Services.h"

namespace nv::windows {

/// The one set of services: stateless, usable from any thread.
const platform::Services& windowsServices();

}  // namespace nv::windows
