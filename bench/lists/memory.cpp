// What a pick list takes of the heap, beside the texts that it shows. What SQLite takes for itself, its cache of pages
// above all, is not among it.
#include <benchmark/benchmark.h>
#include <cstdint>

#include "bench/lists/clients.h"
#include "bench/lists/desk.h"
#include "tests/allocations.h"

namespace qvn::bench {
namespace {

/// "live" is what the list takes while it stands, "peak" the most from the key to then, both by the bytes of the texts.
void memoryOfAList(benchmark::State& state) {
  const Clients& office = clients(state.range(0));
  Desk desk(office.path());
  std::int64_t before = 0;
  std::int64_t live = 0;
  std::int64_t peak = 0;
  for (auto _ : state) {
    before = test::liveBytes();
    test::resetPeak();
    desk.openList([&](const toolkit::ListView& /*list*/) {
      live = test::liveBytes() - before;
      peak = test::peakBytes() - before;
    });
  }
  if (desk.failed() || desk.chosen().empty()) state.SkipWithError("the list failed");
  const auto texts = static_cast<double>(office.textBytes());
  state.counters["texts_MB"] = texts / 1e6;
  state.counters["live"] = static_cast<double>(live) / texts;
  state.counters["peak"] = static_cast<double>(peak) / texts;
}
BENCHMARK(memoryOfAList)->Arg(100'000)->Arg(1'000'000)->ArgName("rows")->Iterations(2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
