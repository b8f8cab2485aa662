// This library's own.
#include <benchmark/benchmark.h>
#include <vector>

#include "bench/values/allocations.h"
#include "bench/values/samples.h"
#include "qvn/shared/conversions.h"
#include "qvn/shared/patterns.h"

namespace qvn::bench {
namespace {

const Locale kItalian;

void formatCurrency(benchmark::State& state) {
  amounts();
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(format(amounts()[turn.next()], Pattern::Currency, kItalian).view().data());
  }
}
BENCHMARK(formatCurrency);

void formatDouble(benchmark::State& state) {
  doubles();
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(format(doubles()[turn.next()], Pattern::Currency, kItalian).view().data());
  }
}
BENCHMARK(formatDouble);

std::vector<std::string> currencyTexts() {
  std::vector<std::string> texts;
  texts.reserve(kSamples);
  for (const Currency amount : amounts()) texts.push_back(format(amount, Pattern::Currency, kItalian).str());
  return texts;
}

void parseCurrency(benchmark::State& state) {
  const std::vector<std::string> texts = currencyTexts();
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(toCurrency(texts[turn.next()], kItalian));
  }
}
BENCHMARK(parseCurrency);

void parseDouble(benchmark::State& state) {
  const std::vector<std::string> texts = currencyTexts();
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(toDouble(texts[turn.next()], kItalian));
  }
}
BENCHMARK(parseDouble);

void doubleToCurrency(benchmark::State& state) {
  doubles();
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(toCurrency(doubles()[turn.next()]));
}
BENCHMARK(doubleToCurrency);

}  // namespace
}  // namespace qvn::bench
