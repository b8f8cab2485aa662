// What a pick list costs beside a bare loop over the database's rows that copies the same texts and sorts them with the
// standard library's stable sort. The two take turns, so that what else the machine does falls on both; times are the
// processor's, and "ratio" is the first by the second.
#include <benchmark/benchmark.h>
#include <cstdint>
#include <ctime>
#include <string>
#include <vector>

#include "bench/lists/clients.h"
#include "bench/lists/desk.h"
#include "bench/lists/plain_list.h"

namespace qvn::bench {
namespace {

constexpr std::int64_t kMany = 100'000;
constexpr std::int64_t kVeryMany = 1'000'000;

double secondsSince(std::clock_t start) { return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC; }

/// Times of two that take turns.
struct Comparison {
  double ours = 0;
  double plain = 0;

  void report(benchmark::State& state) const {
    const auto times = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = ours * 1e3 / times;
    state.counters["plain_ms"] = plain * 1e3 / times;
    state.counters["ratio"] = ours / plain;
  }
};

bool showsAll(const toolkit::ListView& list, const std::vector<PlainRow>& rows) {
  if (list.rowCount() != static_cast<std::int32_t>(rows.size())) return false;
  std::int32_t at = 0;
  for (const PlainRow& row : rows) {
    if (list.text(at, 0) != row[0] || list.text(at, 1) != row[1]) return false;
    ++at;
  }
  return true;
}

/// From the key "?" until the list stands modally, its rows in order and the first selected. The argument counts the
/// rows.
void openingAList(benchmark::State& state) {
  const Clients& office = clients(state.range(0));
  const PlainDatabase plain(office.path());
  Desk desk(office.path());

  auto sorted = plain.clients();
  sortRows(0, false, sorted);
  bool same = false;
  desk.openList([&](const toolkit::ListView& list) { same = showsAll(list, sorted); });
  if (!same || desk.chosen() != sorted.front()[1]) return state.SkipWithError("the list does not show what it must");
  sorted = {};

  Comparison comparison;
  for (auto _ : state) {
    std::clock_t start = std::clock();
    {
      auto rows = plain.clients();
      sortRows(0, false, rows);
      comparison.plain += secondsSince(start);
      benchmark::DoNotOptimize(rows.data());
    }
    double took = 0;
    start = std::clock();
    desk.openList([&](const toolkit::ListView& /*list*/) { took = secondsSince(start); });
    comparison.ours += took;
    state.SetIterationTime(took);
  }
  comparison.report(state);
  if (desk.failed()) state.SkipWithError("the list failed");
}
BENCHMARK(openingAList)
    ->Arg(kMany)
    ->Arg(kVeryMany)
    ->ArgName("rows")
    ->UseManualTime()
    ->MinTime(1)
    ->Unit(benchmark::kMillisecond);

/// A click on the head of a column of 100,000 rows, until all have been read in the new order, beside the sorting of
/// that column's texts alone. The first argument is the column, from 1, the second is 1 where the click turns the
/// column to descending.
void clickingAColumn(benchmark::State& state) {
  const Clients& office = clients(kMany);
  const auto column = static_cast<std::int32_t>(state.range(0));
  const bool descending = state.range(1) != 0;
  const auto place = static_cast<std::size_t>(column - 1);
  const auto came = PlainDatabase(office.path()).clients();
  Desk desk(office.path());

  auto sorted = came;
  sortRows(place, descending, sorted);
  std::vector<std::string> texts;
  texts.reserve(came.size());
  for (const PlainRow& row : came) texts.push_back(row[place]);
  // Another column first; the click that counts is the last.
  std::vector<Act> acts{Act::column(3 - column), Act::column(column)};
  if (descending) acts.push_back(Act::column(column));
  const auto clicks = acts.size();
  acts.push_back(Act::click("CmdOK"));

  Comparison comparison;
  for (auto _ : state) {
    auto alone = texts;
    const std::clock_t start = std::clock();
    sortTexts(descending, alone);
    comparison.plain += secondsSince(start);
    benchmark::DoNotOptimize(alone.data());

    double took = 0;
    std::size_t clicked = 0;
    bool same = false;
    desk.openList(
        [&](toolkit::ListView& list) {
          list.ColumnClick = [&, handler = list.ColumnClick](std::int16_t head) {
            const std::clock_t click = std::clock();
            handler(head);
            for (std::int32_t row = 0; row < list.rowCount(); ++row) {
              benchmark::DoNotOptimize(list.text(row, static_cast<std::int32_t>(place)));
            }
            took = secondsSince(click);
            if (++clicked == clicks) same = showsAll(list, sorted);
          };
        },
        acts);
    if (!same || desk.failed()) return state.SkipWithError("the list does not show what it must");
    comparison.ours += took;
    state.SetIterationTime(took);
  }
  comparison.report(state);
}
BENCHMARK(clickingAColumn)
    ->ArgsProduct({{1, 2}, {0, 1}})
    ->ArgNames({"column", "descending"})
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qvn::bench
