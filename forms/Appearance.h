// Colours and fonts as controls carry them.
#pragma once

#include <cstdint>
#include <string>

namespace nv::forms {

/// A colour value: 0x00BBGGRR, or 0x80000000 plus the index of a system colour, which follows the user's settings.
using Colour = std::uint32_t;

namespace colours {
inline constexpr Colour system(std::uint32_t index) {
  return 0x80000000U | index;
}
inline constexpr Colour windowBackground = system(5);
inline constexpr Colour buttonFace = system(15);
inline constexpr Colour white = 0x00FFFFFFU;
}  // namespace colours

/// A font by name and size in points; what the machine does not have is replaced by the system's nearest.
struct Font {
  std::wstring name = L"MS Sans Serif";
  int points = 8;
  bool bold = false;
  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace nv::forms
