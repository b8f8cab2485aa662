// The amounts that all benchmarks work on.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "qvn/shared/currency.h"

namespace qvn::bench {

inline constexpr std::size_t kSamples = 1024;

/// From cents to ten million, each size as often, one in five negative, with four decimals.
const std::array<Currency, kSamples>& amounts();

/// The same amounts, as doubles that came out of a product.
const std::array<double, kSamples>& doubles();

/// The amounts rounded to whole cents.
const std::array<std::int64_t, kSamples>& cents();

/// What a benchmark goes through, round and round.
class Turn {
 public:
  std::size_t next() { return at_ = (at_ + 1) % kSamples; }

 private:
  std::size_t at_ = 0;
};

}  // namespace qvn::bench
