// What a digit of a quota costs: filter, change rule, the amounts that follow it and the announcement. Beside it the
// same six shares worked out and printed by the C library, without a field or a panel.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "bench/panels/office.h"
#include "qvn/panels/quotas/ctlQ_POLIZZE.h"
#include "qvn/panels/quotas/ctlQ_SINISTRI.h"
#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"

namespace qvn::bench {
namespace {

constexpr std::int64_t kTenThousandthsOfACent = 100;

/// In cents, row by row: one family, what goes to the lead coinsurer, the other family.
constexpr std::array<std::int64_t, 9> kOfPolicy{123'456, 0, 98'765, 10'050, 5'000, 8'040, 150'000, 5'000, 120'000};
constexpr std::array<std::int64_t, 3> kOfClaim{557'595, 457'228, 0};

CurrencyArray figures(std::vector<std::size_t> extents, std::span<const std::int64_t> cents) {
  CurrencyArray result{.extents = std::move(extents), .values = {}};
  result.values.reserve(cents.size());
  for (const std::int64_t figure : cents) {
    result.values.push_back(Currency::fromTenThousandths(figure * kTenThousandthsOfACent));
  }
  return result;
}

void load(ctlQ_POLIZZE& panel) { panel.Imposta_VALORI(figures({3, 3}, kOfPolicy)); }
void load(ctlQ_SINISTRI& panel) { panel.Imposta_VALORI(figures({3}, kOfClaim)); }

/// The last digit of a quota typed over, by turns 7 and 8. The argument ticks the flag of the lead coinsurer.
template <class Panel>
void typingADigitOfAQuota(benchmark::State& state) {
  Office office;
  const auto panel = office.panel<Panel>();
  panel->DELEGATARIA(state.range(0) != 0);
  load(*panel);
  panel->Attiva();
  Operator& hands = office.platform.hands();
  hands.type("250");
  bool seven = false;
  for (auto _ : state) {
    seven = !seven;
    hands.caret(2, 1);
    hands.type(seven ? "7" : "8");
  }
  if (panel->QUOTA() != (seven ? 257 : 258) || office.host.failures != 0) {
    state.SkipWithError("the digit did not go in");
  }
}
BENCHMARK(typingADigitOfAQuota<ctlQ_POLIZZE>)->Arg(0)->Arg(1);
BENCHMARK(typingADigitOfAQuota<ctlQ_SINISTRI>)->Arg(0);

void sixSharesPrinted(benchmark::State& state) {
  std::array<std::string, 6> shown;
  std::array<char, 64> room{};
  double quota = 257;
  for (auto _ : state) {
    quota = 515 - quota;
    for (std::size_t i = 0; i < shown.size(); ++i) {
      const double whole = static_cast<double>(kOfPolicy[i % 3 * 3 + i / 3 * 2]) / 100.0;
      const int length = std::snprintf(room.data(), room.size(), "€ %.2f", whole / 1000.0 * quota);
      shown[i].assign(room.data(), static_cast<std::size_t>(length));
    }
    benchmark::DoNotOptimize(shown);
  }
}
BENCHMARK(sixSharesPrinted);

}  // namespace
}  // namespace qvn::bench
