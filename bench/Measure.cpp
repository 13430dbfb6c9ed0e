#include "bench/Measure.h"

#include <algorithm>
#include <vector>

namespace nv::bench {

namespace {

Quartiles quartiles(std::vector<double>& values) {
  std::ranges::sort(values);
  const std::size_t quarter = values.size() / 4;
  return {values[quarter], values[values.size() / 2], values[values.size() - 1 - quarter]};
}

}  // namespace

Comparison compare(const Sample& ours, const Sample& bare, std::size_t samples) {
  ours();
  bare();
  std::vector<double> oursTook;
  std::vector<double> bareTook;
  while (bareTook.size() < samples) {
    oursTook.push_back(ours());
    bareTook.push_back(bare());
  }
  return {quartiles(oursTook), quartiles(bareTook)};
}

}  // namespace nv::bench
