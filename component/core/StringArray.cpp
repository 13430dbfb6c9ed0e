#include "component/core/StringArray.h"

#include "platform/RuntimeError.h"

namespace nv {

StringArray::StringArray(std::vector<Bounds> dimensions) : dimensions_(std::move(dimensions)) {
  std::size_t count = dimensions_.empty() ? 0 : 1;
  for (const Bounds& bounds : dimensions_) count *= bounds.size();
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
