// Registers the stand-ins for the other programs of a host's machine.
#pragma once

#include <filesystem>

namespace nv::host {

/// Points the machine's help viewer and web browser to the stand-ins beside nvhost, so that requests are noted instead
/// of shown. For test machines and private Wine prefixes only: the real ones are replaced. Fails with Failure.
void registerStandIns(const std::filesystem::path& program);

}  // namespace nv::host
