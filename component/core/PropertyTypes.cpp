#include "component/core/PropertyTypes.h"

#include "platform/RuntimeError.h"

namespace nv::property {

void ProvinceTable::assign(Stored& stored, Argument value) {
  const std::int32_t upper = value.upperBound(1);
  for (std::int32_t i = 0; i < upper; ++i) {
    if (static_cast<std::size_t>(i) >= stored.size()) throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    ProvinceRow& row = stored[static_cast<std::size_t>(i)];
    row.code = value.element(0, i);
    row.areaCodes = value.element(1, i);
  }
}

}  // namespace nv::property
