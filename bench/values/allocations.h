// Counts the allocations of the whole program, those of ICU included.
#pragma once

#include <benchmark/benchmark.h>
#include <cstdint>

namespace qvn::bench {

std::int64_t allocations();

/// Reports the allocations of one item between its making and its end, and the items a second.
class Counting {
 public:
  explicit Counting(benchmark::State& state) : state_(state), before_(allocations()) {}
  ~Counting() {
    state_.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations() - before_), benchmark::Counter::kAvgIterations);
  }
  Counting(const Counting&) = delete;
  Counting& operator=(const Counting&) = delete;

 private:
  benchmark::State& state_;
  std::int64_t before_;
};

}  // namespace qvn::bench
