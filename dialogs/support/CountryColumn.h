// The columns of the country lists.
#pragma once

#include <cstddef>

namespace nv {

enum CountryColumn : std::size_t { countryName, countryCode, countryPhone, countryColumns };

}  // namespace nv
