// Qt's Italian locale, made once.
#include <QLocale>
#include <QString>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <vector>

#include "bench/values/allocations.h"
#include "bench/values/samples.h"

namespace qvn::bench {
namespace {

void qtFormatDouble(benchmark::State& state) {
  const QLocale italian(QLocale::Italian, QLocale::Italy);
  doubles();
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    const QString text = italian.toCurrencyString(doubles()[turn.next()]);
    benchmark::DoNotOptimize(text.data());
  }
}
BENCHMARK(qtFormatDouble);

/// From grouped texts without a symbol, which it would not take.
void qtParseDouble(benchmark::State& state) {
  const QLocale italian(QLocale::Italian, QLocale::Italy);
  std::vector<QString> texts;
  texts.reserve(kSamples);
  for (const double value : doubles()) texts.push_back(italian.toString(value, 'f', 2));
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    bool isNumber = false;
    benchmark::DoNotOptimize(italian.toDouble(texts[turn.next()], &isNumber));
    if (!isNumber) std::abort();
  }
}
BENCHMARK(qtParseDouble);

}  // namespace
}  // namespace qvn::bench
