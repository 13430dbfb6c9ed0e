#include "component/core/StringArray.h"

#include <limits>

#include "platform/RuntimeError.h"

namespace nv {

StringArray::StringArray(std::vector<Bounds> dimensions) : dimensions_(std::move(dimensions)) {
  std::size_t count = dimensions_.empty() ? 0 : 1;
  for (const Bounds& bounds : dimensions_) {
    const std::size_t size = bounds.size();
    if (size != 0 && count > std::numeric_limits<std::size_t>::max() / size)
      throw RuntimeError(ErrorNumber::outOfMemory);
    count *= size;
  }
  elements_.resize(count);
}

const StringArray::Bounds& StringArray::bounds(std::size_t dimension) const {
  if (dimension >= dimensions_.size()) throw RuntimeError(ErrorNumber::subscriptOutOfRange);
  return dimensions_[dimension];
}

std::size_t StringArray::position(std::initializer_list<std::int32_t> subscripts) const {
  if (dimensions_.empty() || subscripts.size() != dimensions_.size()) {
    throw RuntimeError(ErrorNumber::subscriptOutOfRange);
  }
  std::size_t position = 0;
  std::size_t stride = 1;
  auto bounds = dimensions_.begin();
  for (const std::int32_t subscript : subscripts) {
    if (subscript < bounds->lower || subscript > bounds->upper) throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    position += stride * static_cast<std::size_t>(std::int64_t{subscript} - bounds->lower);
    stride *= bounds->size();
    ++bounds;
  }
  return position;
}

}  // namespace nv
