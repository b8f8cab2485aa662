// What the commission panel costs beside its database: a typed digit that the whole panel follows, and participants
// loaded, worked out and read back by a batch.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>

#include "bench/panels/office.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/shared/currency.h"
#include "qvn/shared/variant.h"

namespace qvn::bench {
namespace {

constexpr std::int64_t kTenThousandthsOfACent = 100;

Currency euros(std::int64_t cents) { return Currency::fromTenThousandths(cents * kTenThousandthsOfACent); }

/// Premiums of a whole policy: what the quota shares out, and what goes to the lead coinsurer.
CurrencyArray premiums(std::array<std::int64_t, 3> shared, std::array<std::int64_t, 3> lead) {
  CurrencyArray result{.extents = {3, 2}, .values = {}};
  result.values.reserve(6);
  for (std::size_t i = 0; i < shared.size(); ++i) {
    result.values.push_back(euros(shared[i]));
    result.values.push_back(euros(lead[i]));
  }
  return result;
}

struct Participant {
  std::string company;
  std::string producer;
  std::string alternate;
  bool lead;
  CurrencyArray premiums;
  std::int16_t quota;
  std::array<std::int32_t, 3> office;  ///< percents of PN, ACC and AQ
  std::array<std::int32_t, 3> ofProducer;
  std::array<std::int32_t, 3> ofAlternate;
};

/// What a host reads back.
struct Commission {
  std::array<Currency, 9> amounts;
  std::array<Variant, 9> percents;
  Variant earned;
  Variant passedOn;
};

void load(ctlPROV_POLIZZE& panel, const Participant& participant) {
  panel.COD_COMPAGNIA(participant.company);
  panel.COD_PRODUTTORE(participant.producer);
  panel.COD_PRODUTTORE_ALT(participant.alternate);
  panel.DELEGATARIA(participant.lead);
  panel.VALORI(participant.premiums);
  panel.QUOTA(participant.quota);
  panel.CALC_PROD(1);
  panel.CALC_PROD_ALT(2);
  panel.Attiva();
  panel.P_PN_UFF(participant.office[0]);
  panel.P_ACC_UFF(participant.office[1]);
  panel.P_AQ_UFF(participant.office[2]);
  panel.P_PN_PROD(participant.ofProducer[0]);
  panel.P_ACC_PROD(participant.ofProducer[1]);
  panel.P_AQ_PROD(participant.ofProducer[2]);
  panel.P_PN_PROD_ALT(participant.ofAlternate[0]);
  panel.P_ACC_PROD_ALT(participant.ofAlternate[1]);
  panel.P_AQ_PROD_ALT(participant.ofAlternate[2]);
}

Commission read(const ctlPROV_POLIZZE& panel) {
  return {.amounts = {panel.PN_UFF(), panel.ACC_UFF(), panel.AQ_UFF(), panel.PN_PROD(), panel.ACC_PROD(),
                      panel.AQ_PROD(), panel.PN_PROD_ALT(), panel.ACC_PROD_ALT(), panel.AQ_PROD_ALT()},
          .percents = {panel.P_PN_UFF(), panel.P_ACC_UFF(), panel.P_AQ_UFF(), panel.P_PN_PROD(), panel.P_ACC_PROD(),
                       panel.P_AQ_PROD(), panel.P_PN_PROD_ALT(), panel.P_ACC_PROD_ALT(), panel.P_AQ_PROD_ALT()},
          .earned = panel.P_ATTIVE(),
          .passedOn = panel.P_PASSIVE()};
}

/// The lead coinsurer with 600 thousandths of 1.000,00, 100,00 and 1.265,00.
Participant leadCoinsurer() {
  return {.company = "AOLM",
          .producer = "NARDE009",
          .alternate = "ORSRO047",
          .lead = true,
          .premiums = premiums({100'000, 10'000, 126'500}, {0, 5'000, 5'000}),
          .quota = 600,
          .office = {12, 10, 5},
          .ofProducer = {8, 5, 2},
          .ofAlternate = {30, 30, 30}};
}

/// What some work takes of the processor, whatever else the machine does meanwhile.
template <class Work>
double microsecondsOf(const Work& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) * 1e6 / CLOCKS_PER_SEC;
}

/// One digit over another in the office's AQ percent, which the summary follows key by key: filter, change rules, quota
/// rule with all nine amounts, and summary. "beyond" is what it takes in microseconds beside its look-ups, which take
/// turns with it.
void typingADigitOfAQ(benchmark::State& state) {
  constexpr std::int64_t kTurn = 256;
  Office office;
  const auto panel = office.panel<ctlPROV_POLIZZE>();
  load(*panel, leadCoinsurer());
  panel->TOTALI();
  panel->surface().textBox("TxtP_AQ_UFF").SetFocus();
  Operator& hands = office.platform.hands();
  hands.type("5");

  const auto type = [&](std::string_view digit) {
    hands.caret(0, 1);
    hands.type(digit);
  };
  const std::int64_t before = office.database.answered;
  type("6");
  const std::int64_t lookups = office.database.answered - before;

  std::string producer = panel->COD_PRODUTTORE();
  double typing = 0;
  double lookingUp = 0;
  while (state.KeepRunningBatch(kTurn)) {
    const double took = microsecondsOf([&] {
      for (std::int64_t i = 0; i < kTurn; ++i) type(i % 2 == 0 ? "7" : "8");
    });
    lookingUp += microsecondsOf([&] {
      for (std::int64_t i = 0; i < kTurn * lookups; ++i) {
        auto percent = QVN_Ricerche::CercaR_ACC(producer);
        benchmark::DoNotOptimize(percent);
      }
    });
    typing += took;
    state.SetIterationTime(took / 1e6);
  }
  const auto digits = static_cast<double>(state.iterations());
  state.counters["lookups"] = static_cast<double>(lookups);
  state.counters["beyond"] = (typing - lookingUp) / digits;

  type("5");
  if (lookups == 0 || office.host.failures != 0 || panel->AQ_UFF() != euros(3'000))
    state.SkipWithError("the digit did not go in, or the amount did not follow");
}
BENCHMARK(typingADigitOfAQ)->UseManualTime()->Unit(benchmark::kMicrosecond);

/// One of a batch, different from the one before in everything that is worked out.
Participant participantOf(std::int64_t i) {
  const std::int64_t net = 20'000 + i % 9'973 * 17;
  const std::int64_t accessories = 1'000 + i % 977 * 3;
  const auto step = static_cast<std::int32_t>(i % 7);
  Participant result = leadCoinsurer();
  result.company = i % 2 == 0 ? "AOLM" : "ACIT";
  result.producer = i % 3 == 0 ? "NARDE009" : "SERRA020";
  result.lead = i % 4 == 0;
  result.premiums = premiums({net, accessories, (net + accessories) * 5 / 4}, {0, 5'000, 5'000});
  result.quota = static_cast<std::int16_t>(1 + i % 1000);
  result.office = {10 + step, 8 + step, 1 + step};
  result.ofProducer = {5 + step, 3 + step, 1 + step};
  result.ofAlternate = {20 + step, 25 + step, 30 + step};
  return result;
}

/// So many participants through one panel and its public members, from the codes to the amounts read back.
void batchOfParticipants(benchmark::State& state) {
  Office office;
  const auto panel = office.panel<ctlPROV_POLIZZE>();
  const auto workedOut = [&](const Participant& participant) {
    load(*panel, participant);
    panel->TOTALI();
    Commission result = read(*panel);
    panel->Disattiva();
    return result;
  };
  for (auto _ : state) {
    for (std::int64_t i = 0; i < state.range(0); ++i) {
      Commission commission = workedOut(participantOf(i));
      benchmark::DoNotOptimize(commission);
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  // 72,00, 11,00 and 30,00; 65,50 and 30 percent of the 113,00.
  const Commission last = workedOut(leadCoinsurer());
  if (office.host.failures != 0 || last.earned != Variant(euros(11'300)) || last.passedOn != Variant(euros(9'940)))
    state.SkipWithError("the amounts are not those that they must be");
}
BENCHMARK(batchOfParticipants)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
