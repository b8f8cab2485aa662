#include "bench/values/samples.h"

#include <cmath>
#include <random>

#include "qvn/shared/conversions.h"

namespace qvn::bench {

const std::array<Currency, kSamples>& amounts() {
  static const auto all = [] {
    std::array<Currency, kSamples> made;
    std::mt19937_64 random(1024);
    std::uniform_real_distribution<double> size(2, 11);
    for (Currency& amount : made) {
      const auto count = static_cast<std::int64_t>(std::pow(10, size(random)));
      amount = Currency::fromTenThousandths(random() % 5 == 0 ? -count : count);
    }
    return made;
  }();
  return all;
}

const std::array<double, kSamples>& doubles() {
  static const auto all = [] {
    std::array<double, kSamples> made{};
    for (std::size_t i = 0; i < kSamples; ++i) made[i] = toDouble(amounts()[i]) / 1000.0 * 1000.0;
    return made;
  }();
  return all;
}

const std::array<std::int64_t, kSamples>& cents() {
  static const auto all = [] {
    std::array<std::int64_t, kSamples> made{};
    for (std::size_t i = 0; i < kSamples; ++i) {
      const std::int64_t count = amounts()[i].tenThousandths();
      made[i] = (count + (count < 0 ? -50 : 50)) / 100;
    }
    return made;
  }();
  return all;
}

}  // namespace qvn::bench
