// What every test says its expectations with. For tests only.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/RuntimeError.h"

namespace nv::test {

using Texts = std::vector<std::wstring>;

/// The number of the run-time error that it fails with, or 0.
template <class Act>
std::int32_t errorOf(Act&& act) {
  try {
    std::forward<Act>(act)();
    return 0;
  } catch (...) {
    return RuntimeError::current().number();
  }
}

}  // namespace nv::test
