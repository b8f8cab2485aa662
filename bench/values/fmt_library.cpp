// fmt with the numbers of an Italian locale.
#include <array>
#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <locale>
#include <string>

#include "bench/values/allocations.h"
#include "bench/values/samples.h"

namespace qvn::bench {
namespace {

class ItalianNumbers : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

void fmtFormatDouble(benchmark::State& state) {
  const std::locale italian(std::locale::classic(), new ItalianNumbers);  // owned by the locale
  doubles();
  std::array<char, 128> text{};
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(fmt::format_to(text.data(), italian, FMT_STRING("€ {:.2Lf}"), doubles()[turn.next()]));
  }
}
BENCHMARK(fmtFormatDouble);

/// Without grouping and with the point: what the digits alone cost.
void fmtFormatDoublePlain(benchmark::State& state) {
  doubles();
  std::array<char, 128> text{};
  Turn turn;
  const Counting counting(state);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(fmt::format_to(text.data(), FMT_STRING("{:.2f}"), doubles()[turn.next()]));
  }
}
BENCHMARK(fmtFormatDoublePlain);

}  // namespace
}  // namespace qvn::bench
