// Colours and fonts as controls carry them.
#pragma once

#include <cstdint>
#include <string>

namespace nv::forms {

/// A colour value: 0x00BBGGRR, or 0x80000000 plus the index of a system colour, which follows the user's settings.
using Colour = std::uint32_t;

/// A background and the colour of text on it, which go together: in a contrast theme the system's text colour may be
/// any, and cannot be read on a background that a style prescribes.
struct Colours {
  Colour back = 0;
  Colour text = 0;
  friend bool operator==(const Colours&, const Colours&) = default;
};

namespace colours {
inline constexpr Colour system(std::uint32_t index) {
  return 0x80000000U | index;
}
inline constexpr Colours window{system(5), system(8)};
inline constexpr Colours buttonFace{system(15), system(18)};
inline constexpr Colours blackOnWhite{0x00FFFFFFU, 0x00000000U};
}  // namespace colours

/// How a control is to be drawn.
struct Look {
  bool alive = true;    // the user can work with it: arrows, marks, icons and links show that
  bool greyed = false;  // its text is written in the system's grey
  Colours colours;
  friend bool operator==(const Look&, const Look&) = default;
};

/// A font by name and size in points; what the machine does not have is replaced by the system's nearest.
struct Font {
  std::wstring name = L"MS Sans Serif";
  int points = 8;
  bool bold = false;
  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace nv::forms
