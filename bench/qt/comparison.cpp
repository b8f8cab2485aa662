#include "bench/qt/comparison.h"

#include <algorithm>
#include <cstddef>

namespace qvn::bench {

namespace {

double medianOf(std::vector<double>& times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::ranges::nth_element(times, middle);
  return *middle;
}

}  // namespace

void Comparison::report(benchmark::State& state, double each) {
  if (ours_.empty()) return;
  const double ours = medianOf(ours_);
  const double plain = medianOf(plain_);
  state.counters["ours_us"] = ours * 1e6 / each;
  state.counters["plain_us"] = plain * 1e6 / each;
  state.counters["ratio"] = ours / plain;
}

}  // namespace qvn::bench
