#include "bench/Measure.h"

#include <algorithm>
#include <vector>

namespace nv::bench {

namespace {

double median(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

Medians compare(const Sample& ours, const Sample& bare, std::size_t samples) {
  ours();
  bare();
  std::vector<double> oursTook;
  std::vector<double> bareTook;
  while (bareTook.size() < samples) {
    oursTook.push_back(ours());
    bareTook.push_back(bare());
  }
  return {median(oursTook), median(bareTook)};
}

}  // namespace nv::bench
