// The stand-in cipher for country files: DES in cipher block chaining, as the platform's cryptographic service does it,
// with a key of its own. The real library's key and file form are not known here and not needed: whoever has the real
// library has files that were enciphered for it.
#pragma once

#include <optional>
#include <string>

namespace nv::host {

/// Nothing when the cryptographic service is missing.
std::optional<std::string> enciphered(std::string bytes);

/// Nothing when the bytes are not what `enciphered` made: not of whole blocks, or without its filling at the end.
std::optional<std::string> deciphered(std::string bytes);

}  // namespace nv::host
