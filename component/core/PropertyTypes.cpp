#include "component/core/PropertyTypes.h"

#include "platform/RuntimeError.h"

namespace nv::property {

void ProvinceTable::assign(Stored& stored, Argument value) {
  const StringArray table = value.array();
  const std::int32_t upper = table.bounds(1).upper;
  for (std::int32_t i = 0; i < upper; ++i) {
    if (static_cast<std::size_t>(i) >= stored.size()) throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    stored[static_cast<std::size_t>(i)] = {table.at({0, i}), table.at({1, i})};
  }
}

}  // namespace nv::property
