// Measures of the forms toolkit. Everything is in twips, so that a form is described once and drawn sharply at any dpi.
#pragma once

namespace nv::forms {

/// 1/1440 inch; 15 twips are one pixel at 96 dpi.
using Twips = int;

/// Where a control stands within its container (a form within the screen or the host's window), in twips.
struct Place {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;

  constexpr Twips right() const { return left + width; }
  constexpr Twips bottom() const { return top + height; }
  friend constexpr bool operator==(const Place&, const Place&) = default;
};

}  // namespace nv::forms
