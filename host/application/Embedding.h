// How a host takes the dialog of ShowForm_Remote into a window of its own. On the user-interface thread.
#pragma once

#include <memory>

#include "host/application/Biller.h"
#include "host/application/HostWindow.h"

namespace nv::host {

/// A window of the host with just enough room for the connected dialog.
std::unique_ptr<HostWindow> windowFor(Biller& biller);

/// Puts the connected dialog into the window, at its origin, which passes the keyboard on to it. The host does no more
/// for the dialog than this: before ShowForm_Remote or after it, as it likes.
void embed(Biller& biller, HostWindow& window);

}  // namespace nv::host
