// Registers the stand-in for the account verifier, for hosts that do not have it side by side as nvhost has.
#pragma once

#include <filesystem>

namespace nv::host {

/// Registers the stand-in for the machine: for private Wine prefixes only. Fails with Failure.
void registerVerifier(const std::filesystem::path& library);

/// Takes its program identifier out of the registry: as if it had never been installed. Fails with Failure.
void withdrawVerifier();

}  // namespace nv::host
