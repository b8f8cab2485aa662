// Times of two that take turns, so that what else the machine does falls on both.
#pragma once

#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <vector>

namespace qvn::bench {

/// What has passed since the stopwatch was made, in seconds.
class ProcessorTime {
 public:
  double seconds() const { return static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC; }

 private:
  std::clock_t start_ = std::clock();
};

/// For what is too short for the processor's own clock; its median leaves out what the machine did meanwhile.
class WallTime {
 public:
  double seconds() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count(); }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// Ours beside the same in plain Qt.
class Comparison {
 public:
  void add(double ours, double plain) {
    ours_.push_back(ours);
    plain_.push_back(plain);
  }
  /// The medians in microseconds, by the count of what was done each time, and "ratio", the first by the second.
  void report(benchmark::State& state, double each = 1);

 private:
  std::vector<double> ours_;
  std::vector<double> plain_;
};

}  // namespace qvn::bench
