// The dialog to try out by hand.
#pragma once

#include <filesystem>
#include <string_view>

#include "host/application/Installation.h"

namespace nv::host {

/// Opens the dialog with a biller for whoever sits at the screen, and prints events, result and record. Returns the
/// exit code of nvhost.
/// @param kind "modal", "remote" or "import"; anything else is a Failure.
/// @param biller a file of the scenarios' billers.
int showForPerson(const Installation& installation, std::wstring_view kind, const std::filesystem::path& biller);

}  // namespace nv::host
