// A variable's value for the length of a scope.
#pragma once

#include <utility>

namespace nv {

/// Sets a variable; its former value comes back at the end of the scope, however that is left.
template <class Value>
class ScopedValue {
 public:
  ScopedValue(Value& variable, Value value) : variable_(variable), before_(std::exchange(variable, std::move(value))) {}
  ~ScopedValue() { variable_ = std::move(before_); }
  ScopedValue(const ScopedValue&) = delete;
  ScopedValue& operator=(const ScopedValue&) = delete;

 private:
  Value& variable_;
  Value before_;
};

}  // namespace nv
