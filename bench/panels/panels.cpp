// What a panel costs on the memory platform: a typed digit with all its handlers, and making and dropping a panel.
#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

#include "bench/panels/office.h"
#include "qvn/panels/commissions/ctlPROV_POLIZZE.h"
#include "qvn/panels/documents/ctlRICERCA.h"
#include "qvn/panels/master/ctlIVA.h"
#include "tests/allocations.h"

namespace qvn::bench {
namespace {

/// One digit over the selected one in TxtIVA: filter, text, notice and range rule. The argument is how many panels
/// live.
void typingADigit(benchmark::State& state) {
  Office office;
  std::vector<std::unique_ptr<ctlIVA>> panels(static_cast<std::size_t>(state.range(0)));
  for (auto& panel : panels) panel = office.panel<ctlIVA>();
  ctlIVA& panel = *panels[panels.size() / 2];
  panel.Attiva();
  toolkit::TextBox& box = panel.surface().textBox("TxtIVA");
  box.SetFocus();
  Operator& hands = office.platform.hands();
  hands.type("5");
  for (auto _ : state) {
    hands.caret(0, 1);
    hands.type("7");
  }
  if (box.Text() != "7" || office.host.failures != 0) state.SkipWithError("the digit did not go in");
}
BENCHMARK(typingADigit)->Arg(1)->Arg(10'000);

/// Making and dropping a panel, with the heap that it takes while it lives and at its peak.
template <class Panel>
void makingAndDroppingAPanel(benchmark::State& state) {
  Office office;
  office.panel<Panel>();  // what is made once for all panels is not counted
  const std::int64_t before = test::liveBytes();
  const std::int64_t allocationsBefore = test::allocationCount();
  test::resetPeak();
  auto panel = office.panel<Panel>();
  const std::int64_t live = test::liveBytes() - before;
  const std::int64_t peak = test::peakBytes() - before;
  const std::int64_t allocations = test::allocationCount() - allocationsBefore;
  panel.reset();
  if (test::liveBytes() != before) return state.SkipWithError("dropping the panel did not give back all that it took");
  for (auto _ : state) benchmark::DoNotOptimize(office.panel<Panel>());
  state.counters["live_bytes"] = static_cast<double>(live);
  state.counters["peak_bytes"] = static_cast<double>(peak);
  state.counters["allocations"] = static_cast<double>(allocations);
}
BENCHMARK(makingAndDroppingAPanel<ctlIVA>);
BENCHMARK(makingAndDroppingAPanel<ctlPROV_POLIZZE>);
BENCHMARK(makingAndDroppingAPanel<ctlRICERCA>);

}  // namespace
}  // namespace qvn::bench
