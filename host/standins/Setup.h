// Registers the stand-ins for the other programs and components of a host's machine.
#pragma once

#include <filesystem>

namespace nv::host {

/// Points the machine's help viewer and web browser to the stand-ins beside nvhost, so that requests are noted instead
/// of shown, and registers the stand-in verifier. For test machines and private Wine prefixes only: the real ones are
/// replaced. Fails with Failure.
void registerStandIns(const std::filesystem::path& program);

/// Registers the stand-in verifier alone. Fails with Failure.
void registerVerifier(const std::filesystem::path& library);

/// Takes the verifier's program identifier out of the registry: as if it had never been installed. Fails with Failure.
void withdrawVerifier();
/// Puts back what withdrawVerifier took. A machine that has not been set up stays as it is.
void restoreVerifier() noexcept;

}  // namespace nv::host
