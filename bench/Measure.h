// How everything here is timed: both sides of a comparison by turns, so that whatever else the machine does meets both.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>

namespace nv::bench {

/// Runs one side once and tells what a piece of its work took, in seconds.
using Sample = std::function<double()>;

/// The samples of one side, in order.
struct Quartiles {
  double lower;
  double median;
  double upper;
};

/// In seconds, unless a row says otherwise.
struct Comparison {
  Quartiles ours;  // of the component
  Quartiles bare;  // of the same work without it
};

/// Of what does not vary.
inline Comparison exactly(double ours, double bare) {
  return {{ours, ours, ours}, {bare, bare, bare}};
}

/// Takes `samples` of each side by turns, after one that does not count: an odd number.
Comparison compare(const Sample& ours, const Sample& bare, std::size_t samples = 101);

using Clock = std::chrono::steady_clock;

inline double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// What running the work once takes, in seconds.
template <class Work>
double timed(Work&& work) {
  const auto start = Clock::now();
  work();
  return secondsSince(start);
}

/// A sample of work that is too short for the clock: as often as fills some milliseconds.
template <class Work>
Sample repeated(Work work) {
  constexpr double longEnough = 0.002;
  auto run = [work](std::size_t times) mutable {
    return timed([&] {
      for (std::size_t i = 0; i < times; ++i) work();
    });
  };
  std::size_t times = 1;
  while (run(times) < longEnough) times *= 2;
  return [run, times]() mutable { return run(times) / static_cast<double>(times); };
}

/// Keeps the compiler from knowing what a value is, or that nobody uses it.
template <class Value>
Value opaque(Value value) {
  asm volatile("" : "+r"(value) : : "memory");
  return value;
}

}  // namespace nv::bench
