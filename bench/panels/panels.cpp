// What a panel costs in memory: a typed digit with all its handlers, and making and dropping a panel.
#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

#include "platforms/memory/platform.h"
#include "qvn/panels/master/ctlIVA.h"
#include "qvn/shared/Globale.h"
#include "tests/allocations.h"

namespace qvn::bench {
namespace {

/// A host that listens and does nothing.
class Host final : public toolkit::Container {
 public:
  void PropertyChanged(toolkit::Surface&, std::string_view name) override { benchmark::DoNotOptimize(name); }
  void handlerFailed(toolkit::Surface&, toolkit::Widget&, std::string_view, const Failure&) noexcept override {
    ++failures;
  }

  std::int64_t failures = 0;
};

/// The library on the memory platform.
struct Office {
  Office() { Globale::install(platform); }
  ~Office() { Globale::unload(); }

  std::unique_ptr<ctlIVA> panel() { return std::make_unique<ctlIVA>(PanelSite{.container = host, .name = "iva"}); }

  memory::Platform platform;
  Host host;
};

/// One digit over the selected one in TxtIVA: filter, text, notice and range rule. The argument is how many panels
/// live.
void typingADigit(benchmark::State& state) {
  Office office;
  std::vector<std::unique_ptr<ctlIVA>> panels(static_cast<std::size_t>(state.range(0)));
  for (auto& panel : panels) panel = office.panel();
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

/// Making and dropping a panel of nine widgets, with the heap that it takes at its peak.
void makingAndDroppingAPanel(benchmark::State& state) {
  Office office;
  office.panel();  // what is made once for all panels is not counted
  const std::int64_t before = test::liveBytes();
  const std::int64_t allocationsBefore = test::allocationCount();
  test::resetPeak();
  office.panel();
  const std::int64_t taken = test::peakBytes() - before;
  const std::int64_t allocations = test::allocationCount() - allocationsBefore;
  if (test::liveBytes() != before) return state.SkipWithError("dropping the panel did not give back all that it took");
  for (auto _ : state) benchmark::DoNotOptimize(office.panel());
  state.counters["peak_bytes"] = static_cast<double>(taken);
  state.counters["allocations"] = static_cast<double>(allocations);
}
BENCHMARK(makingAndDroppingAPanel);

}  // namespace
}  // namespace qvn::bench
