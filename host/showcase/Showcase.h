// nvhost for people: the demo that runs by itself, and the dialog to try out by hand.
#pragma once

#include <string_view>

#include "host/scenario/Runner.h"

namespace nv::host {

/// Shows the sample biller modally, then embedded, types into the dialog as a user would, and prints what became of the
/// record. Pictures go to the folder demo of the build. Returns the exit code of nvhost.
int runDemo(const Folders& folders);

/// Opens the dialog with the sample biller for whoever sits at the screen, and prints events and result as they come.
/// @param kind "modal", "remote" or "import"; anything else is a Failure.
int showForPerson(const Folders& folders, std::wstring_view kind);

}  // namespace nv::host
